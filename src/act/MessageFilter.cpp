#include "act/MessageFilter.h"

#include "act/ComObject.h"

namespace {

class Filter final : public ComObject<IMessageFilter> {
public:
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
        return SERVERCALL_ISHANDLED;
    }
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD rejectType) override {
        // 100 and more: call again after so many milliseconds; the largest number: give up.
        constexpr DWORD kRetryMilliseconds = 200;
        constexpr auto kGiveUp = static_cast<DWORD>(-1);
        return rejectType == SERVERCALL_RETRYLATER || rejectType == SERVERCALL_REJECTED ? kRetryMilliseconds : kGiveUp;
    }
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
