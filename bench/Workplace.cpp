#include "Workplace.h"

#include "Locations.h"

#include <filesystem>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

std::string Narrow(const std::wstring& text) { return {text.begin(), text.end()}; } // paths here are ASCII

} // namespace

Workplace::Workplace() {
    fs::copy_file(fs::path(KELMORRA_FOLDER) / L"logon.exe", ProgramFile(L"logon.exe"));
    ActValue(L"", L"Layout File Type", L"C:\\Layouts");
    User(L"Display", L"Selected", L"1");
}

std::wstring Workplace::Minimal() { return fs::path(MINIMAL).make_preferred(); }

std::wstring Workplace::Client() { return fs::path(CLIENT).make_preferred(); }

std::wstring Workplace::Name(int number) {
    constexpr int kLetters = 26;
    return {static_cast<wchar_t>(L'A' + number / kLetters), static_cast<wchar_t>(L'A' + number % kLetters)};
}

void Workplace::WriteList(int databases, const std::string& general, bool justWritten) const {
    std::string sort, sections;
    for (int number = 0; number < databases; ++number) {
        const std::wstring path = File(Name(number) + L".dbf");
        const std::string name = Narrow(Name(number));
        if (!fs::exists(path)) FileBytes(path, "dBASE");
        sort += (number ? ";" : "") + name;
        sections += "[" + name + "]\r\nPath=" + Narrow(path) + "\r\nCLY=C:\\Layouts\\" + name +
                    ".cly\r\nGLY=C:\\Layouts\\" + name + ".gly\r\nStartupMacro=C:\\Macros\\" + name + ".mpr\r\n";
        for (const char* location : Locations) sections += std::string(location) + "=D:\\Data\\" + name + "\r\n";
    }
    FileBytes(SettingsFile(), "[General]\r\nSort=" + sort + "\r\n" + general + sections);
    if (!justWritten)
        fs::last_write_time(fs::path(SettingsFile()), fs::file_time_type::clock::now() - std::chrono::hours(1));
}

double Workplace::CallsOfStart() {
    const ProcessGroup group;
    const DWORD microseconds = WaitUntilEnded(Process(group, Client()));
    if (microseconds == 0) throw std::runtime_error("the bare client has failed");
    return microseconds / 1000.0;
}
