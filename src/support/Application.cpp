#include "support/Application.h"

#include "support/Text.h"
#include "win32/Windows.h"

namespace {

std::wstring ProgramPath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

} // namespace

namespace Application {

std::wstring Folder() { return Text::ExtractPath(ProgramPath()); }

std::wstring ProgramName() {
    std::wstring name = Text::AfterLast(ProgramPath(), L'\\');
    const size_t dot = name.rfind(L'.');
    if (dot != std::wstring::npos) name.resize(dot);
    return name;
}

std::wstring FileInFolder(std::wstring_view fileName) { return Text::JoinPath(Folder(), fileName); }

std::wstring Version() { return KELMORRA_VERSION; }

std::wstring VersionDigits() { return Text::Replace(Version(), L".", L""); }

} // namespace Application
