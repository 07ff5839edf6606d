#pragma once

#include <string>
#include <utility>
#include <vector>

/// ACT!'s own settings under HKEY_CURRENT_USER\Software\Symantec\ACT!.
namespace Installation {

/// Creates the three keys that an ACT! which has run once has.
void CreateKeys();

void RecordLastDatabase(const std::wstring& path);

struct LastUsed {
    bool Use = false; ///< "Use Last DB" is 1
    std::wstring Database, ContactLayout, GroupLayout, Macro;
};
LastUsed ReadLastUsed();

/// Names and values of all "<name> File Type" values.
std::vector<std::pair<std::wstring, std::wstring>> FileTypes();

} // namespace Installation
