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

bool EditedList::Save(const Names& order, const IniLib::Change::Build& also) {
    std::wstring list;
    IniLib::Change change(from_);
    change.Compose([&](const IniLib::Reading& stored, IniLib::Change& steps) {
        if (also && !also(stored, steps)) return false;
        list = NameList::Merged(order, shown_, DatabaseList::Read(stored));
        DatabaseList::Write(stored, steps, list);
        return true;
    });
    if (!change.Commit()) return false;
    from_.IsThere = true;
    NoteStored(order, NameList::Divide(IniLib::Shown(list), list));
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
    const auto remove = [&](const IniLib::Reading& stored, IniLib::Change& change) {
        removed.Remove(stored, change);
        return true;
    };
    if (!Save(order, remove)) return false;
    removed.RemoveFromUser(stored_);
    removed_.push_back(std::move(removed));
    return true;
}

std::optional<size_t> EditedList::Undo(Names order) {
    if (removed_.empty()) return std::nullopt;
    const RemovedDatabase& last = removed_.back();
    const size_t line = std::min(last.Line(), order.size());
    order.insert(order.begin() + static_cast<std::ptrdiff_t>(line), last.Name());
    const auto restore = [&](const IniLib::Reading& stored, IniLib::Change& change) {
        last.Restore(stored, change);
        return true;
    };
    if (!Save(order, restore)) return std::nullopt;
    last.RestoreToUser();
    removed_.pop_back();
    return line;
}
