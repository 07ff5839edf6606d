#include "event/EventComponent.h"

#include "common/Journal.h"
#include "common/Protocol.h"
#include "common/State.h"

namespace {

constexpr DISPID kUserWantsToClose = 1;

bool RegistrationHasFailed() { return State::Flag(L"Presets", L"RegistrationFailed"); }

Value InstanceCount(Automation&, const Arguments&) {
    long count = 0;
    for (HWND window = nullptr;;) {
        window = FindWindowExW(nullptr, window, Protocol::WindowClass, nullptr);
        if (!window) return Value::Long(count);
        ++count;
    }
}

Value RegistrationFailed(Automation&, const Arguments&) { return Value::Flag(RegistrationHasFailed()); }

Value Answer(Automation& object, const Arguments& arguments) {
    static_cast<EventComponent&>(object).AnswerUserWantsToClose(arguments[0].AsFlag());
    return {};
}

Value CloseComponent(Automation& object, const Arguments&) {
    static_cast<EventComponent&>(object).Unhook();
    return {};
}

constexpr MemberRow kMembers[] = {
    {L"InstanceCount", kProperty, {}, InstanceCount, nullptr},
    {L"RegistrationFailed", kProperty, {}, RegistrationFailed, nullptr},
    {L"AnswerUserWantsToClose", kMethod, {VT_BOOL}, Answer, nullptr},
    {L"Close", kMethod, {}, CloseComponent, nullptr},
};

} // namespace

EventComponent::EventComponent() : Automation(L"EVENT", kMembers) {
    if (!RegistrationHasFailed()) hook_.emplace(*this);
}

STDMETHODIMP EventComponent::QueryInterface(REFIID iid, void** object) {
    *object = nullptr;
    if (iid == IID_IConnectionPointContainer) *object = static_cast<IConnectionPointContainer*>(this);
    if (iid == IID_IOleObject) *object = static_cast<IOleObject*>(this);
    const bool isClassInfo = iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2;
    if (isClassInfo && State::Flag(L"Presets", L"ClassInfo", true)) *object = static_cast<IProvideClassInfo2*>(this);
    if (!*object) return Automation::QueryInterface(iid, object);
    AddRef();
    return S_OK;
}

STDMETHODIMP EventComponent::EnumConnectionPoints(IEnumConnectionPoints** points) {
    *points = MakeEnumeration(ComPtr<IConnectionPoint>::Share(&point_)).Detach();
    return S_OK;
}

STDMETHODIMP EventComponent::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
    *point = nullptr;
    if (iid != ClassIds::ActEvents) return CONNECT_E_NOCONNECTION;
    *point = ComPtr<IConnectionPoint>::Share(&point_).Detach();
    return S_OK;
}

STDMETHODIMP EventComponent::GetClassInfo(ITypeInfo** info) {
    *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP EventComponent::GetGUID(DWORD kind, GUID* guid) {
    *guid = ClassIds::ActEvents;
    return kind == GUIDKIND_DEFAULT_SOURCE_DISP_IID ? S_OK : E_INVALIDARG;
}

STDMETHODIMP EventComponent::SetClientSite(IOleClientSite* site) {
    site_ = ComPtr<IOleClientSite>::Share(site);
    Journal::Write({{}, L"EVENT", L"SetClientSite", L"-", site ? L"site" : L"none", L"-> S_OK"});
    return S_OK;
}

STDMETHODIMP EventComponent::GetClientSite(IOleClientSite** site) {
    *site = ComPtr<IOleClientSite>(site_).Detach();
    return S_OK;
}

STDMETHODIMP EventComponent::GetUserClassID(CLSID* classId) {
    *classId = ClassIds::ActEvent;
    return S_OK;
}

STDMETHODIMP EventComponent::GetMiscStatus(DWORD, DWORD* status) {
    *status = OLEMISC_INVISIBLEATRUNTIME | OLEMISC_SETCLIENTSITEFIRST;
    return S_OK;
}

void EventComponent::AnswerUserWantsToClose(bool mayClose) {
    if (hook_) hook_->Answer(mayClose);
}

void EventComponent::UserWantsToClose() {
    const ComPtr<Automation> alive = ComPtr<Automation>::Share(this);
    if (point_.HasSinks()) return point_.Fire(kUserWantsToClose, L"OnActUserWantsToClose");
    // Nobody can object through a component that no client listens to.
    AnswerUserWantsToClose(true);
}
