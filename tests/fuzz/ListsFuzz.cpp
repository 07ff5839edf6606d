// Stored lists of names: removing, renaming and writing back a list that was read cut never change another name.

#include "Input.h"
#include "databases/NameList.h"
#include "support/Text.h"

#include <algorithm>

namespace {

using NameList::Names;

std::wstring Ended(const std::wstring& name, const std::wstring& oldName, const std::wstring& newName) {
    return name.ends_with(oldName) ? name.substr(0, name.size() - oldName.size()) + newName : name;
}

void CheckRenaming(const std::wstring& list, const std::wstring& oldName, const std::wstring& newName) {
    Names whole = Text::Split(list, L';');
    Names byText = whole;
    for (std::wstring& name : whole)
        if (name == oldName) name = newName;
    for (std::wstring& name : byText) name = oldName.empty() && !name.empty() ? name : Ended(name, oldName, newName);
    Require(NameList::Renamed(list, oldName, newName) == Text::Join(whole, L';'));
    Require(NameList::RenamedByText(list, oldName, newName) == Text::Join(byText, L';'));
}

void CheckRemoval(const std::wstring& list, const std::wstring& name) {
    Names left;
    for (const std::wstring& each : Text::Split(list, L';'))
        if (each != name) left.push_back(each);
    Require(NameList::Renamed(list, name, {}) == Text::Join(left, L';'));
}

/// A list that is read cut, and written back as it was shown, keeps every name in its place.
void CheckCutReading(const std::wstring& list, std::size_t length) {
    const Names all = Text::Split(list, L';');
    const NameList::Divided divided = NameList::Divide(std::wstring_view(list).substr(0, length), list);
    Names both = divided.shown;
    both.insert(both.end(), divided.unseen.begin(), divided.unseen.end());
    Require(both == all);
    const Names written = Text::Split(NameList::WithUnseen(divided.shown, divided.unseen), L';');
    for (const std::wstring& name : all) Require(name.empty() || std::ranges::find(written, name) != written.end());
}

bool Has(const Names& names, const std::wstring& name) { return std::ranges::find(names, name) != names.end(); }

/// What others have added stays, and so does what is not shown; what was taken out here is gone.
void CheckMerging(const Names& names, const Names& known, const NameList::Divided& list) {
    const Names merged = Text::Split(NameList::Merged(names, known, list), L';');
    for (const std::wstring& name : list.shown)
        Require(name.empty() || Has(merged, name) == (Has(names, name) || !Has(known, name) || Has(list.unseen, name)));
    for (const std::wstring& name : list.unseen) Require(name.empty() || Has(merged, name));
    for (const std::wstring& name : names)
        Require(name.empty() || !Has(known, name) ||
                Has(merged, name) == (Has(list.shown, name) || Has(list.unseen, name)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::size_t place = input.Number();
    const std::wstring list = input.Line();
    const std::wstring typed = input.Line();
    const Names names = Text::Split(list, L';');
    const std::wstring oldName = names.empty() ? L"A" : names[place % names.size()];
    const std::wstring newName = typed.empty() ? L"B" : typed;
    CheckRenaming(list, oldName, newName);
    CheckRemoval(list, oldName);
    CheckCutReading(list, place);
    CheckMerging(Text::Split(typed, L';'), Text::Split(input.Line(), L';'),
                 NameList::Divide(std::wstring_view(list).substr(0, place), list));
    NameList::Divide(typed, list); // of another list: no promise but to stay within it
    return 0;
}
