#pragma once

#include <optional>
#include <string>
#include <vector>

/// The state file: $ACT_STANDIN_STATE, else ActStandIn.ini beside the program. Presets and faults are read from it at
/// each call, so that they can be changed while the stand-in runs; what clients change is kept in it.
namespace State {

std::optional<std::wstring> Text(const wchar_t* section, const std::wstring& key);
std::optional<long> Number(const wchar_t* section, const std::wstring& key);
/// True for a number other than 0 and for "True"; `otherwise` when the key is missing.
bool Flag(const wchar_t* section, const std::wstring& key, bool otherwise = false);
std::vector<std::wstring> Keys(const wchar_t* section);

void Store(const wchar_t* section, const std::wstring& key, const std::wstring& value);
void Remove(const wchar_t* section, const std::wstring& key);

} // namespace State
