#pragma once

#include "ui/Control.h"

#include <vector>

/// A captioned frame. Its contents are placed relative to it and move with it.
class Frame : public Control {
public:
    Frame(Form* form, const wchar_t* name, Twips place)
        : Control(form, name, place, {L"Button", BS_GROUPBOX | WS_GROUP}) {}

    void Move(const Twips& place);

private:
    friend class Control;
    void Contain(Control& content) { contents_.push_back(&content); }

    std::vector<Control*> contents_;
};
