#include "act/Dispatch.h"

#include "support/Busy.h"
#include "support/BusyWait.h"

#include <algorithm>
#include <vector>

namespace {

constexpr DWORD kMinute = 60'000;
DWORD patience = kMinute; // milliseconds

std::wstring TakeText(BSTR& text) {
    std::wstring copy = text ? std::wstring(text, SysStringLen(text)) : std::wstring();
    SysFreeString(std::exchange(text, nullptr));
    return copy;
}

bool IsBusy(HRESULT code) { return code == RPC_E_SERVERCALL_RETRYLATER || code == RPC_E_CALL_REJECTED; }

/// Waits while the windows of the program stay alive.
void WaitPumping(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    for (DWORD passed = 0; passed < milliseconds; passed = GetTickCount() - start) {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            if (BusyWait::Now && BusyWait::Now->Translate(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
    }
}

/// Makes a call, again and again while a busy ACT! refuses it and nobody has had enough. Its last answer.
template <class Call>
HRESULT Persist(Call call) {
    constexpr DWORD kPause = 200;
    HRESULT code = call();
    if (!IsBusy(code)) return code;
    const DWORD start = GetTickCount();
    for (DWORD waited = 0; IsBusy(code) && waited < patience; waited = GetTickCount() - start) {
        if (BusyWait::Now && BusyWait::Now->IsCancelled(waited)) break;
        WaitPumping(kPause);
        code = call();
    }
    if (BusyWait::Now) BusyWait::Now->Over();
    return code;
}

} // namespace

void Dispatch::WaitLonger() { patience = 10 * kMinute; }

Error AutomationError(HRESULT code, EXCEPINFO& exception, Where at) {
    if (code != DISP_E_EXCEPTION) return {ErrorNumber(code), SystemDescription(code), at};
    if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
    const HRESULT reason = exception.scode ? exception.scode : code;
    const long number = exception.wCode ? exception.wCode : ErrorNumber(reason);
    std::wstring description = TakeText(exception.bstrDescription);
    TakeText(exception.bstrSource);
    TakeText(exception.bstrHelpFile);
    if (description.empty()) description = SystemDescription(reason);
    if (description.empty()) description = L"Automation error";
    return {number, description, at};
}

Dispatch Dispatch::Create(const wchar_t* progId, Where at) {
    const Busy busy;
    CLSID classId{};
    ComPtr<IDispatch> object;
    HRESULT code = CLSIDFromProgID(progId, &classId);
    if (SUCCEEDED(code))
        code = Persist([&] {
            return CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch,
                                    object.ReceiveVoid());
        });
    if (FAILED(code)) throw Error(BasicError::CannotCreateObject, SystemDescription(code), at);
    return Dispatch(std::move(object));
}

DISPID Dispatch::IdentifierOf(const Member& member) const {
    std::wstring name = member.Name;
    auto* const known = std::ranges::find_if(known_, [&](const Known& one) { return !one.Name || name == one.Name; });
    if (known != known_.end() && known->Name) return known->Identifier;
    DISPID identifier = DISPID_UNKNOWN;
    wchar_t* names = name.data();
    ThrowIfFailed(
        Persist([&] { return object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &identifier); }),
        member.At);
    if (known != known_.end()) *known = {member.Name, identifier};
    return identifier;
}

void Dispatch::Invoke(const Member& member, WORD flags, std::span<const Variant> arguments, Variant* result) const {
    const Busy busy;
    if (!object_) throw Error(BasicError::ObjectNotSet, L"Object variable or With block variable not set", member.At);
    const DISPID identifier = IdentifierOf(member);
    std::vector<VARIANT> values; // shallow copies: the Variants keep ownership
    for (const Variant& argument : arguments) values.push_back(argument.Get());
    DISPID propertyPut = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{values.data(), nullptr, static_cast<UINT>(values.size()), 0};
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &propertyPut;
        parameters.cNamedArgs = 1;
    }
    EXCEPINFO exception{};
    const HRESULT code = Persist([&] {
        UINT badArgument = 0;
        return object_->Invoke(identifier, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                               result ? result->Receive() : nullptr, &exception, &badArgument);
    });
    if (FAILED(code)) throw AutomationError(code, exception, member.At);
}
