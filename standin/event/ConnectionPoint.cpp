#include "event/ConnectionPoint.h"

#include "common/Journal.h"
#include "common/Protocol.h"
#include "win32/Owner.h"

#include <string>

namespace {

/// The enumeration of a single connection point.
class Enumeration final : public IEnumConnectionPoints {
public:
    Enumeration(ComPtr<IConnectionPoint> point, bool done) : point_(std::move(point)), done_(done) {}
    virtual ~Enumeration() = default;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool known = iid == IID_IUnknown || iid == IID_IEnumConnectionPoints;
        *object = known ? this : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) const Owned<Enumeration> last(this);
        return left;
    }
    STDMETHODIMP Next(ULONG count, IConnectionPoint** points, ULONG* fetched) override {
        const ULONG given = count > 0 && !done_ ? 1 : 0;
        if (given) *points = ComPtr<IConnectionPoint>(point_).Detach();
        if (given) done_ = true;
        if (fetched) *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    STDMETHODIMP Skip(ULONG count) override {
        const ULONG left = done_ ? 0 : 1;
        done_ = done_ || count > 0;
        return count <= left ? S_OK : S_FALSE;
    }
    STDMETHODIMP Reset() override {
        done_ = false;
        return S_OK;
    }
    STDMETHODIMP Clone(IEnumConnectionPoints** copy) override {
        *copy = new Enumeration(point_, done_);
        return S_OK;
    }

private:
    ComPtr<IConnectionPoint> point_;
    bool done_;
    ULONG references_ = 1;
};

void NoteEvent(const wchar_t* member, const wchar_t* flags, const std::wstring& result) {
    Journal::Write({{}, L"EVENT", member, flags, {}, L"-> " + result});
}

} // namespace

ComPtr<IEnumConnectionPoints> MakeEnumeration(ComPtr<IConnectionPoint> point) {
    return ComPtr<IEnumConnectionPoints>(new Enumeration(std::move(point), false));
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** object) {
    const bool known = iid == IID_IUnknown || iid == IID_IConnectionPoint;
    *object = known ? this : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) ConnectionPoint::AddRef() { return container_.AddRef(); }

STDMETHODIMP_(ULONG) ConnectionPoint::Release() { return container_.Release(); }

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid) {
    *iid = ClassIds::ActEvents;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    *container = ComPtr<IConnectionPointContainer>::Share(&container_).Detach();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
    *cookie = 0;
    if (!sink) return E_POINTER;
    ComPtr<IDispatch> events;
    if (FAILED(sink->QueryInterface(ClassIds::ActEvents, events.ReceiveVoid()))) return CONNECT_E_CANNOTCONNECT;
    sinks_.emplace(++lastCookie_, std::move(events));
    *cookie = lastCookie_;
    NoteEvent(L"Advise", L"-", std::to_wstring(lastCookie_));
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
    const bool known = sinks_.erase(cookie) != 0;
    NoteEvent(L"Unadvise", L"-", known ? L"S_OK" : L"CONNECT_E_NOCONNECTION");
    return known ? S_OK : CONNECT_E_NOCONNECTION;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** connections) {
    *connections = nullptr;
    return E_NOTIMPL;
}

void ConnectionPoint::Fire(DISPID event, const wchar_t* name) {
    // A sink may unadvise inside its event.
    const std::map<DWORD, ComPtr<IDispatch>> sinks = sinks_;
    for (const auto& [cookie, sink] : sinks) {
        DISPPARAMS none{};
        NoteEvent(name, L"FIRE", std::to_wstring(cookie));
        sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr);
    }
}
