#include "stores/FileHealth.h"

#include "stores/SafeFile.h"
#include "win32/Windows.h"

namespace {

std::wstring& LastRead() {
    static std::wstring path;
    return path;
}

bool IsUnicode(const std::string& bytes) { return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"); }

/// Polls a condition; true when it has come to hold.
template <class Condition>
bool ComesTrue(Condition condition, DWORD milliseconds) {
    constexpr DWORD kPause = 15;
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start >= milliseconds) return false;
        Sleep(kPause);
    }
    return true;
}

} // namespace

namespace FileHealth {

State Inspect(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return State::Missing;
    return Inspect(SafeFile::Read(path));
}

State Inspect(const std::optional<std::string>& bytes) {
    if (!bytes) return State::Unreadable;
    const bool hasZeros = bytes->find('\0') != std::string::npos && !IsUnicode(*bytes);
    return bytes->empty() || hasZeros ? State::Empty : State::Sound;
}

bool IsDamaged(const std::wstring& path) {
    constexpr DWORD kPatience = 400;
    const auto isWell = [&] {
        const State state = Inspect(path);
        return state == State::Missing || state == State::Sound;
    };
    return !ComesTrue(isWell, kPatience);
}

void NoteRead(const std::wstring& path) {
    if (path != LastRead() && Inspect(path) == State::Sound) LastRead() = path;
}

bool CanBeTrusted(const std::wstring& path) {
    constexpr DWORD kPatience = 90;
    const auto isTrusted = [&] {
        const State state = Inspect(path);
        return state != State::Unreadable && (state != State::Empty || path != LastRead());
    };
    return ComesTrue(isTrusted, kPatience);
}

} // namespace FileHealth
