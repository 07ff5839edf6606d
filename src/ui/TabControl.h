#pragma once

#include "ui/Control.h"
#include "ui/Keys.h"

#include <string>

/// A row of tabs. Showing the page that belongs to the selected one is up to its form.
class TabControl : public Control {
public:
    template <class F>
    struct Events {
        void (F::*Click)(int previousTab) = nullptr; ///< another tab is selected
    };

    template <class F>
    TabControl(F* form, const wchar_t* name, const Placement& place, std::type_identity_t<Events<F>> events)
        : TabControl(form, name, place, Handler<void, int>{form, events.Click}) {}

    void AddTab(const std::wstring& caption);
    /// The selected tab, from 0.
    int Tab() const { return tab_; }
    /// Selects a tab and runs the handler as a click does; the tab that is selected already runs nothing.
    void Tab(int tab);
    /// Goes to the next tab by Ctrl+Tab, to the one before by Ctrl+Shift+Tab; true when the key was one of these.
    bool TakesKey(const KeyPress& press);

private:
    TabControl(Form* form, const wchar_t* name, const Placement& place, const Handler<void, int>& click);
    LRESULT OnNotify(NMHDR& header) override;
    bool LiesBehind() const override { return true; }

    Handler<void, int> click_;
    int tab_ = 0;
};
