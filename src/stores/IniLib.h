#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The settings file: an INI text file in the ANSI code page. Every call opens and closes it; nothing is cached.
///
/// A `fileName` that is empty is set to the current settings file's path, in the caller's own variable; the overloads
/// without one always mean the current settings file. An empty section name is never passed on to the platform: such a
/// read yields its default, such a write does nothing and fails.
namespace IniLib {

/// How much of a value is shown, in bytes of the ANSI code page, and that much of a value.
inline constexpr size_t ShownBytes = 998;
std::wstring Shown(const std::wstring& value);

/// Full path of the current settings file; empty until it is set.
const std::wstring& SettingsFile();
void SettingsFile(std::wstring path);

/// The value of a key, cut to 998 bytes; `defaultText` when the key is missing or empty. For the value kinds "Numeric"
/// and "Boolean" a value that is no number in the user's locale is replaced by `replacement` unless that is empty.
/// An error is reported to the user and gives the default.
std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText,
                         const std::wstring& valueKind, const std::wstring& replacement, std::wstring& fileName);
std::wstring GetKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& defaultText = {});

/// The value of a key without the cut; "" when missing. For those who write a long value back and must not lose its
/// end. (Of a file in UTF-16 the platform reads 32767 bytes.)
std::wstring GetWholeValue(const std::wstring& section, const std::wstring& key,
                           const std::wstring& fileName = SettingsFile());

/// False when none of these words (plain ASCII) stands anywhere in the settings file, in whatever letter case. One
/// reading of the whole file instead of one for each section.
bool MayHold(std::initializer_list<std::wstring_view> words);

/// The names of a section's keys in the file's order, a zero behind each.
std::wstring KeyNames(const std::wstring& section);

/// Every key of a section with its whole value, in the file's order.
std::vector<std::pair<std::wstring, std::wstring>> ReadSection(const std::wstring& section);

/// Writes a value, or removes a key or a section with its keys, as a Change of one step. False when it could not be
/// made; the file is as it was then. A blank at either end of a value and quotes around it survive.
bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value,
                   std::wstring& fileName);
bool WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value);
bool DeleteKey(const std::wstring& section, const std::wstring& key, std::wstring& fileName);
bool DeleteKey(const std::wstring& section, const std::wstring& key);
bool DeleteSection(const std::wstring& section, std::wstring& fileName);
bool DeleteSection(const std::wstring& section);

/// The names of the file's sections, as many as fit into 998 bytes. An error is reported to the user.
std::vector<std::wstring> Extract_Sections(std::wstring& fileName);
std::vector<std::wstring> Extract_Sections();

/// Writes and removals that belong together. They are collected, reach the file in one step and in their order, and
/// leave the bytes that the platform's calls would leave one after another. Readings meanwhile see the file as it is.
class Change {
public:
    /// Of the current settings file, or of another one.
    explicit Change(const std::wstring& fileName = SettingsFile());

    void WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value);
    /// Writes what `edit` makes of the whole value ("" when missing) as it stands when the change is made, while other
    /// writers are kept out; nothing when it gives nothing. For lists, of which others change other elements. `edit`
    /// may be called again after a failure.
    using Edit = std::function<std::optional<std::wstring>(const std::wstring& whole)>;
    void EditKeyValue(const std::wstring& section, const std::wstring& key, Edit edit);
    void DeleteKey(const std::wstring& section, const std::wstring& key);
    void DeleteSection(const std::wstring& section);
    /// Lets Commit fail: a part of the change cannot be told.
    void Refuse() { isRefused_ = true; }
    /// Makes all of it or nothing; false when nothing was made. Nothing is made with an empty section name, a key and
    /// value of more than 32766 bytes together, a file that is read-only, locked by another writer for long, or not to
    /// be trusted (FileHealth). Waits up to half a second. Only where the file cannot be replaced but merely
    /// overwritten are the steps made one by one, up to the first that fails. The first change of a run leaves a
    /// backup.
    bool Commit() const;

private:
    struct Step {
        std::string section;
        std::optional<std::string> key, value; ///< none: the section, or the key, goes
        Edit edit;                             ///< makes the value, where there is one
    };
    void Add(const std::wstring& section, std::optional<std::string> key, std::optional<std::string> value);
    bool Make(const std::wstring& path) const;
    static bool MakeStep(const Step& step, const char* file);
    static bool MakeEdit(const Step& step, const char* file);

    std::wstring fileName_;
    std::vector<Step> steps_;
    bool isRefused_ = false;
};

} // namespace IniLib
