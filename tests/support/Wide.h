#pragma once

#include "win32/Windows.h"

#include <doctest/doctest.h>

#include <string>

/// Lets a failed assertion show wide text, as UTF-8.
template <>
struct doctest::StringMaker<std::wstring> {
    static String convert(const std::wstring& text) {
        const int length = static_cast<int>(text.size());
        const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
        std::string bytes(static_cast<size_t>(size), '\0');
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
        return String(bytes.data(), static_cast<String::size_type>(size));
    }
};

template <std::size_t N>
struct doctest::StringMaker<wchar_t[N]> {
    static String convert(const wchar_t (&text)[N]) { return StringMaker<std::wstring>::convert(text); }
};
