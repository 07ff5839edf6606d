#pragma once

#include "program/MainWindow.h"

/// The main window as dialogs and the palette see it.
class FakeMainWindow : public MainWindow {
public:
    explicit FakeMainWindow(int row = 0) : Row(row) {}
    void Open_DB(const std::wstring& name, short viewCode, bool mainHidden) override {
        Opened += name + L"/" + std::to_wstring(viewCode) + (mainHidden ? L"/hidden;" : L"/shown;");
    }
    void ShowMain() override { ++Shown; }
    int SelectedIndex() const override { return Row; }
    void SelectedIndex(int index) override { Row = index; }
    void ReplaceRow(const std::wstring&, const std::wstring& name, const DatabaseRecord&) override { Replaced = name; }

    int Row;
    int Shown = 0;
    std::wstring Opened, Replaced;
};
