#include "ProgramPath.h"

#include "win32/Windows.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace {

bool IsFile(const wchar_t* path) {
    const DWORD attributes = GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

PathText Find(std::wstring_view name) {
    PathText text{}, path{};
    if (name.size() >= text.size()) return {};
    std::ranges::copy(name, text.begin());
    const DWORD length = SearchPathW(nullptr, text.data(), L".exe", path.size(), path.data(), nullptr);
    return length > 0 && length < path.size() && IsFile(path.data()) ? path : PathText{};
}

PathText Comparable(const wchar_t* name) {
    PathText text{};
    const DWORD length = GetLongPathNameW(name, text.data(), text.size());
    if (length == 0 || length >= text.size()) lstrcpynW(text.data(), name, static_cast<int>(text.size()));
    CharUpperW(text.data());
    return text;
}

const wchar_t* FileName(const wchar_t* path) {
    const wchar_t* const end = std::wcsrchr(path, L'\\');
    return end ? end + 1 : path;
}

} // namespace

PathText ProgramOf(const wchar_t* command) {
    if (*command == L'"') return Find({command + 1, std::wcscspn(command + 1, L"\"")});
    // Without quotes each blank may be the end of the path: the first one that makes it a file's is.
    for (const wchar_t* end = command;; ++end) {
        end += std::wcscspn(end, L" \t");
        if (const PathText path = Find({command, end}); path[0] || !*end) return path;
    }
}

bool HasFolder(const wchar_t* program) { return std::wcspbrk(program, L"\\:") != nullptr; }

bool Names(const wchar_t* program, const wchar_t* path) {
    const PathText name = Comparable(program), whole = Comparable(path);
    return std::wcscmp(name.data(), HasFolder(program) ? whole.data() : FileName(whole.data())) == 0;
}
