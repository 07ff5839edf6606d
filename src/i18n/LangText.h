#pragma once

#include <array>
#include <cstddef>

/// One text of the user interface in each language, in UTF-8 (the table is half the size that it has in UTF-16).
/// Captions carry the "&" of their access key.
struct LangTextRow {
    int Index;
    const char* English;
    const char* French;
    const char* German;
};

inline constexpr std::size_t LangTextRows = 152;

/// All texts in index order, from 1. Rows that no window uses are empty in every language.
extern const std::array<LangTextRow, LangTextRows> LangTextTable;
