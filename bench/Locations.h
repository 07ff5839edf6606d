#pragma once

/// The folders that a database may have of its own: keys of the settings file, and of ACT!'s registry.
inline constexpr const char* Locations[] = {
    "Attached Email", "Database", "Document", "Document Template",       "Email Root Folder", "Layout",
    "Macro",          "NetLinks", "Query",    "Report, Label, Envelope", "Synchronize",       "Spelling Dictionary"};
