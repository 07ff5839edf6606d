#include "ui/Button.h"

#include "support/Busy.h"

namespace {

DWORD StyleOf(ButtonRole role) { return (role == ButtonRole::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | WS_TABSTOP; }

} // namespace

CommandButton::CommandButton(Form* form, const wchar_t* name, const Placement& place, int index, const Action& click,
                             ButtonRole role)
    : Control(form, name, place, {L"Button", StyleOf(role) | WS_GROUP}, index), click_(click), role_(role) {}

int CommandButton::Identifier(int ordinal) const {
    if (role_ == ButtonRole::Default) return IDOK;
    return role_ == ButtonRole::Cancel ? IDCANCEL : ordinal;
}

void CommandButton::OnCommand(WORD notification) {
    if (notification == BN_CLICKED && Enabled()) Raise(L"Click", click_);
}

CheckBox::CheckBox(Form* form, const wchar_t* name, const Placement& place, int index, const Action& click)
    : Control(form, name, place, {L"Button", BS_AUTOCHECKBOX | WS_TABSTOP | WS_GROUP}, index), click_(click) {}

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

OptionButton::OptionButton(Form* form, const wchar_t* name, const Placement& place, int index, const Action& click)
    : Control(form, name, place,
              {L"Button", static_cast<DWORD>(BS_AUTORADIOBUTTON | (index == 0 ? WS_GROUP | WS_TABSTOP : 0))}, index),
      click_(click) {}

bool OptionButton::Value() const { return SendMessageW(Handle(), BM_GETCHECK, 0, 0) == BST_CHECKED; }

void OptionButton::Value(bool checked) {
    SendMessageW(Handle(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void OptionButton::OnCommand(WORD notification) {
    if (notification == BN_CLICKED) Raise(L"Click", click_);
}
