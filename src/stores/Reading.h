#pragma once

#include "stores/Read.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace IniLib {

/// Where a reading was made. What is built of it is written there and nowhere else.
struct Origin {
    std::wstring Path;
    bool IsThere; ///< false: there is no such file yet, and a change makes it
};

/// One reading of a settings file: all of its values at one moment. Section and key names match without letter case.
class Reading {
public:
    using Values = std::vector<std::pair<std::wstring, std::wstring>>;

    Reading(Origin origin, std::string bytes);

    const Origin& From() const { return origin_; }

    /// A value, cut to what is shown of one; "" when the key is missing.
    std::wstring Value(std::wstring_view section, std::wstring_view key) const;
    /// The value of a key without the cut; nothing when the key is missing. For those who write a long value back and
    /// must not lose its end. (Of a file in UTF-16 the platform reads 32767 bytes.) Throws Error (FileNotAccessible)
    /// when only the platform can read the file and it has changed since.
    std::optional<std::wstring> Whole(std::wstring_view section, std::wstring_view key) const;
    /// Every key of a section with its whole value, in the file's order.
    Values Section(std::wstring_view section) const;
    /// False when none of these words (plain ASCII) stands anywhere in the file, in whatever letter case.
    bool MayHold(std::initializer_list<std::wstring_view> words) const;

private:
    std::optional<std::wstring> AskPlatform(std::wstring_view section, std::wstring_view key) const;
    void RequireUnchanged() const;

    Origin origin_;
    std::string bytes_; ///< kept only of a file that the platform alone understands
    std::wstring text_;
};

/// Reads a settings file. A missing one reads as one without sections, unless it was there in this run before. Waits up
/// to `patience` milliseconds for a file that somebody is writing or replacing at this moment.
Read<Reading> ReadFile(const std::wstring& fileName, unsigned long patience);

/// How long a reading waits that somebody is going to build a change on, in milliseconds.
inline constexpr unsigned long ReadingPatience = 90;

/// Reads the current settings file.
Read<Reading> ReadFile();

} // namespace IniLib
