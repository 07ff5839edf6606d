#pragma once

#include "ui/Control.h"
#include "ui/Keys.h"
#include "ui/Menu.h"
#include "ui/Twips.h"
#include "win32/Owner.h"
#include "win32/Windows.h"

#include <string>
#include <vector>

class Timer;

/// The frame of a form.
enum class Border {
    Sizable,       ///< resizable, with minimise and maximise boxes; the size in twips is the outer one and the minimum
    Dialog,        ///< fixed; grows by what today's frame is larger than the classic one, so that its contents fit
    Palette,       ///< none: the size in twips is that of the whole drawing area
    SizableDialog, ///< the same, but resizable; the design size is the minimum
};

/// Name (also the window class), outer size in twips (caption and menu bar included) and frame of a form.
struct FormDesign {
    const wchar_t* Name;
    int Width;
    int Height;
    Border Frame = Border::Dialog;
    bool HasCloseBox = true;
};

/// A top-level window that is its own layout table: controls, menus and timers are members of the derived class.
class Form {
public:
    explicit Form(const FormDesign& design);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const wchar_t* Name() const { return design_.Name; }
    HWND Handle() const { return window_; }
    int Dpi() const { return dpi_; }

    /// Creates the hidden window with its controls and runs Form_Load. Throws Error when Windows refuses. What handlers
    /// throw is reported under their names, here and below.
    void Load();
    void Show();
    void Hide();
    /// Makes it the window in use, also while another program's is: after a long call that program may have taken over.
    void ToFront();
    bool Visible() const { return window_ && IsWindowVisible(window_); }
    /// Loads and shows the form and turns a message loop of its own until it is unloaded. The active window of this
    /// program is its owner and stays disabled meanwhile.
    void ShowModal();
    /// Runs Form_Unload and ends the form; its window is destroyed when the running handler has returned.
    void Unload();
    bool Unloaded() const { return unloaded_; }
    /// What the close box does: the Cancel button when there is one, else Unload.
    void CloseAsByUser();

    void Caption(const std::wstring& caption);
    /// The outer size in twips; of a minimised or maximised window the restored one.
    Twips OuterSize() const;
    void OuterSize(int width, int height);
    /// The upper left corner on the screen, in twips.
    Twips Position() const;
    void Position(int left, int top);
    /// The outer size less what today's frame is larger than the classic one: the size that layouts count with.
    Twips LayoutSize() const;
    /// The size of the area inside the frame, in twips.
    Twips InnerSize() const;

    /// The form that owns a window, or null when the window is not one of ours.
    static Form* FromWindow(HWND window);
    /// All loaded forms, oldest first.
    static const std::vector<Form*>& Loaded();
    /// Lets the form below a message use it as a key of its own or of a dialog; true when it was used.
    static bool Translate(MSG& message);
    /// Turns the program's message loop until WM_QUIT; returns its exit code.
    static int RunMessageLoop();

protected:
    /// Runs while the form has no controls yet, as a part of Form_Load. False unloads it as it is.
    virtual bool Form_Initialize() { return true; }
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Deactivate() {}
    /// The close box or Alt+F4.
    virtual void Form_CloseBox() { CloseAsByUser(); }
    /// A key that goes to the form or one of its controls; true when it was used and goes no further.
    virtual bool Form_KeyDown(const KeyPress&) { return false; }
    virtual void Form_Resize() {}
    virtual void Form_Unload() {}
    /// Runs Form_Load once more.
    void LoadAgain();
    /// Puts the window over the middle of a visible window, or of the screen for none, and wholly onto the screen.
    void Center(HWND over);
    /// Messages that only one form cares about; true when handled, with the answer in `result`.
    virtual bool OnMessage(UINT, WPARAM, LPARAM, LRESULT& /*result*/) { return false; }

private:
    friend class Control;
    friend class Menu;
    friend class MenuItem;
    friend class Timer;
    void Register(Control& control) { controls_.push_back(&control); }
    void Register(Menu& menu) { menus_.push_back(&menu); }
    int Register(MenuItem& item);
    int Register(Timer& timer);

    template <class Call>
    bool Guarded(const wchar_t* event, const Call& call) const {
        return Guard::Run(Name(), L"Form", event, call);
    }
    static void Forget(const Form* form);
    void CreateFrame(HWND owner);
    void CreateMenuBar();
    void ApplyFont();
    void ApplyDesignSize();
    void FocusFirst();
    FrameSize ExcessFrame() const;
    Twips DesignSize() const;
    void LimitSize(MINMAXINFO& limits) const;

    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT DispatchCommand(WPARAM wParam, LPARAM lParam);
    void OnActivate(WPARAM wParam);
    void OnDpiChanged(int dpi, const RECT& suggested);
    void OnContextMenu(HWND window, POINT position);
    LRESULT DefaultIdentifier() const;
    static Control* ControlOf(HWND window);
    bool TakesKey(const MSG& message);
    void ModalLoop() const;

    FormDesign design_;
    HWND window_ = nullptr;
    HWND owner_ = nullptr;
    HWND lastFocus_ = nullptr;
    int dpi_ = NormalDpi; // until the window tells
    bool modal_ = false;
    bool unloaded_ = false;
    bool unloading_ = false;
    FontHandle font_;
    std::vector<Control*> controls_;
    std::vector<Menu*> menus_;
    std::vector<MenuItem*> items_;
    std::vector<Timer*> timers_;
};
