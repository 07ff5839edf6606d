#include "ui/Frame.h"

void Frame::Move(const Twips& place) {
    if (place == Place()) return;
    Control::Move(place);
    for (const Control* content : contents_) content->PlaceWindow();
}

void Frame::Visible(bool visible) {
    Control::Visible(visible);
    for (Control* content : contents_) content->Visible(visible);
}
