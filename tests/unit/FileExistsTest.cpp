#include "support/modFolderFileExists.h"

#include "support/TempFile.h"
#include "support/Wide.h"

TEST_CASE("Only absolute paths of things that are there exist") {
    const TempFile file(L"Bücher.ini");
    CHECK_FALSE(modFolderFileExists::FileExists(file.Path()));
    file.Bytes("x");
    SetCurrentDirectoryW(file.Folder().c_str());
    const std::pair<std::wstring, bool> rows[] = {
        {file.Path(), true},        {file.Folder(), true},
        {L"Q:\\Bücher.ini", false}, {L"\\\\no-such-server\\share\\Bücher.ini", false},
        {L"Bücher.ini", false},     {L"", false},
    };
    for (const auto& [path, exists] : rows) {
        CAPTURE(path);
        CHECK(modFolderFileExists::FileExists(path) == exists);
    }
    SetCurrentDirectoryW(L"C:\\");
}
