#pragma once

#include "ui/Control.h"

#include <string>

/// A list of lines, one selected at a time. Each line carries a number of the caller's.
class ListBox : public Control {
public:
    template <class F>
    ListBox(F* form, const wchar_t* name, Twips place, void (F::*click)())
        : ListBox(static_cast<Form*>(form), name, place, Bind(form, click)) {}
    ListBox(Form* form, const wchar_t* name, Twips place, Action click);

    void AddItem(const std::wstring& text) { InsertItem(text, -1); }
    /// Inserts before a line; -1 appends.
    void InsertItem(const std::wstring& text, int index);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const;
    std::wstring List(int index) const;
    /// The selected line, from 0; -1 for none. Setting it runs the handler as a click does.
    int ListIndex() const;
    void ListIndex(int index);
    LONG_PTR ItemData(int index) const;
    void ItemData(int index, LONG_PTR datum);

private:
    void OnCommand(WORD notification) override;

    Action click_;
};
