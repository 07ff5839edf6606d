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
    CommandButton(F* form, const wchar_t* name, const Twips& place, void (F::*click)(),
                  ButtonRole role = ButtonRole::Plain)
        : CommandButton(static_cast<Form*>(form), name, place, Bind(form, click), role) {}
    /// A button inside a frame; of several with one name, the handler gets the index.
    template <class F>
    CommandButton(F* form, Frame& container, const wchar_t* name, const Twips& place, void (F::*click)())
        : CommandButton(form, name, place, Bind(form, click), ButtonRole::Plain, &container) {}
    template <class F>
    CommandButton(F* form, Frame& container, const wchar_t* name, const Twips& place, int index, void (F::*click)(int))
        : CommandButton(form, name, place, BindElement(form, click, index), ButtonRole::Plain, &container, index) {}
    CommandButton(Form* form, const wchar_t* name, const Twips& place, const Action& click, ButtonRole role,
                  Frame* container = nullptr, int index = 0);

private:
    int Identifier(int ordinal) const override;
    void OnCommand(WORD notification) override;

    Action click_;
    ButtonRole role_;
};

/// A box to check.
class CheckBox : public Control {
public:
    template <class F>
    CheckBox(F* form, Frame& container, const wchar_t* name, const Twips& place, void (F::*click)())
        : CheckBox(static_cast<Form*>(form), container, name, place, Bind(form, click)) {}
    /// An element of a control array; its handler gets its index.
    template <class F>
    CheckBox(F* form, Frame& container, const wchar_t* name, const Twips& place, int index, void (F::*click)(int))
        : CheckBox(static_cast<Form*>(form), container, name, place, BindElement(form, click, index), index) {}
    CheckBox(Form* form, Frame& container, const wchar_t* name, const Twips& place, const Action& click = {},
             int index = 0);

    bool Value() const;
    /// Checks or unchecks and, when that changes it, runs the handler as a click does.
    void Value(bool checked);

private:
    void OnCommand(WORD notification) override;

    Action click_;
};

/// One of several options of which exactly one is chosen. The first of a group is the one with index 0.
class OptionButton : public Control {
public:
    template <class F>
    OptionButton(F* form, Frame& container, const wchar_t* name, const Twips& place, int index, void (F::*click)(int))
        : OptionButton(static_cast<Form*>(form), container, name, place, index, BindElement(form, click, index)) {}
    OptionButton(Form* form, Frame& container, const wchar_t* name, const Twips& place, int index, const Action& click);

    bool Value() const;
    /// Checks or unchecks without running a handler and without touching the others of the group.
    void Value(bool checked);

private:
    void OnCommand(WORD notification) override;

    Action click_;
};
