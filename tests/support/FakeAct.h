#pragma once

#include "win32/ComPtr.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// An ACT! inside this process: an application, views, preferences, commands and event object behind the real ProgIDs.
/// It writes down every call, last argument last, as "openDB(VT_BSTR C:\x.dbf)", and fails where it is told to.
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
    std::map<std::wstring, std::wstring> Texts{{L"GetCurrentUserName", L"Chris Huffman"},
                                               {L"GetOpenDBName", L""},
                                               {L"DefaultContactLayout", L"C:\\Act\\Layout\\own.cly"},
                                               {L"DefaultGroupLayout", L"C:\\Act\\Layout\\own.gly"},
                                               {L"StartupMacro", L"C:\\Act\\Macro\\own.mpr"}};
    std::map<long, std::wstring> Locations{
        {0, L"C:\\Act\\Database\\"}, {6, L"C:\\Act\\Layout"}, {7, L"C:\\Act\\Macro\\"}};
    bool UseLastDatabase = false;
    long InstanceCount = 1;
    bool RegistrationFailed = false;
    /// Asked before each call is answered; what it returns is the call's outcome then. `result`, null where none is
    /// wanted, may have been set.
    std::function<std::optional<HRESULT>(const std::wstring& member, VARIANT* result)> Fault;

    /// Raises OnActUserWantsToClose in the listener, as the event component does.
    void UserWantsToClose();
    /// The calls after the start-up, joined by line ends.
    std::wstring CallsSince(size_t first) const;

    HRESULT Invoke(const std::wstring& member, WORD flags, const DISPPARAMS& parameters, VARIANT* result,
                   EXCEPINFO* exception);
    ComPtr<IDispatch> Listener;

private:
    std::vector<DWORD> registered_;
};
