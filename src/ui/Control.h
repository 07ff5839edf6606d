#pragma once

#include "ui/Events.h"
#include "ui/Guard.h"
#include "ui/Twips.h"
#include "win32/Windows.h"

#include <string>
#include <string_view>
#include <type_traits>

class Form;
class Frame;

/// What kind of system window a control is.
struct ControlKind {
    const wchar_t* ClassName;
    DWORD Style;
    DWORD ExStyle = 0;
};

/// Where a control lies: in twips, relative to the form or to the frame that contains it.
struct Placement {
    Placement() = default;
    Placement(int left, int top, int width, int height) : Place{left, top, width, height} {}
    Placement(const Twips& place, Frame* container = nullptr) : Place(place), Container(container) {}

    Twips Place{};
    Frame* Container = nullptr;
};

/// A place inside a frame.
inline Placement In(Frame& container, const Twips& place) { return {place, &container}; }

/// One control of a form: the system's own window plus its reflected messages and a few verbs. Declared as a member of
/// its form; its window lives from the form's Load to its end. Order of declaration is Tab order.
class Control {
public:
    Control(Form* form, const wchar_t* name, const Placement& place, const ControlKind& kind, int index = 0);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    HWND Handle() const { return window_; }
    const wchar_t* Name() const { return name_; }
    int Index() const { return index_; }

    std::wstring Text() const;
    void Text(std::wstring_view text);
    /// What assistive tools call the control when neither its text nor a label before it names it.
    const std::wstring& AccessibleName() const { return accessibleName_; }
    void AccessibleName(const std::wstring& name);
    bool Enabled() const;
    void Enabled(bool enabled);
    void Visible(bool visible);
    void SetFocus();

    /// The place relative to the form, or to the frame that contains the control.
    const Twips& Place() const { return place_; }
    void Move(const Twips& place);

protected:
    Form& Owner() const { return *form_; }
    /// Runs a handler behind the outermost guard: whatever it throws is reported under "form: Sub name_event".
    /// Does nothing while a call into ACT! is running and once the form is unloaded.
    void Raise(const wchar_t* event, const Action& action) const {
        if (action) RaiseCall(event, action);
    }
    /// The same for anything that can be called.
    template <class Call>
    void RaiseCall(const wchar_t* event, const Call& call) const {
        if (TakesEvents()) Guard::Run(OwnerName(), name_, event, call);
    }
    /// The place of the control's window relative to the form.
    virtual Twips WindowPlace() const;

private:
    friend class Form;
    friend class Frame;
    bool TakesEvents() const;
    const wchar_t* OwnerName() const;
    /// The control's command identifier.
    virtual int Identifier(int ordinal) const { return ordinal; }
    virtual void OnCreated() {}
    /// True for a surface that other controls lie on.
    virtual bool LiesBehind() const { return false; }
    virtual void OnCommand(WORD) {}
    virtual LRESULT OnNotify(NMHDR&) { return 0; }
    virtual void OnContextMenu(POINT) {}
    /// A line of a list box is being dragged; the answer as for DRAGLISTMSGSTRING.
    virtual LRESULT OnDragList(const DRAGLISTINFO&) { return 0; }
    /// Paints a control that draws itself.
    virtual void OnDraw(const DRAWITEMSTRUCT&) {}
    /// Colours of a static control; null for the system's.
    virtual HBRUSH OnColor(HDC) { return nullptr; }
    /// True when the control has set a pointer of its own.
    virtual bool OnSetCursor() { return false; }
    /// The control is about to get another place or size.
    virtual void OnMove() {}
    virtual void OnFontChanged(const LOGFONTW&) {}
    /// The form has come to another resolution; `dpi` is the one before.
    virtual void OnDpiChanged(int /*dpi*/) {}
    void Create(int ordinal);
    struct PixelPlace {
        int Left, Top, Width, Height;
    };
    PixelPlace WindowPixels() const;
    void PlaceWindow() const;

    Form* form_;
    const wchar_t* name_;
    Twips place_;
    Frame* container_;
    ControlKind kind_;
    int index_;
    HWND window_ = nullptr;
    std::wstring accessibleName_;
};
