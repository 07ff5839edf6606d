// The cipher: deciphering gives back every text of codes, in its length, for every key, and reads nothing beside them.

#include "Input.h"
#include "stores/CipherCore.h"

#include <vector>

namespace {

using Characters = std::vector<wchar_t>; // not a string: behind its end there is nothing that may be read

/// A code page in which no character is its own code.
constexpr wchar_t kFirst = 0x400;
unsigned char CodeOf(wchar_t character) { return static_cast<unsigned char>(character - kFirst); }
wchar_t CharacterOf(unsigned char code) { return kFirst + code; }

Characters Take(Input& input, std::size_t count) {
    Characters characters;
    for (std::size_t index = 0; index < count; ++index) characters.push_back(CharacterOf(input.Number()));
    return characters;
}

Characters Shifted(Characters text, const Characters& key, int direction) {
    Cipher::ShiftBy(text, key, direction, CodeOf, CharacterOf);
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const Characters key = Take(input, input.Number());
    const Characters text = Take(input, input.Left());
    const Characters cipher = Shifted(text, key, 1);
    Require(Shifted(cipher, key, -1) == text);
    Require(Shifted(Shifted(text, key, -1), key, 1) == text);
    for (std::size_t index = 0; index < text.size() && !key.empty(); ++index)
        Require((cipher[index] == text[index]) == (CodeOf(key[(index + 1) % key.size()]) == 0));
    return 0;
}
