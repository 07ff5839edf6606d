#include "databases/EditedList.h"

#include "databases/DatabaseList.h"
#include "stores/IniLib.h"

#include <algorithm>
#include <utility>

Read<EditedList> EditedList::Load() {
    const auto stored = IniLib::ReadFile();
    if (!stored) return Unreadable();
    return EditedList(*stored);
}

EditedList::EditedList(const IniLib::Reading& stored)
    : from_(stored.From()), shown_(DatabaseList::Read(stored).shown), stored_(DatabaseList::ReadAll(stored)) {}

bool EditedList::Reload() {
    const auto stored = IniLib::ReadFile();
    if (!stored) return false;
    from_ = stored->From();
    shown_ = DatabaseList::Read(*stored).shown;
    stored_ = DatabaseList::ReadAll(*stored);
    return true;
}

bool EditedList::Save(const Names& order, const Also& also) {
    Names wanted;
    std::wstring list;
    IniLib::Change change(from_);
    change.Compose([&](const IniLib::Reading& stored, IniLib::Change& steps) {
        wanted = order;
        if (also) also(stored, steps, wanted);
        list = NameList::Merged(wanted, shown_, DatabaseList::Read(stored));
        DatabaseList::Write(stored, steps, list);
        return true;
    });
    if (!change.Commit()) return false;
    from_.IsThere = true;
    NoteStored(wanted, NameList::Divide(IniLib::Shown(list), list));
    return true;
}

void EditedList::NoteStored(const Names& order, const NameList::Divided& stored) {
    Names all = stored.shown;
    all.insert(all.end(), stored.unseen.begin(), stored.unseen.end());
    const auto isTheirs = [&](const std::wstring& name) {
        return !NameList::Has(order, name) && !NameList::Has(stored_, name);
    };
    const auto isGone = [&](const std::wstring& name) { return !NameList::Has(all, name); };
    haveOthersChanged_ = haveOthersChanged_ || std::ranges::any_of(all, isTheirs) || std::ranges::any_of(order, isGone);
    shown_ = stored.shown;
    stored_ = std::move(all);
}

bool EditedList::Remove(Names order, size_t line) {
    RemovedDatabase removed(order.at(line), line);
    order.erase(order.begin() + static_cast<std::ptrdiff_t>(line));
    if (!Save(order,
              [&](const IniLib::Reading& stored, IniLib::Change& change, Names&) { removed.Remove(stored, change); }))
        return false;
    removed.RemoveFromUser(stored_);
    done_.emplace_back(std::move(removed));
    return true;
}

bool EditedList::Import(const Names& order, const OtherSettings& other, const std::vector<size_t>& chosen) {
    AddedDatabases added;
    if (!Save(order, [&](const IniLib::Reading& stored, IniLib::Change& change, Names& names) {
            added = other.Add(stored, change, names, chosen);
        }))
        return false;
    done_.emplace_back(std::move(added));
    return true;
}

std::optional<size_t> EditedList::Undo(const Names& order) {
    if (done_.empty()) return std::nullopt;
    const auto* const removed = std::get_if<RemovedDatabase>(&done_.back());
    size_t line = 0;
    const auto undo = [&](const IniLib::Reading& stored, IniLib::Change& change, Names& names) {
        if (!removed) return std::get<AddedDatabases>(done_.back()).TakeBack(stored, change, names);
        line = std::min(removed->Line(), names.size());
        names.insert(names.begin() + static_cast<std::ptrdiff_t>(line), removed->Name());
        removed->Restore(stored, change);
    };
    if (!Save(order, undo)) return std::nullopt;
    if (removed)
        removed->RestoreToUser();
    else
        line = shown_.size();
    done_.pop_back();
    return line;
}
