#pragma once

#include "ui/Events.h"

#include <type_traits>

class Form;

/// A timer of a form. It stands still until it is given an interval.
class Timer {
public:
    template <class F>
    struct Events {
        void (F::*Timer)() = nullptr; ///< the interval is over
    };

    template <class F>
    Timer(F* form, const wchar_t* name, std::type_identity_t<Events<F>> events)
        : Timer(form, name, static_cast<Action::Plain>(events.Timer)) {}
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    int Identifier() const { return identifier_; }
    /// Milliseconds between two ticks; 0 stops the timer. The form must be loaded.
    void Interval(unsigned milliseconds);
    void Tick() const;

private:
    Timer(Form* form, const wchar_t* name, Action::Plain timer);

    Form* form_;
    const wchar_t* name_;
    Action timer_;
    int identifier_;
};
