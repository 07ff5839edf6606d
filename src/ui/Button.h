#pragma once

#include "ui/Control.h"

/// What Enter and Esc do: a form has at most one button of each role.
enum class ButtonRole { Plain, Default, Cancel };
inline constexpr ButtonRole Default = ButtonRole::Default;
inline constexpr ButtonRole Cancel = ButtonRole::Cancel;

/// A push button.
class CommandButton : public Control {
public:
    template <class F>
    CommandButton(F* form, const wchar_t* name, Twips place, void (F::*click)(), ButtonRole role = ButtonRole::Plain)
        : CommandButton(static_cast<Form*>(form), name, place, Bind(form, click), role) {}
    CommandButton(Form* form, const wchar_t* name, Twips place, Action click, ButtonRole role);

private:
    int Identifier(int ordinal) const override;
    void OnCommand(WORD notification) override;

    Action click_;
    ButtonRole role_;
};

/// One of several options of which exactly one is chosen. The first of a group is the one with index 0.
class OptionButton : public Control {
public:
    template <class F>
    OptionButton(F* form, Frame& container, const wchar_t* name, Twips place, int index, void (F::*click)(int))
        : OptionButton(static_cast<Form*>(form), container, name, place, index,
                       [form, click, index] { (form->*click)(index); }) {}
    OptionButton(Form* form, Frame& container, const wchar_t* name, Twips place, int index, Action click);

    bool Value() const;
    /// Checks or unchecks without running a handler and without touching the others of the group.
    void Value(bool checked);

private:
    void OnCommand(WORD notification) override;

    Action click_;
};
