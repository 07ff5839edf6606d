#include "server/ClassObjects.h"

#include "common/Protocol.h"
#include "server/Objects.h"

namespace {

/// Lives as long as the process: its references are not counted.
class Factory final : public IClassFactory {
public:
    explicit Factory(ComPtr<IDispatch> (*make)()) : make_(make) {}
    virtual ~Factory() = default;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IClassFactory;
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        *object = nullptr;
        return outer ? CLASS_E_NOAGGREGATION : make_()->QueryInterface(iid, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    ComPtr<IDispatch> (*make_)();
};

struct Served {
    const CLSID& classId;
    Factory factory;
    DWORD cookie;
};

Served served[] = {
    {ClassIds::AppObject, Factory(MakeAppObject), 0},
    {ClassIds::AuxCommands, Factory(MakeAuxCommands), 0},
};

LONG WINAPI RevokeAfterCrash(EXCEPTION_POINTERS*) {
    ClassObjects::Revoke();
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

namespace ClassObjects {

HRESULT Register() {
    SetUnhandledExceptionFilter(RevokeAfterCrash);
    for (Served& one : served) {
        const HRESULT code =
            CoRegisterClassObject(one.classId, &one.factory, CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &one.cookie);
        if (FAILED(code)) return code;
    }
    return S_OK;
}

void Revoke() {
    for (Served& one : served)
        if (const DWORD cookie = std::exchange(one.cookie, 0)) CoRevokeClassObject(cookie);
}

void RevokeAndDie() {
    Revoke();
    TerminateProcess(GetCurrentProcess(), 1);
}

} // namespace ClassObjects
