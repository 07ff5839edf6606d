#pragma once

#include "win32/Windows.h"

/// A child window whose messages somebody sees first: until the window ends, or the one who sees them.
class Subclass {
public:
    class Target {
    public:
        /// A message of the window. What is not used goes to Subclass::Default. Handlers are called behind their guard:
        /// nothing may pass through the frames of Windows.
        virtual LRESULT OnWindowMessage(UINT message, WPARAM wParam, LPARAM lParam) noexcept = 0;

    protected:
        ~Target() = default;
    };

    Subclass() = default;
    Subclass(const Subclass&) = delete;
    Subclass& operator=(const Subclass&) = delete;
    ~Subclass() { Detach(); }

    void Attach(HWND window, Target& target);
    /// What the window itself does with a message.
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const;

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void Detach();

    HWND window_ = nullptr;
    WNDPROC original_ = nullptr;
    Target* target_ = nullptr;
};
