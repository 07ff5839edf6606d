#pragma once

#include "support/Error.h"
#include "win32/Windows.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// ACT!'s own registry values. Texts are ANSI in the registry calls; every key is closed before an operation returns.
namespace RegistrySubs {

using Bytes = std::vector<std::uint8_t>;

/// A value tagged with its kind. Read values are a text, a 32-bit number, bytes or the caller's default; empty and
/// floating-point ones cannot be written.
using Value = std::variant<std::monostate, std::wstring, std::int16_t, std::int32_t, Bytes, double>;

inline constexpr long CannotCreateKey = BasicError::FirstOfOurs + 1;
inline constexpr long UnsupportedType = BasicError::FirstOfOurs + 2;

/// True when the key can be opened for reading.
bool CheckRegistryKey(HKEY root, const std::wstring& subkey);

/// Creates a key; true when it is new, false when it existed. A user who may not create it under HKEY_CLASSES_ROOT gets
/// it in the per-user half of that root, HKEY_CURRENT_USER\Software\Classes. Throws Error (CannotCreateKey).
bool CreateRegistryKey(HKEY root, const std::wstring& subkey);

/// A value by the registry's type: texts without their ending zero (expandable ones not expanded, inner zeros of a
/// multiple text kept), 32-bit numbers, bytes. `defaultValue` when it is missing or of another type.
Value GetRegistryValue(HKEY root, const std::wstring& subkey, const std::wstring& name, Value defaultValue = {});

/// Writes a value into an existing key; false when the key cannot be opened or written. Before that the same subkey is
/// created under HKEY_CLASSES_ROOT when it is missing there. Throws Error (CannotCreateKey, UnsupportedType).
bool SetRegistryValue(HKEY root, const std::wstring& subkey, const std::wstring& name, const Value& value);

} // namespace RegistrySubs
