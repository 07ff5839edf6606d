#include "settings/Cipher.h"

#include "win32/AnsiCodes.h"
#include "win32/Windows.h"

namespace Cipher {

void Shift(std::span<wchar_t> text, std::span<wchar_t> key, int direction) {
    if (key.empty()) return;
    CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
    for (size_t index = 0; index < text.size(); ++index) {
        // The first character takes the key's second: stored passwords were made so.
        const unsigned char shift = AnsiCode(key[(index + 1) % key.size()]);
        text[index] = AnsiCharacter(static_cast<unsigned char>(AnsiCode(text[index]) + direction * shift));
    }
}

} // namespace Cipher
