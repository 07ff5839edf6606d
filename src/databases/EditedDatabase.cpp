#include "databases/EditedDatabase.h"

#include "databases/DatabaseList.h"
#include "stores/IniLib.h"
#include "stores/UserStore.h"
#include "support/Text.h"

namespace {

using NameList::Names;

void WriteRecord(IniLib::Change& change, const DatabaseValues& edited) {
    const DatabaseRecord& record = edited.Record;
    change.WriteKeyValue(edited.Name, Keys::Path, record.Path);
    change.WriteKeyValue(edited.Name, Keys::ContactLayout, record.ContactLayout);
    change.WriteKeyValue(edited.Name, Keys::GroupLayout, record.GroupLayout);
    change.WriteKeyValue(edited.Name, Keys::OpeningMacro, record.OpeningMacro);
}

} // namespace

Read<EditedDatabase> EditedDatabase::Load(const std::wstring& name, const std::wstring& model) {
    const auto stored = IniLib::ReadFile();
    if (!stored) return Unreadable();
    return EditedDatabase(*stored, name, model);
}

EditedDatabase::EditedDatabase(const IniLib::Reading& stored, const std::wstring& name, std::wstring model)
    : from_(stored.From()), oldName_(name), model_(std::move(model)), all_(DatabaseList::ReadAll(stored)) {
    const std::wstring& source = model_.empty() ? oldName_ : model_;
    values_.Name = model_.empty() ? name : DatabaseList::FreeName(stored, model_, all_);
    if (source.empty()) return;
    values_.Record = ExtractInfo(stored, source);
    if (std::wstring lender = stored.Value(source, Keys::UseLocationsFrom); !lender.empty())
        values_.Lender = std::move(lender);
    values_.Logon = LogonValues::Load(source);
}

bool EditedDatabase::Compose(const IniLib::Reading& stored, IniLib::Change& change,
                             const DatabaseValues& edited) const {
    const std::wstring& name = edited.Name;
    const bool isNew = oldName_.empty();
    if (isNew && !DatabaseList::Add(stored, change, name)) return false;
    if (!isNew && name != oldName_ && !DatabaseList::Rename(stored, change, oldName_, name)) return false;
    WriteRecord(change, edited);
    if (edited.Lender)
        change.WriteKeyValue(name, Keys::UseLocationsFrom, *edited.Lender);
    else
        change.DeleteKey(name, Keys::UseLocationsFrom);
    const Folders copied = isNew && !model_.empty() ? OwnFolders(stored, model_) : Folders{};
    const Folders own = OwnFolders(stored, name);
    for (size_t index = 0; index < own.size(); ++index)
        if (edited.Lender)
            change.DeleteKey(name, Keys::Locations[index]);
        else if (own[index].empty() && !copied[index].empty())
            change.WriteKeyValue(name, Keys::Locations[index], copied[index]);
    return true;
}

EditedDatabase::Outcome EditedDatabase::Save(const DatabaseValues& edited) const {
    bool isTaken = false;
    Names list;
    IniLib::Change change(from_);
    change.Compose([&](const IniLib::Reading& stored, IniLib::Change& steps) {
        isTaken = !Compose(stored, steps, edited);
        list = DatabaseList::ReadAll(stored);
        return !isTaken;
    });
    if (!change.Commit()) return isTaken ? Outcome::NameTaken : Outcome::NotSaved;
    // A name that still is one of the list, or shares its section with one, keeps its log-on.
    list.push_back(edited.Name);
    if (!oldName_.empty() && edited.Name != oldName_) DatabaseList::DeleteUserRecord(oldName_, list);
    edited.Logon.Store(edited.Name);
    return Outcome::Saved;
}

Read<OwnLocations> OwnLocations::Load(const std::wstring& name) {
    const auto stored = IniLib::ReadFile();
    if (!stored) return Unreadable();
    return OwnLocations(*stored, name);
}

OwnLocations::OwnLocations(const IniLib::Reading& stored, std::wstring name)
    : from_(stored.From()), name_(std::move(name)), folders_(OwnFolders(stored, name_)) {}

bool OwnLocations::Clear(size_t index) {
    IniLib::Change change(from_);
    if (!name_.empty()) change.DeleteKey(name_, Keys::Locations.at(index));
    if (!change.Commit()) return false;
    folders_.at(index).clear();
    return true;
}

bool OwnLocations::Save(const std::wstring& name, const Folders& folders) const {
    if (name.empty()) return true;
    IniLib::Change change(from_);
    for (size_t index = 0; index < folders.size(); ++index)
        change.WriteKeyValue(name, Keys::Locations[index], folders[index]);
    return change.Commit();
}
