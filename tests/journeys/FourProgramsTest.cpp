// Four real programs on one settings file. KELMORRA_SOAK_ROUNDS in the environment sets another number of rounds than
// that of an ordinary run.

#include "support/JourneyDialogs.h"
#include "support/Setting.h"
#include "support/Text.h"

#include <algorithm>
#include <array>
#include <vector>
#include <winternl.h>

namespace {

using namespace JourneyDialogs;

constexpr int kPrograms = 4;

std::wstring NameOf(HANDLE object) {
    using Query = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    static const auto query = reinterpret_cast<Query>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryObject"));
    constexpr int kObjectName = 1;
    alignas(UNICODE_STRING) std::array<BYTE, 1024> answer{};
    if (query(object, kObjectName, answer.data(), answer.size(), nullptr) != 0) return {};
    const auto& name = *reinterpret_cast<const UNICODE_STRING*>(answer.data());
    return {name.Buffer, name.Length / sizeof(wchar_t)};
}

/// Takes the mark of the only instance from a program, so that another one starts beside it. Nothing else is changed.
void TakeMark(const Process& program) {
    const KernelHandle process(OpenProcess(PROCESS_DUP_HANDLE, FALSE, program.Id()));
    for (UINT_PTR value = 4; value < 0x1000; value += 4) {
        auto* const theirs = reinterpret_cast<HANDLE>(value); // NOLINT(performance-no-int-to-ptr)
        KernelHandle copy;
        if (!DuplicateHandle(process.Get(), theirs, GetCurrentProcess(), copy.Receive(), 0, FALSE,
                             DUPLICATE_SAME_ACCESS) ||
            !NameOf(copy.Get()).ends_with(L"\\Kelmorra.Instance"))
            continue;
        DuplicateHandle(process.Get(), theirs, GetCurrentProcess(), copy.Receive(), 0, FALSE, DUPLICATE_CLOSE_SOURCE);
        return;
    }
    FAIL("no mark found");
}

std::wstring Name(int program, int round) { return L"D" + std::to_wstring(program) + L" " + std::to_wstring(round); }

std::wstring IniValue(const Journey& journey, const std::wstring& section, const wchar_t* key) {
    std::array<wchar_t, 1000> value{};
    GetPrivateProfileStringW(section.c_str(), key, L"", value.data(), value.size(), journey.SettingsFile().c_str());
    return value.data();
}

std::vector<const Process*> StartFour(Journey& journey) {
    std::vector<const Process*> programs;
    for (int program = 0; program < kPrograms; ++program) {
        JourneyStores::User(L"Display", L"Selected", std::to_wstring(program));
        programs.push_back(&journey.Start());
        journey.MainWindow(*programs.back());
        TakeMark(*programs.back());
    }
    return programs;
}

/// Every program renames its database, all at the same moment.
void RenameAll(const std::vector<const Process*>& programs, int round) {
    std::vector<HWND> dialogs;
    for (int program = 0; program < kPrograms; ++program) {
        const Process& process = *programs.at(static_cast<size_t>(program));
        JourneyWindow::ClickMenu(Journey::Window(process, L"frmMain"), L"mnuEditProperties");
        dialogs.push_back(Journey::Window(process, L"frmProperties"));
        Type(dialogs.back(), {{L"txtName", Name(program, round)}, {L"txtGL", std::to_wstring(round)}});
    }
    for (HWND dialog : dialogs) JourneyWindow::Click(dialog, L"cmdOK");
    for (HWND dialog : dialogs) REQUIRE(Within([&] { return !IsWindow(dialog); }));
}

} // namespace

TEST_CASE_FIXTURE(Journey, "four programs that change one settings file at the same moment lose nothing") {
    for (int program = 0; program < kPrograms; ++program) {
        List(Name(program, 0), L"C:\\Data\\Any.dbf");
        Ini(Name(program, 0), L"CLY", L"C:\\L\\Any.cly");
        JourneyStores::User(Name(program, 0), L"Username", L"Pat");
    }
    StartActElsewhere(*this);
    const std::vector<const Process*> programs = StartFour(*this);
    const auto rounds = static_cast<int>(Setting("KELMORRA_SOAK_ROUNDS", 8));
    int lost = 0;
    for (int round = 1; round <= rounds && lost == 0; ++round) {
        RenameAll(programs, round);
        const std::vector<std::wstring> names = Text::Split(IniValue(*this, L"General", L"Sort"), L';');
        for (int program = 0; program < kPrograms; ++program) {
            const std::wstring name = Name(program, round);
            const bool isThere = std::ranges::count(names, name) == 1 &&
                                 IniValue(*this, name, L"GLY") == std::to_wstring(round) &&
                                 JourneyStores::User(name, L"Username") == L"Pat";
            if (!isThere) ++lost;
        }
        CAPTURE(IniValue(*this, L"General", L"Sort"));
        CHECK(names.size() == kPrograms);
        CHECK(lost == 0);
    }
    MESSAGE(kPrograms << " programs, " << rounds << " rounds of a change by each: " << lost << " lost");
}
