#include "support/FakeAct.h"

#include "act/ComObject.h"
#include "common/Journal.h"
#include "common/Protocol.h"
#include "common/State.h"
#include "event/EventComponent.h"
#include "event/Library.h"
#include "server/EmailAccount.h"
#include "server/Installation.h"
#include "server/Objects.h"
#include "server/Session.h"
#include "support/Wide.h"
#include "win32/Owner.h"

#include <algorithm>
#include <array>

namespace {

FakeAct* act = nullptr;
Session::Facts facts;

/// What stands between the program and one of the stand-in's objects.
class Observed final : public ComObject<IDispatch> {
public:
    explicit Observed(ComPtr<IDispatch> object) : object_(std::move(object)) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        return Answers(iid) ? ComObject::QueryInterface(iid, object) : object_->QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return object_->GetTypeInfoCount(count); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        const HRESULT code = object_->GetIDsOfNames(iid, names, count, locale, ids);
        // Out of process each question is a trip to ACT!, and the answer holds as long as the object.
        return code != S_OK || names_.emplace(ids[0], names[0]).second ? code : E_UNEXPECTED;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT*) override {
        const HRESULT code = act->Invoke(*object_.Get(), id, names_.at(id), flags, parameters, result, exception);
        if (code == S_OK && result && result->vt == VT_DISPATCH && result->pdispVal) {
            ComPtr<IDispatch> made(result->pdispVal);
            result->pdispVal = new Observed(std::move(made));
        }
        return code;
    }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IDispatch; }

    ComPtr<IDispatch> object_;
    std::map<DISPID, std::wstring> names_;
};

/// The stand-in's component, which says whether it is alive.
class Component final : public EventComponent {
public:
    Component() { act->Components.insert(this); }
    ~Component() override { act->Components.erase(this); }
};

ComPtr<IDispatch> MakeEvent() { return ComPtr<IDispatch>(static_cast<Automation*>(new Component)); }

class Factory final : public ComObject<IClassFactory> {
public:
    explicit Factory(ComPtr<IDispatch> (*make)()) : make_(make) {}
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
        const ComPtr<IDispatch> made(new Observed(make_()));
        return made->QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IClassFactory; }

    ComPtr<IDispatch> (*make_)();
};

DWORD RegisterClassObject(const wchar_t* progId, const CLSID& classId, ComPtr<IDispatch> (*make)()) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(classId, text.data(), 40);
    // Wine's COM reads the machine's half of the classes only.
    const std::wstring key = std::wstring(L"Software\\Classes\\") + progId + L"\\CLSID";
    RegistryKey opened;
    REQUIRE(RegCreateKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_WRITE, nullptr,
                            opened.Receive(), nullptr) == ERROR_SUCCESS);
    RegSetValueExW(opened.Get(), nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.data()), 39 * sizeof(wchar_t));
    const ComPtr<IClassFactory> factory(new Factory(make));
    DWORD cookie = 0;
    REQUIRE(
        SUCCEEDED(CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie)));
    return cookie;
}

} // namespace

FakeAct::FakeAct() {
    act = this;
    for (const auto& [key, value] : {std::pair{L"DefaultContactLayout", L"C:\\Act\\Layout\\own.cly"},
                                     {L"DefaultGroupLayout", L"C:\\Act\\Layout\\own.gly"},
                                     {L"StartupMacro", L"C:\\Act\\Macro\\own.mpr"},
                                     {L"DefaultLocation0", L"C:\\Act\\Database\\"},
                                     {L"DefaultLocation6", L"C:\\Act\\Layout"},
                                     {L"DefaultLocation7", L"C:\\Act\\Macro\\"}})
        State[{L"Preferences", key}] = value;
    registered_ = {RegisterClassObject(L"ACTOLE.APPOBJECT", ClassIds::AppObject, MakeAppObject),
                   RegisterClassObject(L"ACTOLE.AUXCMDS", ClassIds::AuxCommands, MakeAuxCommands),
                   RegisterClassObject(L"ACTEVENTLib.ActEvent", ClassIds::ActEvent, MakeEvent)};
}

