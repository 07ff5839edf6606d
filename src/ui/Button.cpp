#include "ui/Button.h"

#include "support/Busy.h"

namespace {

DWORD StyleOf(ButtonRole role) { return (role == ButtonRole::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | WS_TABSTOP; }

constexpr ControlKind kCheckBox{L"Button", BS_AUTOCHECKBOX | WS_TABSTOP | WS_GROUP};

} // namespace

CommandButton::CommandButton(Form* form, const wchar_t* name, const Placement& place, Action::Plain click,
                             ButtonRole role)
    : Control(form, name, place, {L"Button", StyleOf(role) | WS_GROUP}), click_(form, click), role_(role) {}

CommandButton::CommandButton(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index)
    : Control(form, name, place, {L"Button", StyleOf(ButtonRole::Plain) | WS_GROUP}, index), click_(form, click, index),
      role_(ButtonRole::Plain) {}

int CommandButton::Identifier(int ordinal) const {
    if (role_ == ButtonRole::Default) return IDOK;
    return role_ == ButtonRole::Cancel ? IDCANCEL : ordinal;
}

void CommandButton::OnCommand(WORD notification) {
    if (notification == BN_CLICKED && Enabled()) Raise(L"Click", click_);
}

CheckBox::CheckBox(Form* form, const wchar_t* name, const Placement& place, Action::Plain click)
    : Control(form, name, place, kCheckBox), click_(form, click) {}

CheckBox::CheckBox(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index)
    : Control(form, name, place, kCheckBox, index), click_(form, click, index) {}

bool CheckBox::Value() const { return SendMessageW(Handle(), BM_GETCHECK, 0, 0) == BST_CHECKED; }

void CheckBox::Value(bool checked) {
    if (checked == Value()) return;
    SendMessageW(Handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
    Raise(L"Click", click_);
}

void CheckBox::OnCommand(WORD notification) {
    if (notification != BN_CLICKED) return;
    if (click_ && Busy::Now()) // the handler cannot run now: the box goes back to what it stands for
        SendMessageW(Handle(), BM_SETCHECK, Value() ? BST_UNCHECKED : BST_CHECKED, 0);
    else
        Raise(L"Click", click_);
}

OptionButton::OptionButton(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index)
    : Control(form, name, place,
              {L"Button", static_cast<DWORD>(BS_AUTORADIOBUTTON | (index == 0 ? WS_GROUP | WS_TABSTOP : 0))}, index),
      click_(form, click, index) {}

bool OptionButton::Value() const { return SendMessageW(Handle(), BM_GETCHECK, 0, 0) == BST_CHECKED; }

void OptionButton::Value(bool checked) {
    SendMessageW(Handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void OptionButton::OnCommand(WORD notification) {
    if (notification == BN_CLICKED) Raise(L"Click", click_);
}
