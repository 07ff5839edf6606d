#include "ui/Frame.h"

void Frame::Move(const Twips& place) {
    Control::Move(place);
    for (const Control* content : contents_) content->PlaceWindow();
}
