// By what the log-on helper knows ACT!'s program.

#include "logon/ActProgram.h"
#include "support/ScratchRegistry.h"
#include "support/Wide.h"

TEST_CASE("ACT! is the server of its automation object or the program of its files, by the full path") {
    wchar_t path[MAX_PATH]{}, shortPath[MAX_PATH]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    GetShortPathNameW(path, shortPath, MAX_PATH);
    const std::wstring own = path, brief = shortPath;
    SetEnvironmentVariableW(L"KELMORRA_TEST", own.substr(0, own.rfind(L'\\')).c_str());
    constexpr wchar_t kServer[] = L"CLSID\\{1}\\LocalServer32", kOpener[] = L"Database\\shell\\open\\command";
    struct Row {
        std::wstring key, command;
        DWORD type;
        bool isAct;
    };
    const Row rows[] = {{kServer, L'"' + own + L"\" /Automation", REG_SZ, true},
                        {kServer, L"%KELMORRA_TEST%\\UNIT_TESTS /Automation", REG_EXPAND_SZ, true},
                        {kServer, L"%KELMORRA_TEST%\\unit_tests.exe", REG_SZ, false},
                        {kOpener, brief + L" \"%1\"", REG_SZ, true},
                        {kOpener, L"notepad \"" + own + L'"', REG_SZ, false}};
    HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    for (const auto& [key, command, type, isAct] : rows) {
        CAPTURE(command);
        const ScratchRegistry registry;
        RegistryKey opened;
        RegSetValueW(HKEY_CLASSES_ROOT, L"ACTOLE.APPOBJECT\\CLSID", REG_SZ, L"{1}", 0);
        RegSetValueW(HKEY_CLASSES_ROOT, L".dbf", REG_SZ, L"Database", 0);
        RegCreateKeyW(HKEY_CLASSES_ROOT, key.c_str(), opened.Receive());
        RegSetValueExW(opened.Get(), nullptr, 0, type, reinterpret_cast<const BYTE*>(command.c_str()),
                       static_cast<DWORD>((command.size() + 1) * sizeof(wchar_t)));
        CHECK(IsOfProgram(window, L"") == isAct);
    }
    DestroyWindow(window);
}
