#pragma once

#include "ui/Control.h"

#include <string>

/// A drop-down list: the user picks one of its entries and cannot type.
class ComboBox : public Control {
public:
    template <class F>
    using Indexed = IndexedClickEvents<F>;

    /// A click is a choice by the user.
    template <class F>
    ComboBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<ClickEvents<F>> events = {})
        : ComboBox(form, name, place, Action::Plain(events)) {}
    template <class F>
    ComboBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<IndexedClickEvents<F>> events)
        : ComboBox(form, name, place, Action::Indexed(events), events.Index) {}

    void AddItem(const std::wstring& text);
    /// The selected entry, from 0; -1 for none.
    int ListIndex() const;
    void ListIndex(int index);
    /// Selects the first entry equal to the text, letter case included; none when there is no such entry.
    void Select(const std::wstring& text);
    /// The selected entry's text, "" for none.
    std::wstring SelectedText() const;

private:
    ComboBox(Form* form, const wchar_t* name, const Placement& place, Action::Plain click);
    ComboBox(Form* form, const wchar_t* name, const Placement& place, Action::Indexed click, int index);
    Twips WindowPlace() const override;
    void OnCommand(WORD notification) override;
    std::wstring Item(int index) const;

    Action click_;
};
