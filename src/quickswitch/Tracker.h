#pragma once

#include "ui/PictureBox.h"

/// Handlers of a tracker; each gets the number of its button.
template <class F>
struct TrackerEvents {
    void (F::*Mouse)(int button, int action) = nullptr;
    void (F::*Click)(int button) = nullptr;
};

/// Watches one picture box: tells when the pointer enters and leaves it, and when it is clicked. A tracker that is not
/// attached tells nothing.
class Tracker {
public:
    /// Flags of `reports` and values of the Mouse event.
    static constexpr int Enter = 1;
    static constexpr int Over = 2;
    static constexpr int Leave = 4;

    template <class F>
    Tracker(F* form, int button, std::type_identity_t<TrackerEvents<F>> events)
        : button_(button), mouse_(form, events.Mouse), click_(form, events.Click) {}

    /// Watches a box from now on, another one before included. `reports` chooses the Mouse events.
    void Attach(PictureBox& source, int reports);
    void Detach() { base_ = nullptr; }

    // What the box tells its form, which hands it on.
    void Entered() const;
    void Left() const { Report(Leave); }
    void Clicked() const {
        if (base_) click_(button_);
    }

private:
    void Report(int action) const;

    int button_;
    Handler<void, int, int> mouse_;
    Handler<void, int> click_;
    PictureBox* base_ = nullptr;
    int reports_ = 0;
};
