#include "server/CloseNotice.h"

#include "common/Journal.h"
#include "common/Protocol.h"
#include "common/State.h"

#include <string>

namespace {

constexpr long kTimeout = 60'000;

std::vector<HWND> Components() {
    std::vector<HWND> found;
    for (HWND window = nullptr;;) {
        window = FindWindowExW(HWND_MESSAGE, window, Protocol::ComponentClass, nullptr);
        if (!window) return found;
        found.push_back(window);
    }
}

bool TimeIsOver(DWORD since) {
    return GetTickCount() - since >= static_cast<DWORD>(State::Number(L"Presets", L"CloseTimeout").value_or(kTimeout));
}

} // namespace

size_t CloseNotice::AttachedComponents() { return Components().size(); }

CloseNotice::Outcome CloseNotice::Ask(HWND window, Urgency urgency) {
    open_ = true;
    since_ = GetTickCount();
    waitingFor_ = Components();
    Journal::Note(L"UserWantsToClose", std::to_wstring(waitingFor_.size()) + L" components");
    for (const HWND component : waitingFor_)
        (urgency == Urgency::InCalls ? SendNotifyMessageW : PostMessageW)(component, Protocol::Question(),
                                                                          reinterpret_cast<WPARAM>(window), 0);
    return Check();
}

CloseNotice::Outcome CloseNotice::Take(HWND component, bool mayClose) {
    if (!open_ || std::erase(waitingFor_, component) == 0) return Outcome::Waiting;
    return mayClose ? Check() : Finish(false, L"refused");
}

CloseNotice::Outcome CloseNotice::Check() {
    if (!open_) return Outcome::Waiting;
    std::erase_if(waitingFor_, [](HWND component) { return !IsWindow(component); });
    if (waitingFor_.empty()) return Finish(true, L"closes");
    return TimeIsOver(since_) ? Finish(false, L"no answer") : Outcome::Waiting;
}

CloseNotice::Outcome CloseNotice::Finish(bool mayClose, const wchar_t* why) {
    open_ = false;
    waitingFor_.clear();
    Journal::Note(L"CloseNotice", {}, why);
    return mayClose ? Outcome::MayClose : Outcome::Refused;
}
