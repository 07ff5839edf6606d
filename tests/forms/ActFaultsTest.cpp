// An ACT! that misbehaves at any one call of the start and of an open. An ordinary run tries a part of all pairs of a
// call and a fault; with KELMORRA_SOAK_FAULTS=1 in the environment it is every pair.

#include "support/ActDesk.h"
#include "support/Setting.h"

namespace {

constexpr short kCalendarView = 6; // the view that needs the most calls

struct Fault {
    const char* name;
    HRESULT code; ///< S_OK: the call succeeds, with what `answer` makes its result
    void (*answer)(VARIANT& result);
};

constexpr HRESULT Code(unsigned long code) { return static_cast<HRESULT>(code); }

const Fault kFaults[] = {
    {"E_FAIL", E_FAIL, nullptr},
    {"E_NOTIMPL", E_NOTIMPL, nullptr},
    {"an exception without any information", DISP_E_EXCEPTION, nullptr},
    {"no such member", DISP_E_MEMBERNOTFOUND, nullptr},
    {"RPC_E_DISCONNECTED", RPC_E_DISCONNECTED, nullptr},
    {"the server is unavailable", Code(0x800706BA), nullptr},
    {"a Basic error", Code(0x800A005B), nullptr},
    {"an unknown code", Code(0x87654321), nullptr},
    {"S_FALSE and no result", S_FALSE, [](VARIANT&) {}},
    {"no result", S_OK, [](VARIANT&) {}},
    {"a null text", S_OK, [](VARIANT& result) { result.vt = VT_BSTR; }},
    {"a huge text", S_OK,
     [](VARIANT& result) {
         result.vt = VT_BSTR;
         result.bstrVal = SysAllocString(std::wstring(1'000'000, L'x').c_str());
     }},
    {"a null object", S_OK, [](VARIANT& result) { result.vt = VT_DISPATCH; }},
    {"a number", S_OK,
     [](VARIANT& result) {
         result.vt = VT_R8;
         result.dblVal = 1e300;
     }},
};

/// A desk with one database that has everything an open can need.
struct Desk : ActDesk {
    Desk() {
        AddDatabase(L"Sales", {{L"Path", L"C:\\Data\\Sales.dbf"},
                               {L"CLY", L"C:\\L\\Sales.cly"},
                               {L"GLY", L"C:\\L\\Sales.gly"},
                               {L"StartupMacro", L"C:\\M\\Hello.mpr"}});
        UserStore::Set(L"Sales", L"Username", L"Chris");
        UserStore::Set(L"Settings", L"Width", L"9000");
    }
};

/// Starts, opens the database when the window has come up, and ends. How many message boxes there were.
size_t StartAndOpen(const Desk& desk) {
    const std::string before = desk.SettingsBytes();
    DialogScript script;
    script.Otherwise(Leave);
    Main window;
    CHECK(window.Visible() != window.Unloaded());
    if (window.Visible()) CHECK(window.ListView1.RowCount() == 1);
    if (window.Visible()) window.Open_DB(L"Sales", kCalendarView, false);
    CHECK(window.Visible() != window.Unloaded());
    if (window.Visible()) CHECK(IsWindowEnabled(window.Handle()));
    End(window);
    for (const DialogScript::Seen& seen : script.All()) CHECK_FALSE(seen.Text.empty());
    CHECK(desk.SettingsBytes() == before);
    CHECK(UserStore::Get(L"Sales", L"Username") == L"Chris");
    CHECK_FALSE(UserStore::Get(L"Settings", L"Width").empty());
    return script.All().size();
}

/// The number of calls that a start and an open make.
size_t CallsOfARun() {
    const Desk desk;
    CHECK(StartAndOpen(desk) == 0);
    return desk.Act.Calls.size();
}

bool IsTried(size_t pair) {
    constexpr size_t kPart = 13; // has no divisor in common with the number of faults
    return pair % Setting("KELMORRA_SOAK_FAULTS", kPart) == 0;
}

} // namespace

TEST_CASE("Whatever ACT! answers to any one call, there is a message or the work goes on, and nothing is lost") {
    const size_t calls = CallsOfARun();
    size_t pair = 0;
    size_t runs = 0;
    for (size_t number = 1; number <= calls; ++number)
        for (const Fault& fault : kFaults) {
            if (!IsTried(pair++)) continue;
            ++runs;
            Desk desk;
            std::wstring at;
            desk.Act.Fault = [&](const std::wstring& member, VARIANT* result) -> std::optional<HRESULT> {
                if (desk.Act.Calls.size() != number) return std::nullopt;
                at = member;
                if (fault.answer && result) fault.answer(*result);
                return fault.code;
            };
            const size_t boxes = StartAndOpen(desk);
            CAPTURE(at);
            CAPTURE(fault.name);
            CHECK(boxes <= 1);
            // What a call was to bring may be missing without harm; and at the end nobody is there to be told.
            const bool isSilent = fault.code == S_OK || fault.code == S_FALSE || at == L"Close";
            if (!isSilent) CHECK(boxes == 1);
        }
    MESSAGE(runs << " starts and opens, with a fault at each of " << calls << " calls");
}

TEST_CASE("When ACT!'s user closes it during any call of the start or of an open, the program ends without a word") {
    const size_t calls = CallsOfARun();
    for (size_t number = 1; number <= calls; ++number) {
        Desk desk;
        std::wstring at;
        desk.Act.Fault = [&](const std::wstring& member, VARIANT*) -> std::optional<HRESULT> {
            if (desk.Act.Calls.size() != number || !desk.Act.IsListenedTo()) return std::nullopt;
            at = member;
            desk.Act.UserWantsToClose();
            // As COM does while it waits for an answer.
            MSG message{};
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
            return E_FAIL;
        };
        DialogScript script; // fails on any box
        Main window;
        if (!window.Unloaded()) window.Open_DB(L"Sales", kCalendarView, false);
        CAPTURE(at);
        RunToEnd(window);
        CHECK(Form::Loaded().size() <= 1);
    }
}
