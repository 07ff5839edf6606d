#include "databases/Record.h"

#include "stores/IniLib.h"
#include "support/Text.h"

#include <algorithm>

std::wstring ValueIn(const IniLib::Reading::Values& section, std::wstring_view key) {
    const auto found =
        std::ranges::find_if(section, [&](const auto& value) { return Text::EqualNoCase(value.first, key); });
    return found == section.end() ? std::wstring() : IniLib::Shown(found->second);
}

DatabaseRecord ExtractInfo(const IniLib::Reading& stored, const std::wstring& name) {
    const IniLib::Reading::Values section = stored.Section(name);
    return {ValueIn(section, Keys::Path), ValueIn(section, Keys::ContactLayout), ValueIn(section, Keys::GroupLayout),
            ValueIn(section, Keys::OpeningMacro)};
}

Folders OwnFolders(const IniLib::Reading& stored, const std::wstring& name) {
    const IniLib::Reading::Values section = stored.Section(name);
    Folders folders;
    for (size_t index = 0; index < folders.size(); ++index) folders[index] = ValueIn(section, Keys::Locations[index]);
    return folders;
}

Folders UsedFolders(const IniLib::Reading& stored, const std::wstring& name) {
    const std::wstring lender = stored.Value(name, Keys::UseLocationsFrom);
    return OwnFolders(stored, lender.empty() ? name : lender);
}
