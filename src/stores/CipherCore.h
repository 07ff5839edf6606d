#pragma once

#include <cstddef>
#include <span>

/// The cipher apart from the platform's code page.
namespace Cipher {

/// Cipher::Shift with a key that is in upper case already. `codeOf` gives a character's code, an unsigned char, and
/// `characterOf` the character of a code.
template <class CodeOf, class CharacterOf>
void ShiftBy(std::span<wchar_t> text, std::span<const wchar_t> key, int direction, CodeOf codeOf,
             CharacterOf characterOf) {
    if (key.empty()) return;
    for (std::size_t index = 0; index < text.size(); ++index) {
        // The first character takes the key's second: stored passwords were made so.
        const unsigned char shift = codeOf(key[(index + 1) % key.size()]);
        text[index] = characterOf(static_cast<unsigned char>(codeOf(text[index]) + direction * shift));
    }
}

} // namespace Cipher
