#pragma once

#include <string>

/// Texts for situations that the numbered table knows nothing of.
/// %1 stands for the settings file's path, in `RestoreFailed` for the backup's, in `NothingToImport` for another
/// file's, in `CopyOf` for a date, in `NotOffered` for a number, in `EmptyList` for a menu; %2 in `RestoreBackup` for
/// the backup's date, in `FolderNotWritable` and `EmptyList` for the menu item.
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
    EmptyList,
    AddOpenDatabase,
    NoOpenDatabase,
    Import,
    ChooseSettingsFile,
    ToImport,
    CopyOf,
    AlreadyListed,
    NotOffered,
    NothingToImport,
    UndoImport,
    CheckList,
    Checking,
    NothingMissing,
    SomeMissing,
    WhatIsMissing,
    State,
    Missing,
    NoAnswer,
    Copy,
};

/// A text in the current language.
std::wstring Translated(MoreText text);
