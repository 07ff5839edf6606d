#pragma once

#include "ui/Events.h"

class Form;

/// A timer of a form. It stands still until it is given an interval.
class Timer {
public:
    template <class F>
    Timer(F* form, const wchar_t* name, void (F::*timer)())
        : Timer(static_cast<Form*>(form), name, Bind(form, timer)) {}
    Timer(Form* form, const wchar_t* name, Action timer);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int Identifier() const { return identifier_; }
    /// Milliseconds between two ticks; 0 stops the timer. The form must be loaded.
    void Interval(unsigned milliseconds);
    bool Running() const { return running_; }
    void Tick() const;

private:
    Form* form_;
    const wchar_t* name_;
    Action timer_;
    int identifier_;
    bool running_ = false;
};
