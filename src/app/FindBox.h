#pragma once

#include "ui/Label.h"
#include "ui/ListView.h"
#include "ui/TextBox.h"

/// The box above the list that narrows it to the rows with a certain text.
class FindBox {
public:
    static constexpr int Height = 405; ///< twips that the list gives up for it

    FindBox(Label& label, TextBox& box, ListView& list) : label_(label), box_(box), list_(list) {}

    bool IsOpen() const { return isOpen_; }
    /// Both have the form laid out anew when something changes.
    void Open();
    void Close();
    /// Shows the rows that have the text in one of their cells; all of them while it is empty.
    void Narrow();
    /// Up and Down choose a row without leaving the box; true when the key was one of these.
    bool TakesKey(int key) const;

private:
    void Toggle();

    Label& label_;
    TextBox& box_;
    ListView& list_;
    bool isOpen_ = false;
};
