#pragma once

#include "win32/ComPtr.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

class EventComponent;

/// An ACT! inside this process: the stand-in's own objects behind the real ProgIDs, without its window, dialogs and
/// files. It writes down every call, last argument last, as `openDB(VT_BSTR "C:\x.dbf")`, and fails where it is told
/// to.
class FakeAct {
public:
    /// How a member fails: as an exception with wCode or scode, or (both 0) with a plain failure code.
    struct Failure {
        WORD wCode = 0;
        HRESULT Scode = 0;
        HRESULT Plain = 0;
        const wchar_t* Description = nullptr;
    };

    /// Makes the ProgIDs resolve to objects of this process for as long as it lives.
    FakeAct();
    ~FakeAct();
    FakeAct(const FakeAct&) = delete;
    FakeAct& operator=(const FakeAct&) = delete;

    std::vector<std::wstring> Calls;
    std::map<std::wstring, Failure> Failures; ///< by member name
    std::wstring OpenDatabase;
    std::wstring User = L"Chris Huffman";
    long InstanceCount = 1;
    /// What the stand-in reads from its state file and changes there, by section and key.
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> State;
    /// Asked before each call is answered; what it returns is the call's outcome then. `result`, null where none is
    /// wanted, may have been set.
    std::function<std::optional<HRESULT>(const std::wstring& member, VARIANT* result)> Fault;

    /// True while somebody listens to the event component.
    bool IsListenedTo() const;
    /// Raises OnActUserWantsToClose in the listener, as the event component does.
    void UserWantsToClose();
    /// The calls from a certain one on, each with a line end.
    std::wstring CallsSince(size_t first) const;

    /// Writes a call down and lets the object answer, or fails as ordered.
    HRESULT Invoke(IDispatch& object, DISPID id, const std::wstring& member, WORD flags, DISPPARAMS* parameters,
                   VARIANT* result, EXCEPINFO* exception);
    std::set<EventComponent*> Components;

private:
    std::vector<DWORD> registered_;
};
