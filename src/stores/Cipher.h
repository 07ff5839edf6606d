#pragma once

#include <span>

/// The cipher of modEnCrypt over characters in place, for programs that have no std::string.
namespace Cipher {

/// Adds the codes of the key, which is uppercased in place, to those of the text, or takes them off (`direction` 1 or
/// -1). An empty key changes nothing.
void Shift(std::span<wchar_t> text, std::span<wchar_t> key, int direction);

} // namespace Cipher
