#include "databases/ListCheck.h"

#include "databases/DatabaseList.h"
#include "databases/Logon.h"
#include "databases/Record.h"
#include "stores/IniLib.h"
#include "support/Text.h"

namespace {

using ListCheck::Kind;
using ListCheck::Part;

class Parts {
public:
    Parts(const IniLib::Reading& stored, std::vector<Part>& parts)
        : stored_(stored), names_(DatabaseList::ReadAll(stored)), parts_(parts) {}

    void AddAll() {
        for (const std::wstring& name : names_)
            if (stored_.Section(name).empty())
                AddMissing(name, Kind::Record, stored_.From().Path);
            else
                AddDatabase(name);
    }

private:
    void AddMissing(const std::wstring& name, Kind what, const std::wstring& where) {
        parts_.push_back({name, what, where, ListCheck::Answer::Missing});
    }
    void AddPath(const std::wstring& name, Kind what, const std::wstring& path, size_t folder = 0) {
        if (Text::HasFolder(path)) parts_.push_back({name, what, path, ListCheck::Answer::None, folder});
    }

    void AddDatabase(const std::wstring& name) {
        const DatabaseRecord record = ExtractInfo(stored_, name);
        if (!Text::HasFolder(record.Path)) AddMissing(name, Kind::File, record.Path);
        AddPath(name, Kind::File, record.Path);
        AddPath(name, Kind::ContactLayout, record.ContactLayout);
        AddPath(name, Kind::GroupLayout, record.GroupLayout);
        AddPath(name, Kind::Macro, record.OpeningMacro);
        AddLocations(name);
        if (LogonValues::Load(name).Username.empty()) AddMissing(name, Kind::Logon, {});
    }

    void AddLocations(const std::wstring& name) {
        const std::wstring lender = stored_.Value(name, Keys::UseLocationsFrom);
        if (!lender.empty() && !NameList::Has(names_, lender)) AddMissing(name, Kind::Lender, lender);
        if (!lender.empty()) return; // those of one that is there are its own
        const Folders folders = OwnFolders(stored_, name);
        for (size_t index = 0; index < folders.size(); ++index) AddPath(name, Kind::Folder, folders[index], index);
    }

    const IniLib::Reading& stored_;
    NameList::Names names_;
    std::vector<Part>& parts_;
};

} // namespace

Read<std::vector<Part>> ListCheck::Parts() {
    const auto stored = IniLib::ReadFile();
    if (!stored) return Unreadable();
    std::vector<Part> parts;
    ::Parts(*stored, parts).AddAll();
    return parts;
}
