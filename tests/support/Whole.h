#pragma once

#include "stores/IniLib.h"

/// A value of the current settings file without the cut; "" when the key is missing.
inline std::wstring Whole(const std::wstring& section, const std::wstring& key) {
    return IniLib::ReadFile()->Whole(section, key).value_or(L"");
}
