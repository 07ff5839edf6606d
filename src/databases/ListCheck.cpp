#include "databases/ListCheck.h"

#include "databases/DatabaseList.h"
#include "databases/Logon.h"
#include "databases/Record.h"
#include "stores/IniLib.h"
#include "support/Text.h"

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
    if (stored.Section(name).empty()) return isMissing(Kind::Record, stored.From().Path);
    const DatabaseRecord record = ExtractInfo(stored, name);
    if (!Text::HasFolder(record.Path)) isMissing(Kind::File, record.Path);
    isAt(Kind::File, record.Path);
    isAt(Kind::ContactLayout, record.ContactLayout);
    isAt(Kind::GroupLayout, record.GroupLayout);
    isAt(Kind::Macro, record.OpeningMacro);
    const std::wstring lender = stored.Value(name, Keys::UseLocationsFrom);
    const Folders folders =
        lender.empty() ? OwnFolders(stored, name) : Folders(); // a lender's are looked at as its own
    for (size_t index = 0; index < folders.size(); ++index) isAt(Kind::Folder, folders[index], index);
    if (!lender.empty() && !NameList::Has(all, lender)) isMissing(Kind::Lender, lender);
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
