#include "app/OpenDialogs.h"

#include "program/Program.h"

#include <algorithm>
#include <cwchar>

namespace {

bool IsMessageBox(HWND window) {
    wchar_t className[16]{};
    GetClassNameW(window, className, 16);
    return std::wcscmp(className, L"#32770") == 0;
}

} // namespace

bool OpenDialogs::Any() const {
    return std::ranges::any_of(Form::Loaded(),
                               [this](const Form* form) { return form != &mainWindow_ && !form->Unloaded(); });
}

void OpenDialogs::Begin() {
    HWND front = GetLastActivePopup(mainWindow_.Handle());
    boxAtBegin_ = front && IsMessageBox(front) ? front : nullptr;
}

bool OpenDialogs::LeaveNext() {
    hasLeft_ = false;
    EnumThreadWindows(GetCurrentThreadId(), &OpenDialogs::Visit, reinterpret_cast<LPARAM>(this));
    return hasLeft_;
}

BOOL CALLBACK OpenDialogs::Visit(HWND window, LPARAM self) {
    auto& dialogs = *reinterpret_cast<OpenDialogs*>(self);
    dialogs.hasLeft_ = dialogs.Leave(window);
    return !dialogs.hasLeft_;
}

bool OpenDialogs::Leave(HWND window) const {
    if (window == mainWindow_.Handle() || !IsWindowVisible(window) || !IsWindowEnabled(window)) return false;
    if (Form* form = Form::FromWindow(window)) {
        form->CloseAsByUser();
        // One that cannot be cancelled; where a question is open the next look finds it.
        if (!form->Unloaded() && IsWindowEnabled(window)) form->Unload();
        return true;
    }
    if (!IsMessageBox(window)) return false;
    if (!Program().ActIsClosing && window != boxAtBegin_) return true;
    if (GetDlgItem(window, IDNO))
        PostMessageW(window, WM_COMMAND, IDNO, 0); // has no Cancel
    else
        PostMessageW(window, WM_CLOSE, 0, 0);
    return true;
}

void OpenDialogs::LeaveAll() const {
    for (size_t index = Form::Loaded().size(); index-- > 0;)
        if (Form* const form = Form::Loaded()[index]; form != &mainWindow_ && !form->Unloaded()) {
            form->CloseAsByUser();
            form->Unload();
        }
}
