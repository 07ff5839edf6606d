// The small things of src/support.

#include "support/ErrorReport.h"
#include "support/TempFile.h"
#include "support/Wide.h"
#include "support/modFolderFileExists.h"

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
