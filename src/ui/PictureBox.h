#pragma once

#include "ui/Control.h"
#include "ui/Subclass.h"

/// Handlers of a picture box; those not named stay empty. Each gets the index, or the number of a box that has one.
template <class F>
struct PictureBoxEvents {
    int Index = 0;
    int Number = 0;
    /// Draws into `area` (pixels of the box); `isFocused` tells whether to show the keyboard focus.
    void (F::*Draw)(int number, HDC canvas, const RECT& area, bool isFocused) = nullptr;
    void (F::*Click)(int number) = nullptr;              ///< pressed and released on the box, or Space or Enter
    void (F::*Hover)(int number, bool isOver) = nullptr; ///< the pointer has come or gone
    /// A virtual key code while the box has the focus; true when it was used. Only with this one it is reached by
    /// keyboard, and is a button with its text as name to assistive tools.
    bool (F::*KeyDown)(int number, int key) = nullptr;
};

/// A surface with a picture that its form draws. It can be pressed, hovered over and reached by keyboard.
class PictureBox : public Control, Subclass::Target {
public:
    template <class F>
    using Indexed = PictureBoxEvents<F>;

    template <class F>
    PictureBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<PictureBoxEvents<F>> events)
        : PictureBox(form, name, place,
                     PictureBoxEvents<Form>{events.Index, events.Number, static_cast<Drawing>(events.Draw),
                                            static_cast<Action::Indexed>(events.Click),
                                            static_cast<Hovering>(events.Hover), static_cast<Keys>(events.KeyDown)}) {}
    PictureBox(Form* form, const wchar_t* name, const Placement& place, const PictureBoxEvents<Form>& events);

    void Refresh();
    /// Takes the pointer for gone, until it moves over the box again.
    void EndHover();
    /// Does what a click does.
    void Press() const { Raise(L"Click", click_); }

private:
    using Drawing = void (Form::*)(int, HDC, const RECT&, bool);
    using Hovering = void (Form::*)(int, bool);
    using Keys = bool (Form::*)(int, int);

    void OnCreated() override;
    void OnCommand(WORD notification) override;
    void OnDraw(const DRAWITEMSTRUCT& draw) override;
    LRESULT OnWindowMessage(UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
    bool TakesKey(int key);
    void OnMouseMove();
    void Hover(bool isOver);

    int number_;
    Handler<void, int, HDC, const RECT&, bool> draw_;
    Action click_;
    Handler<void, int, bool> hover_;
    Handler<bool, int, int> keyDown_;
    Subclass subclass_;
    bool isHot_ = false;
};
