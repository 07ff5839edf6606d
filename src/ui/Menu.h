#pragma once

#include "ui/Events.h"
#include "win32/Owner.h"

#include <string>
#include <type_traits>

class Form;

/// A drop-down menu of a form's menu bar, or a pop-up menu of its own.
class Menu {
public:
    enum class Place { Bar, PopUp };

    Menu(Form* form, const wchar_t* name, Place place = Place::Bar);
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    bool InBar() const { return place_ == Place::Bar; }
    void Caption(const std::wstring& caption);
    /// Shows the menu at a place in screen pixels and runs the chosen item. `flags` as for TrackPopupMenu.
    void PopUp(POINT position, UINT flags = TPM_RIGHTBUTTON);

private:
    friend class Form;
    friend class MenuItem;
    friend class MenuSeparator;
    void AppendTo(HMENU bar);

    Form* form_;
    const wchar_t* name_;
    Place place_;
    MenuHandle owned_; ///< until the menu bar takes it over
    HMENU menu_;
    HMENU bar_ = nullptr;
};

/// One command of a menu.
class MenuItem {
public:
    template <class F>
    MenuItem(F* form, Menu& menu, const wchar_t* name, std::type_identity_t<ClickEvents<F>> events)
        : MenuItem(form, menu, name, Action::Plain(events)) {}
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    const wchar_t* Name() const { return name_; }
    /// The command identifier. The form's window carries it as a property of the item's name.
    int Identifier() const { return identifier_; }
    void Caption(const std::wstring& caption);
    void Enabled(bool enabled);
    /// Runs the item's handler as a choice by the user does.
    void Click() const;

private:
    MenuItem(Form* form, Menu& menu, const wchar_t* name, Action::Plain click);

    Form* form_;
    Menu* menu_;
    const wchar_t* name_;
    Action click_;
    int identifier_;
};

/// A line between two items.
class MenuSeparator {
public:
    explicit MenuSeparator(Menu& menu);
};
