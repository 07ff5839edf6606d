#pragma once

#include "databases/Record.h"

#include <string>

/// What other windows may ask of the main window.
class MainWindow {
public:
    MainWindow() = default;
    virtual ~MainWindow() = default;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Opens a database in ACT! and ends the program, or comes back to the screen with a message. `viewCode` is 0 to 6;
    /// `mainHidden` tells that the main window is not on screen. While ACT! is being started only the name is recorded.
    virtual void Open_DB(const std::wstring& name, short viewCode, bool mainHidden) = 0;
    /// Brings the main window to the screen.
    virtual void ShowMain() = 0;
    /// The number of the selected database in list order, from 0; -1 for none.
    virtual int SelectedIndex() const = 0;
    /// Names the database to select when the list is filled again.
    virtual void SelectedIndex(int index) = 0;
    /// Shows the row of a database anew and selects it, under its present name and with its record.
    virtual void ReplaceRow(const std::wstring& oldName, const std::wstring& name, const DatabaseRecord& record) = 0;
};
