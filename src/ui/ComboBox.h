#pragma once

#include "ui/Control.h"

#include <string>

/// A drop-down list: the user picks one of its entries and cannot type.
class ComboBox : public Control {
public:
    ComboBox(Form* form, const wchar_t* name, const Twips& place, const Action& click = {}, Frame* container = nullptr,
             int index = 0);
    /// A combo box inside a frame, with a handler for a choice by the user.
    template <class F>
    ComboBox(F* form, Frame& container, const wchar_t* name, const Twips& place, void (F::*click)())
        : ComboBox(form, name, place, Bind(form, click), &container) {}
    /// An element of a control array inside a frame; its handler gets its index.
    template <class F>
    ComboBox(F* form, Frame& container, const wchar_t* name, const Twips& place, int index, void (F::*click)(int))
        : ComboBox(form, name, place, BindElement(form, click, index), &container, index) {}

    void AddItem(const std::wstring& text);
    /// The selected entry, from 0; -1 for none.
    int ListIndex() const;
    void ListIndex(int index);
    /// Selects the first entry equal to the text, letter case included; none when there is no such entry.
    void Select(const std::wstring& text);
    /// The selected entry's text, "" for none.
    std::wstring SelectedText() const;

private:
    Twips WindowPlace() const override;
    void OnCommand(WORD notification) override;
    std::wstring Item(int index) const;

    Action click_;
};
