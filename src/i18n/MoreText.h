#pragma once

#include <string>

/// Texts for situations that the numbered table knows nothing of.
/// In `RestoreBackup` %1 stands for the settings file's path and %2 for the backup's date, in `RestoreFailed` %1 for
/// the backup's path; in `FolderNotWritable` %1 for the settings file's path and %2 for the menu item.
enum class MoreText {
    ListTooLong,
    WhatThisIs,
    RestoreBackup,
    RestoreFailed,
    ListMerged,
    Duplicate,
    UndoRemoval,
    KeyInsert,
    KeyDelete,
    KeyCtrl,
    KeyUp,
    KeyDown,
    Find,
    OpenInAct,
    FileMissing,
    FolderNotWritable,
};

/// A text in the current language.
std::wstring Translated(MoreText text);
