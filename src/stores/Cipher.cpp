#include "stores/Cipher.h"

#include "stores/CipherCore.h"
#include "win32/AnsiCodes.h"
#include "win32/Windows.h"

namespace Cipher {

void Shift(std::span<wchar_t> text, std::span<wchar_t> key, int direction) {
    if (key.empty()) return;
    CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
    ShiftBy(text, key, direction, AnsiCode, AnsiCharacter);
}

} // namespace Cipher
