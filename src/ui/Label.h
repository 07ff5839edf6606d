#pragma once

#include "ui/Control.h"
#include "win32/Owner.h"

/// A text that the user cannot edit. With a handler it can be clicked.
class Label : public Control {
public:
    template <class F>
    using Indexed = IndexedClickEvents<F>;

    template <class F>
    Label(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<ClickEvents<F>> events = {})
        : Label(form, name, place, Action::Plain(events)) {}
    template <class F>
    Label(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<IndexedClickEvents<F>> events)
        : Label(form, name, place, Action::Indexed(events), events.Index) {}

private:
    Label(Form* form, const wchar_t* name, const Placement& place, Action::Plain click);
    Label(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index);
    void OnCommand(WORD notification) override;

    Action click_;
};

/// A label that looks and acts like a link: underlined, in the system's colour for links, with a hand as pointer.
class LinkLabel : public Label {
public:
    using Label::Label;

private:
    HBRUSH OnColor(HDC canvas) override;
    bool OnSetCursor() override;
    void OnFontChanged(const LOGFONTW& font) override;

    FontHandle underlined_;
};

/// A separator line in a system colour (a COLOR_ constant).
class Line : public Control {
public:
    Line(Form* form, const wchar_t* name, const Placement& place, int color)
        : Control(form, name, place, {L"Static", SS_LEFT}), color_(color) {}

private:
    HBRUSH OnColor(HDC) override { return GetSysColorBrush(color_); }

    int color_;
};
