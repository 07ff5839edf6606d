#include "settings/modEnCrypt.h"

#include "support/ErrorReport.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <utility>

namespace {

std::wstring Shift(const std::wstring& text, std::wstring key, int direction) {
    if (key.empty()) return text;
    CharUpperBuffW(key.data(), static_cast<DWORD>(key.size()));
    std::wstring result;
    result.reserve(text.size());
    for (size_t index = 0; index < text.size(); ++index) {
        // The first character takes the key's second: stored passwords were made so.
        const unsigned char shift = AnsiCode(key[(index + 1) % key.size()]);
        result += AnsiCharacter(static_cast<unsigned char>(AnsiCode(text[index]) + direction * shift));
    }
    return result;
}

} // namespace

namespace modEnCrypt {

std::wstring EncryptText(const std::wstring& text, std::wstring key) try {
    return Shift(text, std::move(key), 1);
} catch (...) {
    ErrorReport(L"modEnCrypt: Function EncryptText");
    return {};
}

std::wstring DecryptText(const std::wstring& text, std::wstring key) try {
    return Shift(text, std::move(key), -1);
} catch (...) {
    ErrorReport(L"modEnCrypt: Function DecryptText");
    return {};
}

} // namespace modEnCrypt
