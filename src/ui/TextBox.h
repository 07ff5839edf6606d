#pragma once

#include "ui/Control.h"

/// A box for one line of text; a notice is several lines to read, select and copy, without a border.
class TextBox : public Control {
public:
    enum class Kind { Plain, Password, Notice };

    template <class F>
    struct Events {
        void (F::*Change)() = nullptr; ///< the text has changed
    };

    template <class F>
    TextBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<Events<F>> events = {},
            Kind kind = Kind::Plain)
        : TextBox(form, name, place, kind, static_cast<Action::Plain>(events.Change)) {}

    void SelectAll();

private:
    TextBox(Form* form, const wchar_t* name, const Placement& place, Kind kind, Action::Plain change);
    void OnCreated() override;
    void OnCommand(WORD notification) override;

    Action change_;
};
