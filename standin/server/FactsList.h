#pragma once

#include "win32/Windows.h"

/// Fills a two-column list view with what ACT! would show: database, user, view, layouts, folders and commands.
void FillFacts(HWND list);

/// Puts a row into a list view: one text per column. A negative place appends.
void SetRow(HWND list, int row, const wchar_t* const* texts, int count);
