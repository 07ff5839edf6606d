#include "ui/Menu.h"

#include "support/Busy.h"
#include "ui/Form.h"
#include "ui/Guard.h"

namespace {

void SetCaption(HMENU menu, UINT item, bool byPosition, const std::wstring& caption) {
    std::wstring text = caption;
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STRING;
    info.dwTypeData = text.data();
    SetMenuItemInfoW(menu, item, byPosition, &info);
}

} // namespace

Menu::Menu(Form* form, const wchar_t* name, Place place)
    : form_(form), name_(name), place_(place), owned_(CreatePopupMenu()), menu_(owned_.Get()) {
    form->Register(*this);
}

void Menu::AppendTo(HMENU bar) {
    if (AppendMenuW(bar, MF_POPUP | MF_STRING, reinterpret_cast<UINT_PTR>(menu_), name_)) owned_.Release();
    bar_ = bar;
}

void Menu::Caption(const std::wstring& caption) {
    if (!bar_) return;
    for (int position = 0; position < GetMenuItemCount(bar_); ++position)
        if (GetSubMenu(bar_, position) == menu_) SetCaption(bar_, static_cast<UINT>(position), true, caption);
}

void Menu::PopUp(POINT position, UINT flags) {
    TrackPopupMenu(menu_, flags, position.x, position.y, 0, form_->Handle(), nullptr);
}

MenuItem::MenuItem(Form* form, Menu& menu, const wchar_t* name, Action::Plain click)
    : form_(form), menu_(&menu), name_(name), click_(form, click), identifier_(form->Register(*this)) {
    AppendMenuW(menu.menu_, MF_STRING, static_cast<UINT_PTR>(identifier_), name);
}

void MenuItem::Caption(const std::wstring& caption) {
    SetCaption(menu_->menu_, static_cast<UINT>(identifier_), false, caption);
}

void MenuItem::Enabled(bool enabled) {
    EnableMenuItem(menu_->menu_, static_cast<UINT>(identifier_), MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

void MenuItem::Click() const {
    if (!Busy::Now() && !form_->Unloaded()) Guard::Run(form_->Name(), name_, L"Click", click_);
}

MenuSeparator::MenuSeparator(Menu& menu) { AppendMenuW(menu.menu_, MF_SEPARATOR, 0, nullptr); }
