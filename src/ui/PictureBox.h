#pragma once

#include "ui/Control.h"

#include <functional>
#include <utility>

/// A surface with a picture that its form draws. It can be pressed, hovered over and reached by keyboard; to assistive
/// tools it is a button with its text as name.
class PictureBox : public Control {
public:
    /// Draws into `area` (pixels of the box); `isFocused` tells whether to show the keyboard focus.
    using Draw = std::function<void(HDC canvas, const RECT& area, bool isFocused)>;
    /// What happens to the box. Empty ones are ignored.
    struct Events {
        std::function<void()> MouseMove;  ///< the pointer is over the box
        std::function<void()> MouseLeave; ///< it has left, or the mouse belongs to somebody else now
        std::function<void()> Click;      ///< pressed and released on the box, or Space or Enter
    };

    /// A picture to look at, in a frame or not.
    PictureBox(Form* form, const wchar_t* name, Twips place, Draw draw);
    PictureBox(Form* form, Frame& container, const wchar_t* name, Twips place, int index, Draw draw);
    /// A picture to press. `keyDown` gets virtual key codes that move between pictures; true when it used one.
    PictureBox(Form* form, const wchar_t* name, Twips place, Draw draw, std::function<bool(int key)> keyDown);

    void Listen(Events events) { events_ = std::move(events); }
    void Refresh();
    /// Does what a click does.
    void Press() const { Tell(L"Click", events_.Click); }

private:
    void OnCreated() override;
    void OnCommand(WORD notification) override;
    void OnDraw(const DRAWITEMSTRUCT& draw) override;
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    void OnMouseMove();
    void Tell(const wchar_t* event, const std::function<void()>& handler) const {
        if (handler) RaiseCall(event, handler);
    }

    Draw draw_;
    std::function<bool(int)> keyDown_;
    Events events_;
    WNDPROC original_ = nullptr;
    bool isHot_ = false;
};
