#pragma once

#include "win32/ComPtr.h"
#include "win32/Windows.h"

#include <map>

/// The one connection point of the event component. It is part of the component and shares its references.
class ConnectionPoint final : public IConnectionPoint {
public:
    explicit ConnectionPoint(IConnectionPointContainer& container) : container_(container) {}
    virtual ~ConnectionPoint() = default;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

    bool HasSinks() const { return !sinks_.empty(); }
    /// Calls a parameterless event of every sink and notes it in the journal.
    void Fire(DISPID event, const wchar_t* name);

private:
    IConnectionPointContainer& container_;
    std::map<DWORD, ComPtr<IDispatch>> sinks_;
    DWORD lastCookie_ = 0;
};

/// An enumerator that gives out one connection point.
ComPtr<IEnumConnectionPoints> MakeEnumeration(ComPtr<IConnectionPoint> point);
