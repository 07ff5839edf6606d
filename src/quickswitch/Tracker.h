#pragma once

#include "ui/PictureBox.h"

#include <functional>

/// Watches one picture box: tells when the pointer enters and leaves it, and when it is clicked. A tracker that is not
/// attached tells nothing.
class Tracker final : PictureBox::Listener {
public:
    /// Flags of `Reports` and values of the Mouse event.
    static constexpr int Enter = 1;
    static constexpr int Over = 2;
    static constexpr int Leave = 4;

    std::function<void(int action)> Mouse;
    std::function<void()> Click;

    /// Watches a box from now on, another one before included. `reports` chooses the Mouse events.
    void Attach(PictureBox& source, int reports);
    void Detach();

private:
    void Entered() override;
    void Left() override { Report(Leave); }
    void Clicked() override {
        if (Click) Click();
    }
    void Report(int action) const;

    PictureBox* base_ = nullptr;
    int reports_ = 0;
};
