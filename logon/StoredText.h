#pragma once

#include <array>
#include <span>

/// A text of the per-user store in a buffer of its own, wiped at the end: no heap that would keep copies of a password.
class StoredText {
public:
    /// The stored text, zeros inside included; `otherwise` when there is none, or none of at most `Longest` characters.
    StoredText(const wchar_t* section, const wchar_t* key, const wchar_t* otherwise = L"");
    ~StoredText();
    StoredText(const StoredText&) = delete;
    StoredText& operator=(const StoredText&) = delete;

    static constexpr size_t Longest = 1023;

    /// Ended by a zero.
    const wchar_t* Get() const { return characters_.data(); }
    bool IsEmpty() const { return length_ == 0; }
    /// The text as a whole number, 0 when it is none.
    int Number() const;
    /// To be changed in place.
    std::span<wchar_t> Characters() { return {characters_.data(), length_}; }

private:
    bool Read(const wchar_t* section, const wchar_t* key);

    std::array<wchar_t, Longest + 1> characters_{};
    size_t length_ = 0;
};
