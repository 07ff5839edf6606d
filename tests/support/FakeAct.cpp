#include "support/FakeAct.h"

#include "act/ComObject.h"
#include "support/Wide.h"
#include "win32/Owner.h"

#include <array>
#include <set>

namespace {

// {6B1D5E21-7C4F-4B7A-9C55-3E0C5A1D0001} and following: classes of the tests alone.
constexpr GUID kApplicationClass{0x6b1d5e21, 0x7c4f, 0x4b7a, {0x9c, 0x55, 0x3e, 0x0c, 0x5a, 0x1d, 0x00, 0x01}};
constexpr GUID kEventClass{0x6b1d5e21, 0x7c4f, 0x4b7a, {0x9c, 0x55, 0x3e, 0x0c, 0x5a, 0x1d, 0x00, 0x02}};
constexpr GUID kCommandsClass{0x6b1d5e21, 0x7c4f, 0x4b7a, {0x9c, 0x55, 0x3e, 0x0c, 0x5a, 0x1d, 0x00, 0x04}};
constexpr GUID kEventInterface{0x6b1d5e21, 0x7c4f, 0x4b7a, {0x9c, 0x55, 0x3e, 0x0c, 0x5a, 0x1d, 0x00, 0x03}};

constexpr std::array kMembers{L"AuxCommandExistsInToolbar",
                              L"AuxCommandExistsInToolsMenu",
                              L"OpenFile",
                              L"Views",
                              L"Preferences",
                              L"openDB",
                              L"RunMacro",
                              L"GetOpenDBName",
                              L"GetCurrentUserName",
                              L"Command",
                              L"Create",
                              L"SetCalendarMode",
                              L"DefaultContactLayout",
                              L"DefaultGroupLayout",
                              L"StartupMacro",
                              L"UseLastDBonStartup",
                              L"GetDefaultLocation",
                              L"InstanceCount",
                              L"RegistrationFailed",
                              L"AnswerUserWantsToClose",
                              L"Close"};

/// The objects of one kind for all: the member decides.
class Object : public ComObject<IDispatch> {
public:
    explicit Object(FakeAct& act) : act_(act) {}
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* identifiers) override {
        // Out of process each question is a trip to ACT!, and the answer holds as long as the object.
        if (!asked_.insert(names[0]).second) return E_UNEXPECTED;
        for (size_t index = 0; index < kMembers.size(); ++index)
            if (lstrcmpiW(kMembers.at(index), names[0]) == 0) {
                *identifiers = static_cast<DISPID>(index) + 1;
                return S_OK;
            }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID identifier, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        return act_.Invoke(kMembers.at(static_cast<size_t>(identifier) - 1), flags, *parameters, result, exception);
    }

protected:
    FakeAct& Act() const { return act_; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IDispatch; }

    FakeAct& act_;
    std::set<std::wstring> asked_;
};

/// The only connection point of the event object.
class Connection final : public ComObject<IConnectionPoint> {
public:
    explicit Connection(FakeAct& act) : act_(act) {}
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override {
        *iid = kEventInterface;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
        *cookie = 1;
        return sink->QueryInterface(kEventInterface, act_.Listener.ReceiveVoid());
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override {
        act_.Listener.Reset();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IConnectionPoint; }

    FakeAct& act_;
};

/// An enumerator over that one connection point: the component offers no IProvideClassInfo2.
class Connections final : public ComObject<IEnumConnectionPoints> {
public:
    explicit Connections(FakeAct& act) : act_(act) {}
    HRESULT STDMETHODCALLTYPE Next(ULONG, IConnectionPoint** points, ULONG*) override {
        *points = new Connection(act_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reset() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints**) override { return E_NOTIMPL; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IEnumConnectionPoints; }

    FakeAct& act_;
};

class Container final : public ComObject<IConnectionPointContainer> {
public:
    explicit Container(FakeAct& act) : act_(act) {}
    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override {
        *points = new Connections(act_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID, IConnectionPoint**) override {
        return CONNECT_E_NOCONNECTION;
    }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IConnectionPointContainer; }

