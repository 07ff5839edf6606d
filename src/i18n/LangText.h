#pragma once

#include <array>
#include <cstddef>

/// One text of the user interface in each language. Captions carry the "&" of their access key.
struct LangTextRow {
    int Index;
    const wchar_t* English;
    const wchar_t* French;
    const wchar_t* German;
};

inline constexpr std::size_t LangTextRows = 152;

/// All texts in index order, from 1. Rows that no window uses are empty in every language.
extern const std::array<LangTextRow, LangTextRows> LangTextTable;
