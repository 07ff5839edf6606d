#pragma once

#include <string>

/// A reversible shift of characters that keeps a stored password from a casual reader; not meant to resist analysis.
/// Characters count by their code in the single-byte ANSI code page; the result may hold any of the 256, zero included,
/// and is as long as the text. The key is uppercased; an empty key changes nothing.
namespace modEnCrypt {

std::wstring EncryptText(std::wstring text, std::wstring key);
std::wstring DecryptText(std::wstring text, std::wstring key);

} // namespace modEnCrypt
