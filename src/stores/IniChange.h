#pragma once

#include "stores/Reading.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace IniLib {

/// What the platform reads back whole of a line, key and value together, in bytes.
inline constexpr size_t LongestLine = 32766;

/// Writes and removals that belong together. They are collected, reach the file in one step and in their order, and
/// leave the bytes that the platform's calls would leave one after another. Readings meanwhile see the file as it is.
class Change {
public:
    /// Of the current settings file, or of another one.
    explicit Change(const std::wstring& fileName);
    Change();
    /// Built of what was read: refused when another settings file is the current one by then, and when the file was
    /// not there and has come since.
    explicit Change(Origin origin);

    void WriteKeyValue(std::wstring_view section, std::wstring_view key, std::wstring_view value);
    /// Writes a section that is not there yet. The platform takes the whole file apart for each call, so this is
    /// quicker than key by key.
    void WriteSection(std::wstring_view section, const Reading::Values& values);
    void DeleteKey(std::wstring_view section, std::wstring_view key);
    void DeleteSection(std::wstring_view section);
    /// Has steps added when the change is made, of the file as it is then, while other writers are kept out: for lists,
    /// of which others change other elements. False: the change is not made. Called again when a try has failed.
    using Build = std::function<bool(const Reading& stored, Change& change)>;
    void Compose(Build build) { builds_.push_back(std::move(build)); }
    /// Lets Commit fail: a part of the change cannot be told.
    void Refuse() { isRefused_ = true; }
    /// Makes no backup before: of a file that holds what nobody else may see.
    void WithoutBackup() { hasBackup_ = false; }

    /// Makes all of it or nothing; false when nothing was made. Nothing is made with an empty section name, a key and
    /// value of more than LongestLine together, or a file that is read-only, locked by another writer for long, or not
    /// to be taken at its word (FileHealth). Waits up to half a second. The first change of a run leaves a backup.
    bool Commit() const;

private:
    struct Step {
        std::string section;
        std::optional<std::string> key, value; ///< none: the section, or the key, goes; no key: a section's lines
    };
    void Add(std::wstring_view section, std::optional<std::string> key, std::optional<std::string> value);
    /// These give an error code.
    unsigned long Make(const std::wstring& copy, bool isNew) const;
    unsigned long Refusal(const std::wstring& copy, bool isNew) const;
    static unsigned long MakeStep(const Step& step, const std::wstring& copy);

    std::optional<Origin> origin_;
    std::wstring fileName_;
    std::vector<Step> steps_;
    std::vector<Build> builds_;
    bool isRefused_ = false;
    bool hasBackup_ = true;
};

} // namespace IniLib
