#pragma once

#include "ui/Control.h"

#include <string>
#include <type_traits>

/// Handlers of a list box; those not named stay empty.
template <class F>
struct ListBoxEvents {
    void (F::*Click)() = nullptr;
    void (F::*RightClick)(POINT) = nullptr;      ///< right button, Menu key or Shift+F10; where a menu is to come up
    void (F::*Drop)(int from, int to) = nullptr; ///< a line was dragged to the place of another
};

/// A list of lines, one selected at a time. Each line carries a number of the caller's.
class ListBox : public Control {
public:
    template <class F>
    ListBox(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<ListBoxEvents<F>> events)
        : ListBox(static_cast<Form*>(form), name, place) {
        click_ = {form, static_cast<Action::Plain>(events.Click)};
        rightClick_ = {form, events.RightClick};
        drop_ = {form, events.Drop};
    }

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
    ListBox(Form* form, const wchar_t* name, const Placement& place);
    void OnCreated() override;
    void OnCommand(WORD notification) override;
    void OnContextMenu(POINT position) override;
    LRESULT OnDragList(const DRAGLISTINFO& drag) override;
    int LineAt(POINT position, bool scrolls) const;
    int DropLine(POINT position) const;
    void ClearMark() const;

    Action click_;
    Handler<void, POINT> rightClick_;
    Handler<void, int, int> drop_;
    int dragged_ = -1;
};
