#pragma once

#include "act/Dispatch.h"
#include "win32/ComPtr.h"

#include <functional>

/// The event component of ACT! ("ACTEVENTLib.ActEvent") and the sink that listens to it. In process: it answers also
/// when no ACT! runs.
class ActEvent {
public:
    ActEvent() = default;
    ~ActEvent();
    ActEvent(const ActEvent&) = delete;
    ActEvent& operator=(const ActEvent&) = delete;

    /// Creates the component, gives it a client site and listens to its event. Returns false when it is not registered
    /// on this computer; everything below then answers as if no ACT! ran and the registration had failed.
    bool Create(std::function<void()> onActUserWantsToClose);

    /// The number of running ACT! instances.
    long InstanceCount(Where at = Where::current()) const;
    /// True when the component could not register itself with ACT!.
    bool RegistrationFailed(Where at = Where::current()) const;
    /// Answers the event; true lets ACT! close.
    void AnswerUserWantsToClose(bool letClose, Where at = Where::current()) const;
    /// Stops listening and has the component let go of ACT!. Errors are ignored: ACT! may be gone already.
    void Close() noexcept;

private:
    void Advise(std::function<void()> handler);
    void Unadvise() noexcept;

    Dispatch component_;
    ComPtr<IConnectionPoint> connection_;
    ComPtr<IOleClientSite> site_;
    DWORD cookie_ = 0;
};
