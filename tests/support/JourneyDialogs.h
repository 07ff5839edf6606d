#pragma once

#include "support/Journey.h"

#include <string>
#include <utility>
#include <vector>

/// The dialogs about the list of databases, worked as by their user. A running test ends when a step has no effect.
namespace JourneyDialogs {

/// What stands in text boxes, by the boxes' names.
using Texts = std::vector<std::pair<const wchar_t*, std::wstring>>;

/// Starts ACT! with a database open that is not in the list.
void StartActElsewhere(Journey& journey);

/// Chooses a menu item of the main window, or clicks a button, and returns the dialog that opens.
HWND OpenByMenu(const Journey& journey, const wchar_t* item, const wchar_t* dialogClass);
HWND OpenByButton(const Journey& journey, HWND form, const wchar_t* button, const wchar_t* dialogClass);

void Type(HWND form, const Texts& texts);
/// Clicks a button and waits until the dialog is gone. The window below it may still have work to do.
void Leave(HWND dialog, const wchar_t* button);

HWND ListOf(HWND mainWindow);
/// A place in a row of that list, and the selected row.
POINT MiddleOfRow(HWND list, int row);
int SelectedRow(HWND list);

} // namespace JourneyDialogs
