#include "act/MessageFilter.h"

#include "act/ComObject.h"

namespace {

class Filter final : public ComObject<IMessageFilter> {
public:
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
        return SERVERCALL_ISHANDLED;
    }
    /// The call comes back as refused, without a box of the system's: it is repeated where its limit is known.
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD) override { return static_cast<DWORD>(-1); }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }

private:
    bool Answers(REFIID iid) const override { return iid == IID_IUnknown || iid == IID_IMessageFilter; }
};

} // namespace

MessageFilter::MessageFilter() {
    const ComPtr<IMessageFilter> filter(new Filter);
    CoRegisterMessageFilter(filter.Get(), previous_.Receive());
}

MessageFilter::~MessageFilter() { CoRegisterMessageFilter(previous_.Get(), nullptr); }
