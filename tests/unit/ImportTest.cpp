// Databases of another settings file: which are offered, what comes along, and what an undo takes back.

#include "databases/EditedList.h"
#include "support/SettingsDesk.h"

#include <numeric>

namespace {

/// A desk with a settings file of somebody else's beside its own.
struct TwoFiles : SettingsDesk {
    TempFile other{L"Other.ini"};

    /// Imports the chosen ones of those that are offered.
    bool Import(const std::vector<size_t>& chosen) {
        list = EditedList::Load();
        return list->Import(list->Shown(), *OtherSettings::Load(other.Path()), chosen);
    }
    std::wstring Sort() const { return Whole(L"General", L"Sort"); }

    Read<EditedList> list{Unreadable()};
};

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
    const auto settings = OtherSettings::Load(other.Path());
    std::wstring offered;
    for (const auto& [name, path, isListed] : settings->Offered()) offered += name + (isListed ? L"*;" : L";");
    CHECK(offered == L"General*;SALES*;Branch;Kin;Twin;Head*;Stray;Left over;");
    REQUIRE(Import({0, 1, 2, 3, 4, 7}));
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
    REQUIRE(Import({0, 1, 2, 3}));
    IniLib::WriteKeyValue(L"A", L"Path", L"other");
    IniLib::WriteKeyValue(L"A", L"UseLocationsFrom", L"C");
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"B");
    CHECK(list->Undo(list->Shown()) == 3u);
    CHECK(Sort() == L"A;B;C");
    CHECK(Whole(L"C", L"Path") == L"c");
    CHECK(IniLib::ReadFile()->Section(L"D").empty());
}

TEST_CASE_FIXTURE(TwoFiles, "As many are offered as the list can show, and all of them come and go in a moment") {
    const std::string before = "[General]\r\nSort=Own;aa\r\n[aa]\r\nPath=there\r\n";
    file.Bytes(before);
    std::string bytes = "[General]\r\nSort=", sections;
    for (int number = 0; number < 400; ++number) {
        const std::string name{static_cast<char>('a' + number / 26), static_cast<char>('a' + number % 26)};
        bytes += name + ';';
        sections += "\r\n[" + name + "]\r\nPath=C:\\" + name + ".dbf\r\nCLY=x\r\nQuery=z";
    }
    other.Bytes(bytes + sections);
    const auto settings = OtherSettings::Load(other.Path());
    CHECK(settings->Offered().size() == 330); // the own 6 characters, and 3 for each name
    CHECK(settings->LeftOut() == 70);
    std::vector<size_t> all(settings->Offered().size());
    std::iota(all.begin(), all.end(), 0U);
    const DWORD start = GetTickCount();
    REQUIRE(Import(all));
    REQUIRE(list->Undo(list->Shown()));
    CHECK(GetTickCount() - start < 5000); // less than a second on an idle machine
    CHECK(file.Bytes() == before);
}
