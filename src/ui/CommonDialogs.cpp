#include "ui/CommonDialogs.h"

#include <shlobj.h>

#include <algorithm>
#include <array>

namespace {

constexpr DWORD kLongestPath = 32768;

int CALLBACK StartAtFolder(HWND dialog, UINT message, LPARAM, LPARAM folder) {
    if (message == BFFM_INITIALIZED) SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, folder);
    return 0;
}

struct ItemList {
    ~ItemList() { CoTaskMemFree(items); }
    LPITEMIDLIST items;
};

} // namespace

std::optional<std::wstring> PickFile(HWND owner, const std::wstring& filter, const std::wstring& initialFolder) {
    std::wstring filters = filter + L'|';
    std::ranges::replace(filters, L'|', L'\0'); // the string's own zero is the second of the two at the end
    std::wstring path(kLongestPath, L'\0');
    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filters.c_str();
    dialog.lpstrFile = path.data();
    dialog.nMaxFile = kLongestPath;
    dialog.lpstrInitialDir = initialFolder.empty() ? nullptr : initialFolder.c_str();
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_NOCHANGEDIR | OFN_HIDEREADONLY | OFN_EXPLORER;
    if (!GetOpenFileNameW(&dialog)) return std::nullopt;
    return path.c_str();
}

std::optional<std::wstring> PickFolder(HWND owner, const std::wstring& initialFolder) {
    BROWSEINFOW dialog{};
    dialog.hwndOwner = owner;
    dialog.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_EDITBOX;
    dialog.lpfn = &StartAtFolder;
    dialog.lParam = reinterpret_cast<LPARAM>(initialFolder.c_str());
    const ItemList picked{SHBrowseForFolderW(&dialog)};
    std::array<wchar_t, MAX_PATH> path{};
    if (!picked.items || !SHGetPathFromIDListW(picked.items, path.data())) return std::nullopt;
    return path.data();
}
