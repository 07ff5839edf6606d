// What IniLib writes: collected first, then made in one step.

#include "stores/IniChange.h"

#include "stores/Backup.h"
#include "stores/FileHealth.h"
#include "stores/IniLib.h"
#include "stores/PlatformIni.h"
#include "stores/SafeFile.h"
#include "support/Error.h"
#include "win32/AnsiText.h"

#include <algorithm>
#include <utility>

namespace {

constexpr bool IsBlank(char character) { return character == ' ' || character == '\t'; }
constexpr bool IsQuote(char character) { return character == '"' || character == '\''; }

/// The platform strips outer blanks and takes one pair of quotes off a value that it reads.
std::string Quoted(std::string value) {
    if (value.empty()) return value;
    const bool blankAtEnd = IsBlank(value.front()) || IsBlank(value.back());
    const bool wrapped = value.size() > 1 && IsQuote(value.front()) && value.front() == value.back();
    return blankAtEnd || wrapped ? '"' + std::move(value) + '"' : value;
}

/// The copy as one reading; what it is a copy of does not matter to it.
Read<IniLib::Reading> ReadCopy(const std::wstring& copy) {
    SafeFile::Contents contents = SafeFile::Read(copy);
    if (!contents.IsRead()) return Unreadable();
    return IniLib::Reading({copy, true}, std::move(contents.Bytes));
}

} // namespace

namespace IniLib {

Change::Change(const std::wstring& fileName) : fileName_(PlatformIni::FullPath(fileName)) {}

Change::Change() : Change(SettingsFile()) {}

Change::Change(Origin origin) : origin_(std::move(origin)), fileName_(origin_->Path) {}

void Change::Add(std::wstring_view section, std::optional<std::string> key, std::optional<std::string> value) {
    if (section.empty()) isRefused_ = true;
    steps_.push_back({ToAnsi(section), std::move(key), std::move(value)});
}

void Change::WriteKeyValue(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    std::string keyBytes = ToAnsi(key);
    std::string bytes = Quoted(ToAnsi(value));
    if (keyBytes.size() + bytes.size() > LongestLine) isRefused_ = true;
    Add(section, std::move(keyBytes), std::move(bytes));
}

void Change::WriteSection(std::wstring_view section, const Reading::Values& values) {
    std::string lines;
    for (const auto& [key, value] : values) {
        const std::string line = ToAnsi(key) + '=' + Quoted(ToAnsi(value));
        if (line.size() > LongestLine) isRefused_ = true;
        lines += line + '\0';
    }
    if (!lines.empty()) Add(section, {}, std::move(lines));
}

void Change::DeleteKey(std::wstring_view section, std::wstring_view key) { Add(section, ToAnsi(key), {}); }

void Change::DeleteSection(std::wstring_view section) { Add(section, {}, {}); }

DWORD Change::Make(const std::wstring& copy, bool isNew) const try {
    if (const DWORD refusal = Refusal(copy, isNew)) return refusal;
    Change composed(*this);
    if (!builds_.empty()) {
        const Read<Reading> stored = ReadCopy(copy);
        if (!stored) return ERROR_SHARING_VIOLATION;
        const bool isBuilt = std::ranges::all_of(builds_, [&](const Build& build) { return build(*stored, composed); });
        if (!isBuilt || composed.isRefused_) return ERROR_CANCELLED;
    }
    for (const Step& step : composed.steps_)
        if (const DWORD error = MakeStep(step, copy)) return error;
    return ERROR_SUCCESS;
} catch (const Error&) {
    return ERROR_READ_FAULT; // a value that nobody can read now
}

DWORD Change::Refusal(const std::wstring& copy, bool isNew) const {
    const FileHealth::State state = isNew ? FileHealth::State::Missing : FileHealth::Inspect(copy);
    // Another program may be writing it in place: worth another try.
    if (FileHealth::IsOutage(fileName_, state)) return ERROR_SHARING_VIOLATION;
    const bool hasCome = origin_ && !origin_->IsThere && !isNew;
    return hasCome ? ERROR_CANCELLED : ERROR_SUCCESS;
}

DWORD Change::MakeStep(const Step& step, const std::wstring& copy) {
    const char* const key = step.key ? step.key->c_str() : nullptr;
    const bool isKeyRemoval = key && !step.value;
    if (isKeyRemoval) {
        const Read<Reading> stored = ReadCopy(copy);
        if (!stored) return ERROR_SHARING_VIOLATION;
        // The platform would rewrite the file for a key that is not there.
        if (!stored->Whole(ToWide(step.section), ToWide(*step.key))) return ERROR_SUCCESS;
    }
    if (!key && step.value) return PlatformIni::WriteSection(copy, step.section, *step.value);
    return PlatformIni::Write(copy, step.section, key, step.value ? step.value->c_str() : nullptr);
}

bool Change::Commit() const {
    if (isRefused_ || (origin_ && origin_->Path != PlatformIni::FullPath(SettingsFile()))) return false;
    if (steps_.empty() && builds_.empty()) return true;
    if (hasBackup_) Backup::KeepOnce(fileName_);
    FileHealth::State made = FileHealth::State::Missing;
    const bool isMade = SafeFile::Change(fileName_, [&](const std::wstring& copy, bool isNew) {
        const DWORD error = Make(copy, isNew);
        made = FileHealth::Inspect(copy);
        return error;
    });
    // A file that has just been made and goes away is away, not missing.
    if (isMade) FileHealth::Note(fileName_, made);
    return isMade;
}

} // namespace IniLib
