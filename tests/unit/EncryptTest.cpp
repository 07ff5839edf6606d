#include "stores/modEnCrypt.h"

#include "support/Wide.h"
#include "win32/AnsiText.h"

#include <tuple>

TEST_CASE("The cipher adds the key's codes, from its second character on, in the ANSI code page") {
    const std::tuple<const char*, const char*, const char*> rows[] = {{"aaaa", "ABC", "\xA3\xA4\xA2\xA3"},
                                                                      {"aaaa", "abc", "\xA3\xA4\xA2\xA3"},
                                                                      {"ab", "A", "\xA2\xA3"},
                                                                      {"\xC8", "K", "\x13"},
                                                                      {"\x80", "A", "\xC1"},
                                                                      {"a", "\xE9", "\x2A"},
                                                                      {"\x9E\x80", "", "\x9E\x80"}};
    for (const auto& [text, key, cipher] : rows) {
        CHECK(modEnCrypt::EncryptText(ToWide(text), ToWide(key)) == ToWide(cipher));
        CHECK(modEnCrypt::DecryptText(ToWide(cipher), ToWide(key)) == ToWide(text));
    }
}

TEST_CASE("Deciphering reverses enciphering for all 256 codes and every key") {
    std::string codes;
    for (int code = 0; code < 256; ++code) codes += static_cast<char>(code);
    const std::wstring every = ToWide(codes);
    for (const std::wstring& key : {std::wstring(L"Kelmorra"), every}) {
        const std::wstring cipher = modEnCrypt::EncryptText(every, key);
        CHECK(cipher != every);
        CHECK(modEnCrypt::DecryptText(cipher, key) == every);
    }
}
