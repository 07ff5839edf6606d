#include "support/DialogScript.h"

#include "support/Wide.h"
#include "ui/Form.h"

#include <algorithm>
#include <array>

namespace {

DialogScript* current = nullptr;

bool IsDialog(HWND window) {
    const std::wstring className = ClassOf(window);
    return className == L"#32770" || (className.starts_with(L"frm") && className != L"frmMain");
}

} // namespace

void Leave(HWND window) {
    if (HWND cancel = FindControl(window, L"cmdCancel"); cancel && IsWindowVisible(cancel))
        Click(cancel);
    else if (GetDlgItem(window, IDNO))
        Answer(window, IDNO);
    else
        PostMessageW(window, WM_CLOSE, 0, 0);
}

void Press(HWND form, const wchar_t* name, int index) {
    HWND button = FindControl(form, name, index);
    SendMessageW(GetParent(button), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button), BN_CLICKED),
                 reinterpret_cast<LPARAM>(button));
}

void Type(HWND form, const wchar_t* box, const std::wstring& text) {
    SetWindowTextW(FindControl(form, box), text.c_str());
}

void TranslateKey(HWND control, WORD key, WORD held) {
    std::array<BYTE, 256> before{}, keys{};
    GetKeyboardState(before.data());
    if (held) keys.at(held) = 0x80;
    SetKeyboardState(keys.data());
    MSG press{control, held == VK_MENU ? UINT{WM_SYSKEYDOWN} : UINT{WM_KEYDOWN}, key, 1, 0, {}};
    Form::Translate(press);
    SetKeyboardState(before.data());
}

void PumpUntil(const std::function<bool()>& condition, unsigned milliseconds) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start >= milliseconds) {
            // Not FAIL: its exception may not cross the callbacks this can run in.
            FAIL_CHECK("the condition did not come true in time");
            return;
        }
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            HWND root = GetAncestor(message.hwnd, GA_ROOT);
            if (root && IsDialog(root) && IsDialogMessageW(root, &message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

HWND FocusIn(HWND form) {
    if (!GetFocus()) {
        SetForegroundWindow(form);
        PumpUntil([] { return GetFocus() != nullptr; });
    }
    return GetFocus();
}

DialogScript::DialogScript() : timer_(SetTimer(nullptr, 0, 20, &DialogScript::OnTimer)) { current = this; }

DialogScript::~DialogScript() {
    KillTimer(nullptr, timer_);
    current = nullptr;
    CHECK_MESSAGE(steps_.empty(), "expected windows that never came up: ", steps_.size());
}

DialogScript& DialogScript::Then(std::function<void(HWND)> step) {
    steps_.push_back(std::move(step));
    return *this;
}

DialogScript& DialogScript::Answer(int button) {
    return Then([button](HWND window) { ::Answer(window, button); });
}

DialogScript& DialogScript::Otherwise(std::function<void(HWND)> step) {
    otherwise_ = std::move(step);
    return *this;
}

void CALLBACK DialogScript::OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (!current) return;
    std::erase_if(current->met_, [](HWND window) { return !IsWindow(window); }); // its handle may be given to another
    HWND next = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &DialogScript::Choose, reinterpret_cast<LPARAM>(&next));
    if (!next) return;
    current->met_.push_back(next);
    current->Meet(next);
}

BOOL CALLBACK DialogScript::Choose(HWND window, LPARAM next) {
    const bool isMet = std::ranges::count(current->met_, window) > 0;
    // The lowest one has come up first.
    if (!isMet && IsWindowVisible(window) && IsDialog(window)) *reinterpret_cast<HWND*>(next) = window;
    return TRUE;
}

void DialogScript::Meet(HWND window) {
    seen_.push_back({WindowText(window), MessageText(window)});
    if (steps_.empty() && otherwise_) {
        otherwise_(window);
        return;
    }
    if (steps_.empty()) {
        FAIL_CHECK("nobody expected: ", seen_.back().Title, " / ", seen_.back().Text);
        PostMessageW(window, WM_CLOSE, 0, 0);
        return;
    }
    const std::function<void(HWND)> step = std::move(steps_.front());
    steps_.pop_front();
    step(window);
}
