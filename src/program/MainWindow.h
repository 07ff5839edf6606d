#pragma once

#include <string>

/// What other windows may ask of the main window.
class MainWindow {
public:
    MainWindow() = default;
    virtual ~MainWindow() = default;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// The number of the selected database in list order, from 0; -1 for none.
    virtual int SelectedIndex() const = 0;
    /// Names the database to select when the list is filled again.
    virtual void SelectedIndex(int index) = 0;
    /// Shows the selected row anew, under the given friendly name and with that database's record.
    virtual void ReplaceRow(const std::wstring& name) = 0;
};
