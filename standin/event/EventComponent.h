#pragma once

#include "common/Automation.h"
#include "event/ConnectionPoint.h"
#include "event/Hook.h"

#include <optional>

/// The event component: answers also when no ACT! runs, and tells its sinks when the user wants to close ACT!.
class EventComponent : public Automation,
                       public IConnectionPointContainer,
                       public IProvideClassInfo2,
                       public IOleObject,
                       public Hook::Listener {
public:
    EventComponent();

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return Automation::AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return Automation::Release(); }

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

    STDMETHODIMP GetClassInfo(ITypeInfo** info) override;
    STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override;

    STDMETHODIMP SetClientSite(IOleClientSite* site) override;
    STDMETHODIMP GetClientSite(IOleClientSite** site) override;
    STDMETHODIMP GetUserClassID(CLSID* classId) override;
    STDMETHODIMP IsUpToDate() override { return S_OK; }
    STDMETHODIMP Update() override { return S_OK; }
    STDMETHODIMP SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    STDMETHODIMP Close(DWORD) override { return S_OK; }
    STDMETHODIMP GetMiscStatus(DWORD, DWORD* status) override;
    STDMETHODIMP SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    STDMETHODIMP DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override { return E_NOTIMPL; }
    STDMETHODIMP EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    STDMETHODIMP GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    STDMETHODIMP SetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
    STDMETHODIMP GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
    STDMETHODIMP Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP Unadvise(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    STDMETHODIMP SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    /// Lets ACT! close, or not.
    void AnswerUserWantsToClose(bool mayClose);
    bool HasSinks() const { return point_.HasSinks(); }
    void UserWantsToClose() override;
    /// Lets go of ACT!: no event arrives any more.
    void Unhook() { hook_.reset(); }

private:
    ConnectionPoint point_{*this};
    ComPtr<IOleClientSite> site_;
    std::optional<Hook> hook_;
};
