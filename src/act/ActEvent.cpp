#include "act/ActEvent.h"

#include "act/ComObject.h"

#include <utility>

namespace {

constexpr DISPID kOnActUserWantsToClose = 1;

/// Where an OLE control of the program lives. The event component is invisible and asks its site for nothing.
class ClientSite final : public ComObject<IOleClientSite> {
public:
    HRESULT STDMETHODCALLTYPE SaveObject() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override {
        if (moniker) *moniker = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override {
        if (container) *container = nullptr;
        return E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IOleClientSite; }
};

/// Receives the component's events.
class Sink final : public ComObject<IDispatch> {
public:
    Sink(REFIID source, std::function<void()> handler) : source_(source), handler_(std::move(handler)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count) *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (info) *info = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID identifier, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        if (identifier != kOnActUserWantsToClose) return DISP_E_MEMBERNOTFOUND;
        try {
            handler_();
            return S_OK;
        } catch (...) {
            return E_FAIL; // no exception may cross into the component
        }
    }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IDispatch || iid == source_; }

    IID source_;
    std::function<void()> handler_;
};

/// The component's default event interface, or IID_NULL when it does not tell.
IID SourceInterface(const ComPtr<IUnknown>& component) {
    IID source = IID_NULL;
    const auto info = component.As<IProvideClassInfo2>(IID_IProvideClassInfo2);
    if (!info || FAILED(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source))) source = IID_NULL;
    return source;
}

ComPtr<IConnectionPoint> FindConnectionPoint(const ComPtr<IUnknown>& component) {
    ComPtr<IConnectionPoint> point;
    const auto container = component.As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    if (!container) return point;
    const IID source = SourceInterface(component);
    if (source != IID_NULL && SUCCEEDED(container->FindConnectionPoint(source, point.Receive()))) return point;
    ComPtr<IEnumConnectionPoints> points;
    if (SUCCEEDED(container->EnumConnectionPoints(points.Receive()))) points->Next(1, point.Receive(), nullptr);
    return point;
}

} // namespace

ActEvent::~ActEvent() { Close(); }

bool ActEvent::Create(std::function<void()> onActUserWantsToClose) {
    try {
        component_ = Dispatch::Create(L"ACTEVENTLib.ActEvent");
    } catch (const Error&) {
        return false;
    }
    const auto component = ComPtr<IUnknown>::Share(component_.Get());
    if (const auto control = component.As<IOleObject>(IID_IOleObject)) {
        site_ = ComPtr<IOleClientSite>(new ClientSite);
        control->SetClientSite(site_.Get());
    }
    Advise(std::move(onActUserWantsToClose));
    return true;
}

void ActEvent::Advise(std::function<void()> handler) {
    connection_ = FindConnectionPoint(ComPtr<IUnknown>::Share(component_.Get()));
    IID source = IID_NULL;
    if (!connection_ || FAILED(connection_->GetConnectionInterface(&source))) return;
    const ComPtr<IDispatch> sink(new Sink(source, std::move(handler)));
    if (FAILED(connection_->Advise(sink.Get(), &cookie_))) connection_.Reset();
}

void ActEvent::Unadvise() noexcept {
    if (connection_ && cookie_) connection_->Unadvise(std::exchange(cookie_, 0));
    connection_.Reset();
}

long ActEvent::InstanceCount(Where at) const {
    return component_ ? component_.Get({L"InstanceCount", at}).Number(at) : 0;
}

bool ActEvent::RegistrationFailed(Where at) const {
    return !component_ || component_.Get({L"RegistrationFailed", at}).Truth(at);
}

void ActEvent::AnswerUserWantsToClose(bool letClose, Where at) const {
    if (component_) component_.Call({L"AnswerUserWantsToClose", at}, letClose);
}

void ActEvent::Close() noexcept {
    if (!component_) return;
    Unadvise();
    try {
        if (const auto control = ComPtr<IUnknown>::Share(component_.Get()).As<IOleObject>(IID_IOleObject))
            control->SetClientSite(nullptr);
        component_.Call(L"Close");
    } catch (const Error&) {
        // The component may have lost ACT! already; nothing is left to let go of.
    }
    component_.Release();
    site_.Reset();
}
