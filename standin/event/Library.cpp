#include "event/Library.h"

#include "common/Protocol.h"
#include "event/EventComponent.h"

#include <new>

namespace {

HINSTANCE instance = nullptr;
LONG locks = 0;

/// Lives as long as the library: its references are not counted.
class Factory final : public IClassFactory {
public:
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
        if (outer) return CLASS_E_NOAGGREGATION;
        const ComPtr<EventComponent> made(new (std::nothrow) EventComponent);
        return made ? made->QueryInterface(iid, object) : E_OUTOFMEMORY;
    }
    STDMETHODIMP LockServer(BOOL lock) override {
        locks += lock ? 1 : -1;
        return S_OK;
    }
};

Factory factory;

} // namespace

HINSTANCE Library::Instance() { return instance; }

extern "C" {

BOOL WINAPI DllMain(HINSTANCE module, DWORD, void*) {
    instance = module;
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
    *object = nullptr;
    return classId == ClassIds::ActEvent ? factory.QueryInterface(iid, object) : CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() { return Automation::Count() == 0 && locks == 0 ? S_OK : S_FALSE; }
}
