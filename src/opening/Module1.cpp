#include "opening/Module1.h"

#include "support/ErrorReport.h"

namespace Module1 {

bool Create_object(ActConnection& act) try {
    act.Application = ActApplication::Create();
    act.Application.OpenFile(L"");
    act.Views = act.Application.Views();
    act.Preferences = act.Application.Preferences();
    return true;
} catch (...) {
    ErrorReport("Module1: Sub Create_object");
    return false;
}

void Release_object(ActConnection& act) noexcept {
    act.Preferences.Release();
    act.Views.Release();
    act.Application.Release();
}

std::wstring CloseAct(const ActConnection& act) {
    constexpr short kClose = 150; // ACT!'s own number
    std::wstring database = act.Application.GetOpenDBName();
    try {
        act.Application.Command(kClose);
    } catch (const Error& error) {
        if (error.Number != BasicError::ServerUnavailable) throw;
    }
    return database;
}

} // namespace Module1
