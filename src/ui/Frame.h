#pragma once

#include "ui/Control.h"

#include <vector>

/// A captioned frame, or a bare page of a tab control. Its contents are placed relative to it, move with it and are
/// shown and hidden with it.
class Frame : public Control {
public:
    enum class Kind { Captioned, Page };

    Frame(Form* form, const wchar_t* name, const Placement& place, Kind kind = Kind::Captioned)
        : Control(form, name, place,
                  kind == Kind::Captioned ? ControlKind{L"Button", BS_GROUPBOX | WS_GROUP}
                                          : ControlKind{L"Static", SS_LEFT | WS_CLIPSIBLINGS}),
          kind_(kind) {}

    void Move(const Twips& place);
    void Visible(bool visible);

private:
    friend class Control;
    void Contain(Control& content) { contents_.push_back(&content); }

    bool LiesBehind() const override { return kind_ == Kind::Page; }

    Kind kind_;
    std::vector<Control*> contents_;
};
