#include "databases/ListCheck.h"

#include "databases/DatabaseList.h"
#include "databases/Logon.h"
#include "databases/Record.h"
#include "stores/IniLib.h"
#include "support/Text.h"

#include <algorithm>

namespace {

using namespace ListCheck;

/// What one database needs.
void Add(std::vector<Part>& parts, const IniLib::Reading& stored, const std::wstring& name,
         const NameList::Names& all) {
    const auto isMissing = [&](Kind what, const std::wstring& where) {
        parts.push_back({name, what, where, Answer::Missing});
    };
    const auto isAt = [&](Kind what, const std::wstring& path, size_t folder = 0) {
        if (Text::HasFolder(path)) parts.push_back({name, what, path, Answer::None, folder});
    };
    const IniLib::Reading::Values section = stored.Section(name); // read once: the file may be long
    if (section.empty()) return isMissing(Kind::Record, stored.From().Path);
    const std::wstring file = ValueIn(section, Keys::Path);
    if (!Text::HasFolder(file)) isMissing(Kind::File, file);
    isAt(Kind::File, file);
    isAt(Kind::ContactLayout, ValueIn(section, Keys::ContactLayout));
    isAt(Kind::GroupLayout, ValueIn(section, Keys::GroupLayout));
    isAt(Kind::Macro, ValueIn(section, Keys::OpeningMacro));
    const std::wstring lender = ValueIn(section, Keys::UseLocationsFrom);
    // A lender's folders are looked at as its own.
    for (size_t index = 0; lender.empty() && index < Keys::Locations.size(); ++index)
        isAt(Kind::Folder, ValueIn(section, Keys::Locations[index]), index);
    const auto isLender = [&](const std::wstring& other) { return Text::EqualNoCase(other, lender); };
    if (!lender.empty() && std::ranges::none_of(all, isLender)) isMissing(Kind::Lender, lender);
    if (LogonValues::Load(name).Username.empty()) isMissing(Kind::Logon, {});
}

} // namespace

Read<std::vector<Part>> ListCheck::Parts() {
    const auto stored = IniLib::ReadFile();
    if (!stored) return Unreadable();
    const NameList::Names all = DatabaseList::ReadAll(*stored);
    std::vector<Part> parts;
    for (const std::wstring& name : all) Add(parts, *stored, name, all);
    return parts;
}
