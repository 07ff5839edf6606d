#include "event/Hook.h"

#include "common/Protocol.h"
#include "event/Library.h"

Hook::Hook(Listener& listener) : listener_(listener) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = Library::Instance();
    windowClass.lpszClassName = Protocol::ComponentClass;
    RegisterClassW(&windowClass);
    window_ = CreateWindowExW(0, Protocol::ComponentClass, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                              Library::Instance(), nullptr);
    if (window_) SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Hook::~Hook() {
    if (window_) DestroyWindow(window_);
    // The class must not outlive the library; this fails as long as another component uses it.
    UnregisterClassW(Protocol::ComponentClass, Library::Instance());
}

void Hook::Answer(bool mayClose) {
    if (asker_) PostMessageW(asker_, Protocol::Answer(), reinterpret_cast<WPARAM>(window_), mayClose ? 1 : 0);
    asker_ = nullptr;
}

LRESULT CALLBACK Hook::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): window data is an integer
    Hook* const self = reinterpret_cast<Hook*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self || message != Protocol::Question()) return DefWindowProcW(window, message, wParam, lParam);
    self->asker_ = reinterpret_cast<HWND>(wParam); // NOLINT(performance-no-int-to-ptr): a window in a message
    self->listener_.UserWantsToClose();
    return 0;
}
