#pragma once

#include "ui/Control.h"

/// A surface with a picture that its form draws. It can be pressed, hovered over and reached by keyboard; to assistive
/// tools it is a button with its text as name.
class PictureBox : public Control {
public:
    /// Draws picture `number` into `area` (pixels of the box); `isFocused` tells whether to show the keyboard focus.
    template <class F>
    using Draw = void (F::*)(int number, HDC canvas, const RECT& area, bool isFocused);

    /// Who is told what happens to the box.
    class Listener {
    public:
        virtual ~Listener() = default;
        virtual void Entered() = 0; ///< the pointer is over the box
        virtual void Left() = 0;    ///< it has left, or the mouse belongs to somebody else now
        virtual void Clicked() = 0; ///< pressed and released on the box, or Space or Enter
    };

    /// A picture to look at, in a frame or not.
    template <class F>
    PictureBox(F* form, const wchar_t* name, const Twips& place, Draw<F> draw)
        : PictureBox(form, name, place, {L"Static", SS_OWNERDRAW}, nullptr, 0, {form, draw}) {}
    template <class F>
    PictureBox(F* form, Frame& container, const wchar_t* name, const Twips& place, int number, Draw<F> draw,
               void (F::*click)(int number) = nullptr)
        : PictureBox(form, name, place, {L"Static", SS_OWNERDRAW | (click ? SS_NOTIFY : 0UL)}, &container, number,
                     {form, draw}) {
        click_ = {form, click};
    }
    /// A picture to press. `keyDown` gets virtual key codes that move between pictures; true when it used one.
    template <class F>
    PictureBox(F* form, const wchar_t* name, const Twips& place, int number, Draw<F> draw,
               bool (F::*keyDown)(int number, int key))
        : PictureBox(form, name, place, {L"Button", BS_OWNERDRAW | WS_TABSTOP}, nullptr, 0, {form, draw}) {
        number_ = number;
        keyDown_ = {form, keyDown};
    }

    /// One listener at a time; null for none.
    void Listen(Listener* listener) { listener_ = listener; }
    void Refresh();
    /// Takes the pointer for gone, until it moves over the box again.
    void EndHover();
    /// Does what a click does.
    void Press() const { Tell(L"Click", &Listener::Clicked); }

private:
    using Drawing = Handler<void, int, HDC, const RECT&, bool>;

    PictureBox(Form* form, const wchar_t* name, const Twips& place, const ControlKind& kind, Frame* container,
               int number, const Drawing& draw);
    void OnCreated() override;
    void OnCommand(WORD notification) override;
    void OnDraw(const DRAWITEMSTRUCT& draw) override;
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    void OnMouseMove();
    void Tell(const wchar_t* event, void (Listener::*told)()) const;

    int number_;
    Drawing draw_;
    Handler<bool, int, int> keyDown_;
    Handler<void, int> click_;
    Listener* listener_ = nullptr;
    WNDPROC original_ = nullptr;
    bool isHot_ = false;
};
