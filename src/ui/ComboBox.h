#pragma once

#include "ui/Control.h"

#include <string>

/// A drop-down list: the user picks one of its entries and cannot type.
class ComboBox : public Control {
public:
    ComboBox(Form* form, const wchar_t* name, Twips place);

    void AddItem(const std::wstring& text);
    /// The selected entry, from 0; -1 for none.
    int ListIndex() const;
    void ListIndex(int index);

private:
    Twips WindowPlace() const override;
};
