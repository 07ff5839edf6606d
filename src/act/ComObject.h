#pragma once

#include "win32/Windows.h"

/// Reference counting for a COM object of ours on the user-interface thread. It begins with one reference.
template <class Interface>
class ComObject : public Interface {
public:
    ComObject() = default;
    virtual ~ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0) delete this; // NOLINT(cppcoreguidelines-owning-memory): COM's way of ownership
        return left;
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = Answers(iid) ? static_cast<Interface*>(this) : nullptr;
        if (!*object) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

private:
    /// True for the interfaces that the object has.
    virtual bool Answers(REFIID iid) const = 0;

    ULONG references_ = 1;
};
