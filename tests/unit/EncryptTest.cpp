#include "stores/modEnCrypt.h"

#include "support/Wide.h"
#include "win32/AnsiCodes.h"

namespace {

std::wstring FromCodes(std::initializer_list<int> codes) {
    std::wstring text;
    for (const int code : codes) text += AnsiCharacter(static_cast<unsigned char>(code));
    return text;
}

} // namespace

TEST_CASE("The cipher adds the key's codes, from its second character on, in the ANSI code page") {
    struct Row {
        std::wstring text;
        std::wstring key;
        std::wstring cipher;
    };
    const Row rows[] = {
        {L"aaaa", L"ABC", FromCodes({163, 164, 162, 163})},
        {L"aaaa", L"abc", FromCodes({163, 164, 162, 163})},
        {L"ab", L"A", FromCodes({162, 163})},
        {FromCodes({200}), L"K", FromCodes({19})},
        {L"€", L"A", FromCodes({128 + 65})},
        {L"a", FromCodes({0xE9}), FromCodes({(97 + 0xC9) % 256})},
        {L"", L"ABC", L""},
        {L"ž€", L"", L"ž€"},
    };
    for (const Row& row : rows) {
        CHECK(modEnCrypt::EncryptText(row.text, row.key) == row.cipher);
        CHECK(modEnCrypt::DecryptText(row.cipher, row.key) == row.text);
    }
}

TEST_CASE("Deciphering reverses enciphering for all 256 codes and every key") {
    std::wstring every;
    for (int code = 0; code < 256; ++code) every += FromCodes({code});
    for (const std::wstring& key : {std::wstring(L"Kelmorra"), std::wstring(L"x"), every}) {
        const std::wstring cipher = modEnCrypt::EncryptText(every, key);
        CHECK(cipher.size() == every.size());
        CHECK(cipher != every);
        CHECK(modEnCrypt::DecryptText(cipher, key) == every);
    }
}
