#pragma once

#include "databases/NameList.h"
#include "databases/OtherSettings.h"
#include "databases/RemovedDatabase.h"
#include "stores/IniChange.h"
#include "stores/Read.h"

#include <functional>
#include <optional>
#include <variant>
#include <vector>

/// The list of databases that is being ordered, with removals and imports that can be undone. What others change in it
/// meanwhile is taken over whenever something is saved.
class EditedList {
public:
    using Names = NameList::Names;

    static Read<EditedList> Load();
    /// Reads the list anew; false, with the list as it was, when it cannot be read. What was done can still be undone.
    bool Reload();

    /// The databases as they were last read or saved, as far as they are shown. A user may have put them into another
    /// order since; the operations take that order, and give this one when they have gone well.
    const Names& Shown() const { return shown_; }

    /// Writes the order. False when it could not be written.
    bool Save(const Names& order) { return Save(order, {}); }

    /// Takes the database of that line out of both stores at once. False when it could not be: it is wholly there.
    bool Remove(Names order, size_t line);

    /// Adds databases of another settings file (numbers of those that it offers) behind the others in one change.
    /// False when they could not be: none is there.
    bool Import(const Names& order, const OtherSettings& other, const std::vector<size_t>& chosen);

    bool CanUndo() const { return !done_.empty(); }
    /// The last thing done was an import.
    bool UndoesImport() const { return CanUndo() && std::holds_alternative<AddedDatabases>(done_.back()); }
    /// Puts the last removed database back where it stood, and gives its line; or takes the last imported ones out, and
    /// gives the line behind those that stay. Nothing when it could not be.
    std::optional<size_t> Undo(const Names& order);

    /// Others have added or removed a database since it was loaded.
    bool HaveOthersChanged() const { return haveOthersChanged_; }

private:
    explicit EditedList(const IniLib::Reading& stored);
    /// What else a change of the list is to do; `order` is what becomes of the list.
    using Also = std::function<void(const IniLib::Reading& stored, IniLib::Change& change, Names& order)>;
    bool Save(const Names& order, const Also& also);
    void NoteStored(const Names& order, const NameList::Divided& stored);

    IniLib::Origin from_;
    Names shown_;
    Names stored_; ///< the whole list then: what is none of it was added by others
    std::vector<std::variant<RemovedDatabase, AddedDatabases>> done_;
    bool haveOthersChanged_ = false;
};
