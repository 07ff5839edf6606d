// The small things of src/support.

#include "support/Text.h"
#include "support/ErrorReport.h"
#include "support/TempFile.h"
#include "support/Wide.h"
#include "support/modFolderFileExists.h"

TEST_CASE("Paths compare without letter case and with or without a trailing backslash; empty ones never match") {
    CHECK(Text::SamePath(L"C:\\Data\\Sales.dbf", L"c:\\data\\SALES.DBF"));
    CHECK(Text::SamePath(L"C:\\Data\\", L"C:\\Data"));
    CHECK_FALSE(Text::SamePath(L"", L""));
    CHECK(Text::ContainsFolder(L"C:\\ACT\\Layout\\x.cly", L"c:\\act\\layout\\"));
    CHECK(Text::ContainsFolder(L"C:\\ACT\\Layout\\x.cly", L"c:\\act\\layout"));
    CHECK_FALSE(Text::ContainsFolder(L"C:\\ACT\\Layouts2\\x.cly", L"C:\\ACT\\Layout"));
    CHECK_FALSE(Text::ContainsFolder(L"C:\\x.cly", L""));
}

TEST_CASE("Split keeps empty elements and Join is its reverse") {
    CHECK(Text::Split(L"", L';').empty());
    const auto elements = Text::Split(L";A;;B;", L';');
    CHECK(elements.size() == 5);
    CHECK(Text::Join(elements, L';') == L";A;;B;");
}

TEST_CASE("A stored measure takes either decimal sign and refuses garbage") {
    CHECK(Text::Measure(L"8475") == 8475);
    CHECK(Text::Measure(L"8475.6") == 8476);
    CHECK(Text::Measure(L"8475,4") == 8475);
    CHECK(Text::Measure(L"-15,5") == -16);
    for (const wchar_t* garbage : {L"", L" ", L"-", L".", L"12a", L"1.2.3", L"1e3", L"99999999999", L"0x10", L"12,x"})
        CHECK_FALSE_MESSAGE(Text::Measure(garbage), std::string("garbage"));
}

TEST_CASE("The error report is exact to the character") {
    const auto line = std::to_wstring(Where::current().line() + 1);
    const Error plain(91, L"Object variable not set");
    CHECK(ErrorText(plain, L"frmMain: Sub Form_Load") ==
          L"Error 91: 'Object variable not set'\rin frmMain: Sub Form_Load - Line # " + line + L"\r\r");

    SetSupportSentence([]() -> std::wstring { return L"Please contact us."; });
    const Error ours(BasicError::FirstOfOurs + 1, L"", Where::current(), L"RegistrySubs: Function CreateRegistryKey");
    CHECK(ErrorText(ours, L"frmMain: Sub Form_Load")
              .starts_with(L"Error -2147221503: ''\rin RegistrySubs: Function "
                           L"CreateRegistryKey - Line # "));
    CHECK(ErrorText(ours, L"").ends_with(L"\r\rPlease contact us."));
    SetSupportSentence(nullptr);
}

TEST_CASE("Only absolute paths of things that are there exist") {
    const TempFile file(L"Bücher.ini");
    CHECK_FALSE(modFolderFileExists::FileExists(file.Path()));
    file.Bytes("x");
    SetCurrentDirectoryW(file.Folder().c_str());
    const std::pair<std::wstring, bool> rows[] = {
        {file.Path(), true},
        {file.Folder(), true},
        {file.Folder() + L"\\", true},
        {file.Folder() + L"\\missing\\Bücher.ini", false},
        {L"Q:\\Bücher.ini", false},
        {L"\\\\no-such-server\\share\\Bücher.ini", false},
        {L"Bücher.ini", false},
        {L"C:Bücher.ini", false},
        {L"\\\\", false},
        {L"", false},
    };
    for (const auto& [path, exists] : rows) {
        CAPTURE(path);
        CHECK(modFolderFileExists::FileExists(path) == exists);
    }
    SetCurrentDirectoryW(L"C:\\");
}
