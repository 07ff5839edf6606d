// What IniLib writes: collected first, then made in one step.

#include "stores/Backup.h"
#include "stores/FileHealth.h"
#include "stores/IniLib.h"
#include "stores/SafeFile.h"
#include "support/Text.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// What the platform reads back whole of a line; Wine's writer crashes on much longer values.
constexpr size_t kLongestLine = 32766;

constexpr bool IsBlank(char character) { return character == ' ' || character == '\t'; }
constexpr bool IsQuote(char character) { return character == '"' || character == '\''; }

/// The platform strips outer blanks and takes one pair of quotes off a value that it reads.
std::string Quoted(std::string value) {
    if (value.empty()) return value;
    const bool blankAtEnd = IsBlank(value.front()) || IsBlank(value.back());
    const bool wrapped = value.size() > 1 && IsQuote(value.front()) && value.front() == value.back();
    return blankAtEnd || wrapped ? '"' + std::move(value) + '"' : value;
}

/// A missing key gives back whichever default is offered; a present one, even empty, cannot equal both.
bool KeyExists(const char* section, const char* key, const char* file) {
    for (const char* fallback : {"0", "1"}) {
        std::array<char, 3> value{};
        GetPrivateProfileStringA(section, key, fallback, value.data(), value.size(), file);
        if (std::string_view(value.data()) != fallback) return true;
    }
    return false;
}

} // namespace

namespace IniLib {

// Through the ANSI code page: the path must be the one that the platform's calls are going to meet.
Change::Change(const std::wstring& fileName) : fileName_(ToWide(ToAnsi(fileName))) {}

void Change::Add(const std::wstring& section, std::optional<std::string> key, std::optional<std::string> value) {
    if (section.empty()) Refuse();
    steps_.push_back({ToAnsi(section), std::move(key), std::move(value), {}});
}

void Change::WriteKeyValue(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    std::string keyBytes = ToAnsi(key);
    std::string bytes = Quoted(ToAnsi(value));
    if (keyBytes.size() + bytes.size() > kLongestLine) Refuse();
    Add(section, std::move(keyBytes), std::move(bytes));
}

void Change::EditKeyValue(const std::wstring& section, const std::wstring& key, Edit edit) {
    Add(section, ToAnsi(key), {});
    steps_.back().edit = std::move(edit);
}

void Change::DeleteKey(const std::wstring& section, const std::wstring& key) { Add(section, ToAnsi(key), {}); }

void Change::DeleteSection(const std::wstring& section) { Add(section, {}, {}); }

bool Change::Make(const std::wstring& path) const {
    const std::string file = ToAnsi(path);
    return std::ranges::all_of(steps_, [&](const Step& step) { return MakeStep(step, file.c_str()); });
}

bool Change::MakeEdit(const Step& step, const char* file) {
    const std::wstring whole = GetWholeValue(ToWide(step.section), ToWide(*step.key), ToWide(file));
    const auto value = step.edit(whole);
    if (!value) return true;
    const std::string bytes = Quoted(ToAnsi(*value));
    if (whole.size() > kLongestLine || step.key->size() + bytes.size() > kLongestLine) {
        SetLastError(ERROR_BUFFER_OVERFLOW);
        return false;
    }
    return WritePrivateProfileStringA(step.section.c_str(), step.key->c_str(), bytes.c_str(), file) != 0;
}

bool Change::MakeStep(const Step& step, const char* file) {
    if (step.edit) return MakeEdit(step, file);
    const char* const section = step.section.c_str();
    const char* const key = step.key ? step.key->c_str() : nullptr;
    // The platform would rewrite the file for a key that is not there.
    if (key && !step.value && !KeyExists(section, key, file)) return true;
    return WritePrivateProfileStringA(section, key, step.value ? step.value->c_str() : nullptr, file) != 0;
}

bool Change::Commit() const {
    if (isRefused_) return false;
    if (steps_.empty()) return true;
    if (!Text::HasFolder(fileName_)) return Make(fileName_);
    if (!FileHealth::CanBeTrusted(fileName_)) return false;
    Backup::KeepOnce(fileName_);
    return SafeFile::Change(fileName_, [this](const std::wstring& path) { return Make(path); });
}

} // namespace IniLib
