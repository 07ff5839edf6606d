#include "stores/modEnCrypt.h"

#include "stores/Cipher.h"
#include "support/ErrorReport.h"

namespace modEnCrypt {

std::wstring EncryptText(std::wstring text, std::wstring key) try {
    Cipher::Shift(text, key, 1);
    return text;
} catch (...) {
    ErrorReport("modEnCrypt: Function EncryptText");
    return {};
}

std::wstring DecryptText(std::wstring text, std::wstring key) try {
    Cipher::Shift(text, key, -1);
    return text;
} catch (...) {
    ErrorReport("modEnCrypt: Function DecryptText");
    return {};
}

} // namespace modEnCrypt
