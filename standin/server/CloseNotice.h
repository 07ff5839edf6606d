#pragma once

#include "win32/Windows.h"

#include <vector>

/// The question that ACT! puts to every attached event component before its user may close it.
class CloseNotice {
public:
    enum class Outcome { Waiting, MayClose, Refused };

    enum class Urgency { WhenIdle, InCalls };

    /// Asks every component; they answer `window` with Protocol::Answer(). In a client that waits for a call of its
    /// own, only a sent question arrives; neither kind waits for the client.
    Outcome Ask(HWND window, Urgency urgency);
    /// Takes an answer.
    Outcome Take(HWND component, bool mayClose);
    /// To be called now and then while waiting: forgets components that are gone and refuses when the time is over
    /// ([Presets] CloseTimeout in milliseconds, else a minute).
    Outcome Check();

    bool IsOpen() const { return open_; }
    static size_t AttachedComponents();

private:
    Outcome Finish(bool mayClose, const wchar_t* why);

    bool open_ = false;
    DWORD since_ = 0;
    std::vector<HWND> waitingFor_;
};
