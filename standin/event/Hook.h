#pragma once

#include "win32/Windows.h"

/// A component's tie to the running stand-ins: a hidden window on the thread that made the component. Their question
/// arrives there as a posted message, so a client that does not answer never blocks them.
class Hook {
public:
    class Listener {
    public:
        virtual void UserWantsToClose() = 0;

    protected:
        ~Listener() = default;
    };

    explicit Hook(Listener& listener);
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;
    ~Hook();

    /// Answers the question that is open; does nothing when none is.
    void Answer(bool mayClose);

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    Listener& listener_;
    HWND window_ = nullptr;
    HWND asker_ = nullptr;
};
