#pragma once

#include "ui/Control.h"

/// A box for one line of text; a notice is several lines to read, select and copy, without a border.
class TextBox : public Control {
public:
    enum class Kind { Plain, Password, Notice };

    TextBox(Form* form, const wchar_t* name, const Twips& place, Kind kind = Kind::Plain)
        : TextBox(form, name, place, kind, nullptr) {}
    TextBox(Form* form, Frame& container, const wchar_t* name, const Twips& place, Kind kind = Kind::Plain)
        : TextBox(form, name, place, kind, &container) {}

    /// With a handler that runs whenever the text changes.
    template <class F>
    TextBox(F* form, const wchar_t* name, const Twips& place, void (F::*change)()) : TextBox(form, name, place) {
        change_ = Bind(form, change);
    }

    void SelectAll();

private:
    TextBox(Form* form, const wchar_t* name, const Twips& place, Kind kind, Frame* container);
    void OnCreated() override;
    void OnCommand(WORD notification) override;

    Action change_;
};
