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
    CommandButton(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<ClickEvents<F>> events,
                  ButtonRole role = ButtonRole::Plain)
        : CommandButton(form, name, place, Action::Plain(events), role) {}
    /// One of several with the same name.
    template <class F>
    CommandButton(F* form, const wchar_t* name, const Placement& place,
                  std::type_identity_t<IndexedClickEvents<F>> events)
        : CommandButton(form, name, place, Action::Indexed(events), events.Index) {}

private:
    CommandButton(Form* form, const wchar_t* name, const Placement& place, Action::Plain click, ButtonRole role);
    CommandButton(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index);
    int Identifier(int ordinal) const override;
    void OnCommand(WORD notification) override;

    Action click_;
    ButtonRole role_;
};

/// A box to check.
class CheckBox : public Control {
public:
    template <class F>
    using Indexed = IndexedClickEvents<F>;

    template <class F>
    CheckBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<ClickEvents<F>> events = {})
        : CheckBox(form, name, place, Action::Plain(events)) {}
    template <class F>
    CheckBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<IndexedClickEvents<F>> events)
        : CheckBox(form, name, place, Action::Indexed(events), events.Index) {}

    bool Value() const;
    /// Checks or unchecks and, when that changes it, runs the handler as a click does.
    void Value(bool checked);

private:
    CheckBox(Form* form, const wchar_t* name, const Placement& place, Action::Plain click);
    CheckBox(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index);
    void OnCommand(WORD notification) override;

    Action click_;
};

/// One of several options of which exactly one is chosen. The first of a group is the one with index 0.
class OptionButton : public Control {
public:
    template <class F>
    using Indexed = IndexedClickEvents<F>;

    template <class F>
    OptionButton(F* form, const wchar_t* name, const Placement& place,
                 std::type_identity_t<IndexedClickEvents<F>> events)
        : OptionButton(form, name, place, Action::Indexed(events), events.Index) {}

    bool Value() const;
    /// Checks or unchecks without running a handler and without touching the others of the group.
    void Value(bool checked);

private:
    OptionButton(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index);
    void OnCommand(WORD notification) override;

    Action click_;
};
