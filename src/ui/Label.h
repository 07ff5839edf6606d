#pragma once

#include "ui/Control.h"
#include "win32/Owner.h"

/// A text that the user cannot edit. With a handler it can be clicked.
class Label : public Control {
public:
    Label(Form* form, const wchar_t* name, const Twips& place) : Label(form, name, place, Action{}, nullptr) {}
    template <class F>
    Label(F* form, const wchar_t* name, const Twips& place, void (F::*click)())
        : Label(form, name, place, Bind(form, click), nullptr) {}
    /// A label inside a frame.
    Label(Form* form, Frame& container, const wchar_t* name, const Twips& place)
        : Label(form, name, place, Action{}, &container) {}
    /// An element of a control array inside a frame; its handler gets its index.
    template <class F>
    Label(F* form, Frame& container, const wchar_t* name, const Twips& place, int index, void (F::*click)(int))
        : Label(form, name, place, BindElement(form, click, index), &container, index) {}

protected:
    Label(Form* form, const wchar_t* name, const Twips& place, const Action& click, Frame* container, int index = 0);

private:
    void OnCommand(WORD notification) override;

    Action click_;
};

/// A label that looks and acts like a link: underlined, in the system's colour for links, with a hand as pointer.
class LinkLabel : public Label {
public:
    template <class F>
    LinkLabel(F* form, const wchar_t* name, const Twips& place, void (F::*click)()) : Label(form, name, place, click) {}

private:
    HBRUSH OnColor(HDC canvas) override;
    bool OnSetCursor() override;
    void OnFontChanged(const LOGFONTW& font) override;

    FontHandle underlined_;
};

/// A separator line in a system colour (a COLOR_ constant).
class Line : public Control {
public:
    Line(Form* form, const wchar_t* name, const Twips& place, int color)
        : Control(form, name, place, {L"Static", SS_LEFT}), color_(color) {}

private:
    HBRUSH OnColor(HDC) override { return GetSysColorBrush(color_); }

    int color_;
};
