#include "quickswitch/Tracker.h"

#include <utility>

void Tracker::Attach(PictureBox& source, int reports) {
    Detach();
    base_ = &source;
    reports_ = reports;
    source.Listen({.MouseMove =
                       [this] {
                           Report(Enter);
                           Report(Over);
                       },
                   .MouseLeave = [this] { Report(Leave); },
                   .Click =
                       [this] {
                           if (Click) Click();
                       }});
}

void Tracker::Detach() {
    if (PictureBox* base = std::exchange(base_, nullptr)) base->Listen({});
}

void Tracker::Report(int action) const {
    if ((reports_ & action) != 0 && Mouse) Mouse(action);
}
