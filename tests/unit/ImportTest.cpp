// Databases of another settings file: which are offered, what comes along, and what an undo takes back.

#include "databases/DatabaseList.h"
#include "databases/EditedList.h"
#include "support/SettingsDesk.h"
#include "support/Text.h"
#include "win32/AnsiText.h"

#include <numeric>

namespace {

using NameList::Names;

/// A desk with a settings file of somebody else's beside its own.
struct TwoFiles : SettingsDesk {
    TempFile other{L"Other.ini"};

    /// Imports all that are offered, or the chosen ones, into the list that is there.
    bool Import(std::optional<std::vector<size_t>> chosen = {}) {
        const auto settings = OtherSettings::Load(other.Path());
        if (!settings) return false;
        if (!chosen) {
            chosen.emplace(settings->Offered().size());
            std::iota(chosen->begin(), chosen->end(), 0U);
        }
        return list->Import(list->Shown(), *settings, *chosen);
    }
    std::wstring Sort() const { return Whole(L"General", L"Sort"); }

    Read<EditedList> list{Unreadable()};
};

std::wstring Names300() {
    Names names;
    for (wchar_t first = L'a'; first <= L'z'; ++first)
        for (wchar_t second = L'a'; second <= L'l' && names.size() < 300; ++second) names.push_back({first, second});
    return Text::Join(names, L';');
}

} // namespace

TEST_CASE_FIXTURE(TwoFiles,
                  "An import brings records and locations, follows lenders, and changes nothing that is there") {
    const std::string before =
        "[General]\r\nSort=Sales;Main;General\r\n"
        "[Sales]\r\nPath=S:\\Sales.dbf\r\n[Main]\r\nPath=S:\\Head.dbf\r\n[Left over]\r\nPath=x\r\n";
    file.Bytes(before);
    other.Bytes("[General]\r\nSort=General;SALES;Branch;Kin;Twin;Head;Stray;Left over;Branch;;No section\r\n"
                "[SALES]\r\nPath=C:\\Own.dbf\r\nCLY=c\r\nQuery=C:\\q\r\nPassword=enciphered\r\n"
                "[Branch]\r\nPath=C:\\B.dbf\r\nUseLocationsFrom=SALES\r\n"
                "[Kin]\r\nPath=C:\\K.dbf\r\nUseLocationsFrom=Head\r\n[Head]\r\nPath=s:\\head.DBF\r\nMacro=C:\\m\r\n"
                "[Twin]\r\nPath=C:\\T.dbf\r\nUseLocationsFrom=Stray\r\nMacro=old\r\n"
                "[Stray]\r\nPath=C:\\S.dbf\r\nMacro=C:\\stray\r\n[Left over]\r\nStartupMacro=\" m \"\r\n");
    list = EditedList::Load();
    const auto settings = OtherSettings::Load(other.Path());
    std::wstring offered;
    for (const auto& [name, path, isListed] : settings->Offered()) offered += name + (isListed ? L"*;" : L";");
    CHECK(offered == L"General*;SALES*;Branch;Kin;Twin;Head*;Stray;Left over;");
    REQUIRE(Import({{0, 1, 2, 3, 4, 7}}));
    CHECK(Sort() == L"Sales;Main;General;General (2);SALES (2);Branch;Kin;Twin;Left over (2)");
    CHECK(file.Bytes().ends_with("[SALES (2)]\r\nPath=C:\\Own.dbf\r\nCLY=c\r\nQuery=C:\\q\r\n"
                                 "[Branch]\r\nPath=C:\\B.dbf\r\nUseLocationsFrom=SALES (2)\r\n"
                                 "[Kin]\r\nPath=C:\\K.dbf\r\nUseLocationsFrom=Main\r\n"
                                 "[Twin]\r\nPath=C:\\T.dbf\r\nMacro=C:\\stray\r\n"
                                 "[Left over (2)]\r\nStartupMacro=\" m \"\r\n"));
    REQUIRE(list->UndoesImport());
    CHECK(list->Undo(list->Shown()) == 3u);
    CHECK(file.Bytes() == before);
    CHECK_FALSE(list->CanUndo());
}

TEST_CASE_FIXTURE(TwoFiles, "Undoing an import leaves what has been changed or is used since") {
    other.Bytes("[General]\r\nSort=A;B;C;D\r\n[A]\r\nPath=a\r\n[B]\r\nPath=b\r\n[C]\r\nPath=c\r\n[D]\r\nPath=d\r\n");
    list = EditedList::Load();
    REQUIRE(Import());
    IniLib::WriteKeyValue(L"A", L"Path", L"other");
    IniLib::WriteKeyValue(L"A", L"UseLocationsFrom", L"C");
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"B");
    CHECK(list->Undo(list->Shown()) == 3u);
    CHECK(Sort() == L"A;B;C");
    CHECK(Whole(L"C", L"Path") == L"c");
    CHECK(IniLib::ReadFile()->Section(L"D").empty());
}

TEST_CASE_FIXTURE(TwoFiles, "As many are offered as the list can show; 300 come in less than a second") {
    const std::string before = "[General]\r\nSort=Own;ab\r\n[ab]\r\nPath=there\r\n";
    file.Bytes(before);
    std::string bytes = "[General]\r\nSort=" + ToAnsi(Names300()) + ";";
    for (int number = 0; number < 30; ++number) bytes += "Long name " + std::to_string(number) + ';';
    for (const std::wstring& name : Text::Split(Names300(), L';'))
        bytes += "\r\n[" + ToAnsi(name) + "]\r\nPath=C:\\" + ToAnsi(name) + ".dbf\r\nCLY=x\r\nGLY=y\r\nQuery=z";
    for (int number = 0; number < 30; ++number) bytes += "\r\n[Long name " + std::to_string(number) + "]\r\nCLY=x";
    other.Bytes(bytes);
    list = EditedList::Load();
    const DWORD start = GetTickCount();
    REQUIRE(Import());
    CHECK(GetTickCount() - start < 1000);
    const std::wstring all = Sort();
    CHECK(IniLib::Shown(all) == all);
    CHECK(all.size() + 15 > IniLib::ShownBytes);
    const auto settings = OtherSettings::Load(other.Path());
    CHECK(settings->Offered().size() + settings->LeftOut() == 330);
    const DWORD undo = GetTickCount();
    REQUIRE(list->Undo(list->Shown()));
    CHECK(GetTickCount() - undo < 1000);
    CHECK(file.Bytes() == before);
}
