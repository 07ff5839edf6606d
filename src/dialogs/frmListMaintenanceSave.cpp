// frmListMaintenance's saving: the lines become the stored list, with what others have changed in it meanwhile.

#include "databases/Database.h"
#include "dialogs/frmListMaintenance.h"

#include <algorithm>

namespace {

bool Has(const std::vector<std::wstring>& names, const std::wstring& name) {
    return std::ranges::find(names, name) != names.end();
}

} // namespace

std::vector<std::wstring> frmListMaintenance::Lines() const {
    std::vector<std::wstring> names;
    names.reserve(static_cast<size_t>(lstDB.ListCount()));
    for (int index = 0; index < lstDB.ListCount(); ++index) names.push_back(lstDB.List(index));
    return names;
}

bool frmListMaintenance::Save_List() {
    IniLib::Change change;
    return Save_List(change);
}

bool frmListMaintenance::Save_List(IniLib::Change& change) {
    const bool isMerged = MergeOthers();
    if (!isListRead_) change.Refuse(); // the lines are not what is stored
    DatabaseList::MergeIntoSort(change, Lines(), shown_);
    if (!change.Commit()) return false;
    isMerged_ = isMerged_ || isMerged;
    NoteStored();
    return true;
}

void frmListMaintenance::NoteStored() {
    shown_ = Lines();
    stored_ = DatabaseList::ReadWholeSort();
}

bool frmListMaintenance::MergeOthers() {
    const std::vector<std::wstring> current = DatabaseList::ReadWholeSort();
    if (!DatabaseList::WasRead()) return false;
    bool isMerged = false;
    for (const std::wstring& name : DatabaseList::ReadSort())
        if (!Has(shown_, name) && !Has(Lines(), name)) {
            lstDB.AddItem(name);
            // One that the list was too long to show before is nobody's change.
            isMerged = isMerged || !Has(stored_, name);
        }
    for (int line = lstDB.ListCount() - 1; line >= 0; --line) {
        const std::wstring name = lstDB.List(line);
        if (!Has(stored_, name) || Has(current, name)) continue;
        const int selected = lstDB.ListIndex();
        lstDB.RemoveItem(line);
        if (selected >= line) lstDB.ListIndex(std::min(selected, lstDB.ListCount() - 1));
        isMerged = true;
    }
    return isMerged;
}