FakeAct::~FakeAct() {
    for (const DWORD cookie : registered_) CoRevokeClassObject(cookie);
    CHECK(Components.empty()); // whoever has one lets go of it
    act = nullptr;
}

bool FakeAct::IsListenedTo() const { return std::ranges::any_of(Components, &EventComponent::HasSinks); }

void FakeAct::UserWantsToClose() {
    REQUIRE(IsListenedTo());
    for (EventComponent* component : std::set(Components)) component->UserWantsToClose();
    CHECK_MESSAGE(IsListenedTo(), "the component was let go inside its own call");
}

std::wstring FakeAct::CallsSince(size_t first) const {
    std::wstring joined;
    for (size_t index = first; index < Calls.size(); ++index) joined += Calls[index] + L"\n";
    return joined;
}

HRESULT FakeAct::Invoke(IDispatch& object, DISPID id, const std::wstring& member, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception) {
    const bool isPut = flags == DISPATCH_PROPERTYPUT;
    std::wstring call = member + (isPut ? L" = " : L"(");
    for (UINT index = parameters->cArgs; index > 0; --index)
        call += Describe(parameters->rgvarg[index - 1]) + (index > 1 ? L", " : L"");
    Calls.push_back(isPut ? call : call + L")");
    if (const auto outcome = Fault ? Fault(member, result) : std::nullopt) return *outcome;
    if (const auto failure = Failures.find(member); failure != Failures.end()) {
        if (failure->second.Plain) return failure->second.Plain;
        exception->wCode = failure->second.wCode;
        exception->scode = failure->second.Scode;
        exception->bstrDescription = SysAllocString(failure->second.Description);
        return DISP_E_EXCEPTION;
    }
    const HRESULT code =
        object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, parameters, result, exception, nullptr);
    // The component counts the windows of stand-ins, and this one has none.
    if (result && member == L"InstanceCount") result->lVal = InstanceCount;
    return code;
}

// What the stand-in's objects stand on, without files, windows and the registry.

std::optional<std::wstring> State::Text(const wchar_t* section, const std::wstring& key) {
    const auto found = act->State.find({section, key});
    return found == act->State.end() ? std::nullopt : std::optional(found->second);
}
std::optional<long> State::Number(const wchar_t* section, const std::wstring& key) {
    const std::optional<std::wstring> text = Text(section, key);
    return text ? std::optional(std::wcstol(text->c_str(), nullptr, 10)) : std::nullopt;
}
bool State::Flag(const wchar_t* section, const std::wstring& key, bool otherwise) {
    return Number(section, key).value_or(otherwise ? 1 : 0) != 0;
}
std::vector<std::wstring> State::Keys(const wchar_t*) { return {}; }
void State::Store(const wchar_t* section, const std::wstring& key, const std::wstring& value) {
    act->State[{section, key}] = value;
}
void State::Remove(const wchar_t* section, const std::wstring& key) { act->State.erase({section, key}); }

void Journal::Write(Entry) {}
void Journal::Note(const std::wstring&, const std::wstring&, const std::wstring&) {}

const Session::Facts& Session::Current() {
    facts.Database = act->OpenDatabase;
    return facts;
}
void Session::OpenDatabase(const std::wstring& path) { act->OpenDatabase = path; }
std::wstring Session::User() { return act->User; }
void Session::ShowView(int) {}
void Session::SetCalendarMode(int) {}
void Session::RunMacro(const std::wstring&) {}
void Session::RequestClose() {}

Installation::LastUsed Installation::ReadLastUsed() { return {}; }
EmailAccount::AtOpen::AtOpen() = default;
EmailAccount::AtOpen::~AtOpen() = default;
HINSTANCE Library::Instance() { return GetModuleHandleW(nullptr); }
