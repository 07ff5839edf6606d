// The message loops: the program's own and that of a modal form.

#include "ui/Form.h"

#include "support/Busy.h"

#include <utility>

bool Form::Translate(MSG& message) {
    Form* form = FromWindow(GetAncestor(message.hwnd, GA_ROOT));
    return form && (form->TakesKey(message) || IsDialogMessageW(form->window_, &message));
}

bool Form::TakesKey(const MSG& message) {
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
    if (Busy::Now() || unloaded_) return false;
    const auto isDown = [](int key) { return GetKeyState(key) < 0; };
    const KeyPress press{static_cast<int>(message.wParam), isDown(VK_CONTROL), isDown(VK_MENU), isDown(VK_SHIFT)};
    bool isUsed = true; // also where an error was reported
    Guarded(L"KeyDown", [&] { isUsed = Form_KeyDown(press); });
    return isUsed;
}

int Form::RunMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (Translate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

void Form::ShowModal() {
    HWND active = GetActiveWindow();
    owner_ = active && IsWindowVisible(active) ? GetAncestor(active, GA_ROOT) : nullptr;
    Load();
    modal_ = true;
    if (owner_) EnableWindow(owner_, FALSE);
    if (!unloaded_) Show();
    ModalLoop();
    modal_ = false;
    Forget(this);
    if (owner_) EnableWindow(owner_, TRUE);
    if (window_) DestroyWindow(window_);
    if (owner_) SetActiveWindow(std::exchange(owner_, nullptr));
}

void Form::ModalLoop() const {
    MSG message{};
    while (!unloaded_) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            // The end of the program is meant for every loop below this one too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (Translate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}
