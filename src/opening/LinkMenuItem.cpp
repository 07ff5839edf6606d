#include "opening/LinkMenuItem.h"

#include "support/Text.h"
#include "support/Vendor.h"
#include "win32/AnsiText.h"
#include "win32/Owner.h"

#include <array>

namespace {

constexpr wchar_t kLinkFile[] = L"1010it_Varnholtine.web";

/// The process's current folder, put back at the end.
class CurrentFolder {
public:
    CurrentFolder() { GetCurrentDirectoryW(static_cast<DWORD>(before_.size()), before_.data()); }
    ~CurrentFolder() { SetCurrentDirectoryW(before_.data()); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

    static bool Change(const std::wstring& folder) { return SetCurrentDirectoryW(folder.c_str()) != FALSE; }

private:
    std::array<wchar_t, 32768> before_{}; // the longest path Windows knows
};

std::string LinkLine(const std::wstring& title) {
    return ToAnsi(Text::Concat({L"]", Vendor::Site, L" ", title, L"\r\n"}));
}

} // namespace

void Create_LinkMenuItem(const std::wstring& actProgram, const std::wstring& title) {
    const size_t slash = actProgram.rfind(L'\\');
    if (slash == std::wstring::npos) return;
    const CurrentFolder restored;
    if (!CurrentFolder::Change(actProgram.substr(0, slash) + L"\\NetLinks")) return;
    const FileHandle file(
        CreateFileW(kLinkFile, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) return;
    const std::string line = LinkLine(title);
    DWORD written = 0;
    WriteFile(file.Get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}
