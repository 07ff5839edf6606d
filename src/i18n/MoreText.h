#pragma once

#include <string>

/// Texts for situations that the numbered table knows nothing of.
/// %1 stands for the settings file's path, in `RestoreFailed` for the backup's; %2 in `RestoreBackup` for the backup's
/// date, in `FolderNotWritable` for the menu item.
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
    RestoreNotNeeded,
    CannotRead,
    NotSaved,
    OrderNotSaved,
    PaletteMenu,
    WaitingForAct,
    EditFolder,
};

/// A text in the current language.
std::wstring Translated(MoreText text);
