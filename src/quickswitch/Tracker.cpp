#include "quickswitch/Tracker.h"

void Tracker::Attach(PictureBox& source, int reports) {
    base_ = &source;
    reports_ = reports;
}

void Tracker::Entered() const {
    Report(Enter);
    Report(Over);
}

void Tracker::Report(int action) const {
    if (base_ && (reports_ & action) != 0) mouse_(button_, action);
}
