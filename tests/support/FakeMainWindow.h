#pragma once

#include "program/MainWindow.h"

/// The main window as dialogs see it.
class FakeMainWindow : public MainWindow {
public:
    explicit FakeMainWindow(int row = 0) : Row(row) {}
    void Open_DB(const std::wstring& name, short, bool) override { Opened = name; }
    void ShowMain() override { IsShown = true; }
    int SelectedIndex() const override { return Row; }
    void SelectedIndex(int index) override { Row = index; }
    void ReplaceRow(const std::wstring& name, const DatabaseRecord&) override { Replaced = name; }

    int Row;
    bool IsShown = false;
    std::wstring Opened, Replaced;
};
