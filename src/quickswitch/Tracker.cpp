#include "quickswitch/Tracker.h"

#include <utility>

void Tracker::Attach(PictureBox& source, int reports) {
    Detach();
    base_ = &source;
    reports_ = reports;
    source.Listen(this);
}

void Tracker::Detach() {
    if (PictureBox* base = std::exchange(base_, nullptr)) base->Listen(nullptr);
}

void Tracker::Entered() {
    Report(Enter);
    Report(Over);
}

void Tracker::Report(int action) const {
    if ((reports_ & action) != 0 && Mouse) Mouse(action);
}
