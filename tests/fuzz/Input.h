#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// What the fuzzer gives, taken in portions. One byte makes one character, so that separators and digits are met often.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

    /// The next byte; zero behind the end.
    std::uint8_t Number() { return next_ == end_ ? std::uint8_t{0} : *next_++; }
    /// Up to the next line end.
    std::wstring Line() {
        std::wstring line;
        while (next_ != end_) {
            const std::uint8_t byte = *next_++;
            if (byte == '\n') break;
            line += static_cast<wchar_t>(byte);
        }
        return line;
    }

private:
    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

/// A property that does not hold ends the run; the fuzzer keeps its input.
inline void Require(bool holds) {
    if (!holds) __builtin_trap();
}
