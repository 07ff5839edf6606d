#include "stores/FileHealth.h"

#include "support/Text.h"

#include <algorithm>
#include <vector>

namespace {

using FileHealth::State;

struct Known {
    std::wstring Path;
    State Best;
};

/// A run knows one settings file, or two when another one is chosen.
std::vector<Known>& KnownFiles() {
    static std::vector<Known> files;
    return files;
}

Known* Find(const std::wstring& path) {
    const auto found =
        std::ranges::find_if(KnownFiles(), [&](const Known& file) { return Text::EqualNoCase(file.Path, path); });
    return found == KnownFiles().end() ? nullptr : &*found;
}

bool IsUnicode(const std::string& bytes) { return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"); }

} // namespace

namespace FileHealth {

State Inspect(const SafeFile::Contents& contents) {
    if (contents.IsMissing()) return State::Missing;
    if (!contents.IsRead()) return State::Unreadable;
    const bool hasZeros = contents.Bytes.find('\0') != std::string::npos && !IsUnicode(contents.Bytes);
    return contents.Bytes.empty() || hasZeros ? State::Empty : State::Sound;
}

State Inspect(const std::wstring& path) { return Inspect(SafeFile::Read(path)); }

bool IsDamaged(const std::wstring& path) {
    constexpr DWORD kPatience = 400;
    constexpr DWORD kPause = 15;
    for (const DWORD start = GetTickCount();; Sleep(kPause)) {
        const State state = Inspect(path);
        if (state == State::Missing || state == State::Sound) return false;
        if (GetTickCount() - start >= kPatience) return true;
    }
}

void Note(const std::wstring& path, State state) {
    if (Known* const known = Find(path))
        known->Best = std::max(known->Best, state);
    else if (state > State::Missing)
        KnownFiles().push_back({path, state});
}

bool IsOutage(const std::wstring& path, State state) {
    if (state == State::Unreadable) return true;
    const Known* const known = Find(path);
    return known && state < known->Best;
}

} // namespace FileHealth