    FakeAct& act_;
};

class EventObject final : public Object {
public:
    using Object::Object;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (iid != IID_IConnectionPointContainer) return Object::QueryInterface(iid, object);
        *object = static_cast<IConnectionPointContainer*>(new Container(Act()));
        return S_OK;
    }
};

template <class T>
class Factory final : public ComObject<IClassFactory> {
public:
    explicit Factory(FakeAct& act) : act_(act) {}
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID iid, void** object) override {
        const ComPtr<T> made(new T(act_));
        return made->QueryInterface(iid, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IClassFactory; }

    FakeAct& act_;
};

template <class T>
DWORD RegisterClassObject(const wchar_t* progId, const GUID& classId, FakeAct& act) {
    std::array<wchar_t, 40> text{};
    StringFromGUID2(classId, text.data(), 40);
    // Wine's COM reads the machine's half of the classes only.
    const std::wstring key = std::wstring(L"Software\\Classes\\") + progId + L"\\CLSID";
    RegistryKey opened;
    REQUIRE(RegCreateKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_WRITE, nullptr,
                            opened.Receive(), nullptr) == ERROR_SUCCESS);
    RegSetValueExW(opened.Get(), nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.data()), 39 * sizeof(wchar_t));
    const ComPtr<IClassFactory> factory(new Factory<T>(act));
    DWORD cookie = 0;
    REQUIRE(
        SUCCEEDED(CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie)));
    return cookie;
}

std::wstring Shown(const VARIANT& value) {
    VARIANT text{};
    VARIANT source = value;
    VariantChangeType(&text, &source, VARIANT_ALPHABOOL, VT_BSTR);
    std::wstring shown = text.bstrVal ? text.bstrVal : L"";
    VariantClear(&text);
    switch (value.vt) {
    case VT_BSTR: return L"VT_BSTR " + shown;
    case VT_I2: return L"VT_I2 " + shown;
    case VT_I4: return L"VT_I4 " + shown;
    case VT_BOOL: return L"VT_BOOL " + shown;
    default: return L"VT_" + std::to_wstring(value.vt) + L" " + shown;
    }
}

void PutText(VARIANT* result, const std::wstring& text) {
    if (!result) return;
    result->vt = VT_BSTR;
    result->bstrVal = SysAllocString(text.c_str());
}

} // namespace

FakeAct::FakeAct()
    : registered_{RegisterClassObject<Object>(L"ACTOLE.APPOBJECT", kApplicationClass, *this),
                  RegisterClassObject<Object>(L"ACTOLE.AUXCMDS", kCommandsClass, *this),
                  RegisterClassObject<EventObject>(L"ACTEVENTLib.ActEvent", kEventClass, *this)} {}

FakeAct::~FakeAct() {
    for (const DWORD cookie : registered_) CoRevokeClassObject(cookie);
}

void FakeAct::UserWantsToClose() {
    REQUIRE(Listener);
    const ComPtr<IDispatch> listener = Listener;
    DISPPARAMS none{};
    CHECK(listener->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr) ==
          S_OK);
}

std::wstring FakeAct::CallsSince(size_t first) const {
    std::wstring joined;
    for (size_t index = first; index < Calls.size(); ++index) joined += Calls[index] + L"\n";
    return joined;
}

HRESULT FakeAct::Invoke(const std::wstring& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result,
                        EXCEPINFO* exception) {
    std::wstring call = member + (flags == DISPATCH_PROPERTYPUT ? L" = " : L"(");
    for (UINT index = parameters.cArgs; index > 0; --index)
        call += Shown(parameters.rgvarg[index - 1]) + (index > 1 ? L", " : L"");
    Calls.push_back(flags == DISPATCH_PROPERTYPUT ? call : call + L")");
    if (const auto outcome = Fault ? Fault(member, result) : std::nullopt) return *outcome;
    if (const auto failure = Failures.find(member); failure != Failures.end()) {
        if (failure->second.Plain) return failure->second.Plain;
        exception->wCode = failure->second.wCode;
        exception->scode = failure->second.Scode;
        exception->bstrDescription = SysAllocString(failure->second.Description);
        return DISP_E_EXCEPTION;
    }
    if (!result) return S_OK;
    if (member == L"Views" || member == L"Preferences" || member == L"Create") {
        result->vt = VT_DISPATCH;
        result->pdispVal = new Object(*this);
    } else if (member == L"GetDefaultLocation") {
        PutText(result, Locations[parameters.rgvarg[0].lVal]);
    } else if (member == L"UseLastDBonStartup" || member == L"RegistrationFailed") {
        result->vt = VT_BOOL;
        result->boolVal = (member[0] == L'U' ? UseLastDatabase : RegistrationFailed) ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (member.find(L"AuxCommand") != std::wstring::npos) {
        result->vt = VT_I4;
        result->lVal = 0;
    } else if (member == L"InstanceCount") {
        result->vt = VT_I4;
        result->lVal = InstanceCount;
    } else {
        PutText(result, Texts[member]);
    }
    return S_OK;
}
