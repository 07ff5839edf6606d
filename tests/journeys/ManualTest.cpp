// Help > User's manual: which file the shell is given.

#include "support/Journey.h"

#include <filesystem>

namespace {

using JourneyStores::User;

/// A reader of .pdf files, known to Windows for as long as it lives.
class Reader {
public:
    explicit Reader(const std::wstring& program) {
        std::filesystem::copy_file(MARK_PROGRAM, program);
        Write(kKeys[0], L'"' + program + L"\" \"%1\"");
        Write(L".pdf", L"Kelmorra.Journey");
    }
    ~Reader() {
        for (const wchar_t* key : kKeys) RegDeleteKeyW(HKEY_LOCAL_MACHINE, (std::wstring(kClasses) + key).c_str());
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

private:
    static constexpr wchar_t kClasses[] = L"Software\\Classes\\";
    static constexpr const wchar_t* kKeys[] = {L"Kelmorra.Journey\\shell\\open\\command",
                                               L"Kelmorra.Journey\\shell\\open", L"Kelmorra.Journey\\shell",
                                               L"Kelmorra.Journey", L".pdf"};

    static void Write(const std::wstring& key, const std::wstring& value) {
        RegSetValueW(HKEY_LOCAL_MACHINE, (kClasses + key).c_str(), REG_SZ, value.c_str(), 0);
    }
};

/// What the reader was given: its mark's text behind the "+".
std::wstring FileRead(const std::wstring& reader) {
    const std::wstring mark = reader + L".mark";
    if (!Within([&] { return JourneyStores::FileExists(mark); })) return L"nothing";
    const std::string bytes = JourneyStores::FileBytes(mark);
    std::filesystem::remove(mark);
    const std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t));
    return text.substr(text.find(L'+') + 1);
}

} // namespace

TEST_CASE_FIXTURE(Journey, "the manual of the language is opened, and where it is not installed the English one") {
    const Reader reader(File(L"Reader.exe"));
    StartAct(ListRealDatabase(L"Customers"));
    for (const wchar_t* manual : {L"Kelmorra_manual.pdf", L"Kelmorra_manual_de.pdf"})
        JourneyStores::FileBytes(ProgramFile(manual), "%PDF");
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"0", L"Kelmorra_manual.pdf"}, {L"1", L"Kelmorra_manual.pdf"}, {L"2", L"Kelmorra_manual_de.pdf"}};
    for (const auto& [language, manual] : rows) {
        CAPTURE(language);
        User(L"Options", L"Language", language);
        JourneyWindow::ClickMenu(StartToMainWindow(), L"mnuManual");
        CHECK(FileRead(File(L"Reader.exe")) == ProgramFile(manual));
        Close();
    }
}
