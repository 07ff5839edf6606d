#include "support/Shell.h"

#include "support/Application.h"
#include "win32/Windows.h"

void OpenWithShell(const std::wstring& target) {
    const std::wstring folder = Application::Folder();
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof execute;
    execute.fMask = SEE_MASK_FLAG_NO_UI;
    execute.lpVerb = L"open";
    execute.lpFile = target.c_str();
    execute.lpDirectory = folder.c_str();
    execute.nShow = SW_SHOWNORMAL;
    ShellExecuteExW(&execute);
}

void PrepareShell() { LoadLibraryW(L"shell32.dll"); }
