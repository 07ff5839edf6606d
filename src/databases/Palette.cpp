#include "databases/Palette.h"

#include "databases/DatabaseList.h"
#include "databases/Keys.h"
#include "support/Error.h"
#include "support/Text.h"

#include <algorithm>

namespace {

using NameList::Names;

/// The assignment as it counts: without names that the list does not hold.
Names ListedButtons(const IniLib::Reading& stored) {
    const Names list = DatabaseList::ReadAll(stored);
    // Whole, unlike what the palette shows: a name that was cut would be written back as none.
    Names names = Text::Split(stored.Whole(Keys::General, Keys::QuickSwitch).value_or(L""), L';');
    names.resize(Palette::ButtonCount);
    for (std::wstring& name : names)
        if (!NameList::Has(list, name)) name.clear();
    return names;
}

} // namespace

namespace Palette {

Names Buttons(const IniLib::Reading& stored) {
    Names names = Text::Split(stored.Value(Keys::General, Keys::QuickSwitch), L';');
    names.resize(std::max(names.size(), ButtonCount));
    return names;
}

short Scheme(const IniLib::Reading& stored) {
    const std::wstring text = stored.Value(Keys::General, Keys::QuickSwitchScheme);
    const auto scheme = Text::WholeNumber(text.empty() ? L"0" : text);
    if (!scheme) throw Error(BasicError::TypeMismatch, L"Type mismatch");
    if (*scheme < 0 || *scheme >= SchemeCount) throw Error(BasicError::OutOfRange, L"Subscript out of range");
    return static_cast<short>(*scheme);
}

bool OpensAtStart(const IniLib::Reading& stored) {
    const auto wanted = Text::WholeNumber(stored.Value(Keys::General, Keys::QuickSwitchStartup));
    return wanted.value_or(0) == 1 && !stored.Value(Keys::General, Keys::QuickSwitch).empty();
}

void ReplaceInQuickSwitch(const IniLib::Reading& stored, IniLib::Change& change, const std::wstring& oldName,
                          const std::wstring& newName) {
    // An empty name is a button without a database, not one to be renamed.
    if (oldName.empty()) return;
    const std::wstring whole = stored.Whole(Keys::General, Keys::QuickSwitch).value_or(L"");
    const std::wstring renamed = NameList::Renamed(whole, oldName, newName);
    if (renamed != whole) change.WriteKeyValue(Keys::General, Keys::QuickSwitch, renamed);
}

Read<Edited> Edited::Load() {
    auto stored = IniLib::ReadFile();
    if (!stored) return Unreadable();
    return Edited(std::move(*stored));
}

Edited::Edited(IniLib::Reading stored)
    : stored_(std::move(stored)), shown_(DatabaseList::Read(stored_).shown), buttons_(ListedButtons(stored_)) {}

Names Edited::Choices(size_t button) const {
    Names names = shown_;
    if (!Button(button).empty() && !NameList::Has(names, Button(button))) names.push_back(Button(button));
    return names;
}

bool Edited::IsShownAtStart() const {
    return Text::WholeNumber(stored_.Value(Keys::General, Keys::QuickSwitchStartup)).value_or(0) != 0;
}

bool Edited::Save(const Names& buttons, int scheme, bool isShownAtStart) const {
    IniLib::Change change(stored_.From());
    change.Compose([&](const IniLib::Reading& stored, IniLib::Change& steps) {
        Names names = ListedButtons(stored);
        for (size_t button = 0; button < ButtonCount; ++button)
            if (buttons.at(button) != Button(button)) names[button] = buttons[button];
        steps.WriteKeyValue(Keys::General, Keys::QuickSwitch, Text::Join(names, L';'));
        return true;
    });
    change.WriteKeyValue(Keys::General, Keys::QuickSwitchStartup, isShownAtStart ? L"1" : L"0");
    change.WriteKeyValue(Keys::General, Keys::QuickSwitchScheme, Text::FromNumber(scheme));
    return change.Commit();
}

} // namespace Palette
