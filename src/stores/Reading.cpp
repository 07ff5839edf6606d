#include "stores/Reading.h"

#include "stores/FileHealth.h"
#include "stores/IniLib.h"
#include "stores/IniText.h"
#include "stores/PlatformIni.h"
#include "support/Error.h"
#include "support/Text.h"
#include "win32/AnsiText.h"

#include <algorithm>

namespace {

/// True for a file that the platform alone understands: in UTF-16, or with a mark of its encoding.
bool IsMarked(const std::string& bytes) {
    return bytes.find('\0') != std::string::npos || bytes.starts_with("\xEF\xBB\xBF");
}

} // namespace

void ThrowUnreadable() {
    throw Error(BasicError::FileNotAccessible, SystemDescription(HRESULT_FROM_WIN32(ERROR_READ_FAULT)));
}

namespace IniLib {

Reading::Reading(Origin origin, std::string bytes) : origin_(std::move(origin)) {
    if (IsMarked(bytes))
        bytes_ = std::move(bytes);
    else
        text_ = ToWide(bytes);
}

std::wstring Reading::Value(std::wstring_view section, std::wstring_view key) const {
    return Shown(Whole(section, key).value_or(L""));
}

std::optional<std::wstring> Reading::Whole(std::wstring_view section, std::wstring_view key) const {
    if (section.empty() || key.empty()) return std::nullopt;
    if (!bytes_.empty()) return AskPlatform(section, key);
    const auto found = IniText::Find(text_, section, key);
    return found ? std::optional<std::wstring>(*found) : std::nullopt;
}

Reading::Values Reading::Section(std::wstring_view section) const {
    if (section.empty()) return {};
    if (bytes_.empty()) return IniText::Section(text_, section);
    Values values;
    for (const std::wstring& key : PlatformIni::Keys(origin_.Path, section))
        values.emplace_back(key, Whole(section, key).value_or(L""));
    RequireUnchanged();
    return values;
}

bool Reading::MayHold(std::initializer_list<std::wstring_view> words) const {
    return !bytes_.empty() ||
           std::ranges::any_of(words, [&](std::wstring_view word) { return Text::ContainsNoCase(text_, word); });
}

std::optional<std::wstring> Reading::AskPlatform(std::wstring_view section, std::wstring_view key) const {
    auto value = PlatformIni::Value(origin_.Path, section, key);
    RequireUnchanged();
    return value;
}

void Reading::RequireUnchanged() const {
    const SafeFile::Contents now = SafeFile::Read(origin_.Path);
    if (!now.IsRead() || now.Bytes != bytes_) ThrowUnreadable();
}

Read<Reading> ReadFile(const std::wstring& fileName, unsigned long patience) {
    constexpr DWORD kPause = 15;
    const std::wstring path = PlatformIni::FullPath(fileName);
    for (const DWORD start = GetTickCount();; Sleep(kPause)) {
        SafeFile::Contents contents = SafeFile::Read(path);
        const FileHealth::State state = FileHealth::Inspect(contents);
        if (!FileHealth::IsOutage(path, state)) {
            FileHealth::Note(path, state);
            return Reading({path, !contents.IsMissing()}, std::move(contents.Bytes));
        }
        if (GetTickCount() - start >= patience) return Unreadable();
    }
}

Read<Reading> ReadFile() { return ReadFile(SettingsFile(), ReadingPatience); }

} // namespace IniLib
