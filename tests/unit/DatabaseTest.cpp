#include "databases/Database.h"

#include "databases/modUpgrade32.h"
#include "stores/UserStore.h"
#include "support/MsgBox.h"
#include "support/ScratchRegistry.h"
#include "support/TempFile.h"
#include "support/Text.h"
#include "support/Wide.h"

#include <array>
#include <functional>

namespace {

using Names = std::vector<std::wstring>;

/// Both stores are empty scratch ones.
struct Stores : ScratchRegistry {
    Stores() {
        LocalData(file.Folder());
        IniLib::SettingsFile(file.Path());
    }
    ~Stores() { IniLib::SettingsFile({}); }

    TempFile file{L"Kelmorra.ini"};
};

bool Commit(const std::function<void(IniLib::Change&)>& collect) {
    IniLib::Change change;
    collect(change);
    return change.Commit();
}

bool WriteSort(const Names& names) {
    return Commit([&](IniLib::Change& change) { DatabaseList::WriteSort(change, names); });
}

void DeleteDatabase(const std::wstring& name) {
    CHECK(Commit([&](IniLib::Change& change) { DatabaseList::DeleteFileRecord(change, name); }));
    DatabaseList::DeleteUserRecord(name);
}

std::wstring Sort() { return IniLib::GetWholeValue(L"General", L"Sort"); }

/// "name 00", "name 01" and so on, each of `length` characters, so that with the separator n of them take n*(length+1).
Names LongList(size_t count, size_t length) {
    Names names;
    for (size_t index = 0; index < count; ++index) {
        std::wstring number = std::to_wstring(100 + index);
        names.push_back(number + std::wstring(length - number.size(), L'x'));
    }
    return names;
}

} // namespace

TEST_CASE_FIXTURE(Stores, "Changes of a list that are made up at the same moment all reach it") {
    WriteSort({L"A", L"B", L"C", L"D"});
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"A;B;C");
    std::array<IniLib::Change, 4> changes;
    DatabaseList::RenameInSort(changes[0], L"A", L"X");
    DatabaseList::ReplaceInQuickSwitch(changes[0], L"A", L"X");
    DatabaseList::RenameInSort(changes[1], L"B", L"Y");
    DatabaseList::ReplaceInQuickSwitch(changes[1], L"B", L"Y");
    DatabaseList::AddToSort(changes[2], L"New");
    DatabaseList::MergeIntoSort(changes[3], {L"D", L"A", L"B"}, {L"A", L"B", L"C", L"D"}); // D moved up, C removed
    for (const IniLib::Change& change : changes) CHECK(change.Commit());
    CHECK(Sort() == L"D;X;Y;New");
    CHECK(IniLib::GetWholeValue(L"General", L"QuickSwitch") == L"X;Y;C");
}

TEST_CASE_FIXTURE(Stores, "The list of databases keeps empty names, and an empty list is an empty value") {
    CHECK(DatabaseList::ReadSort().empty());
    for (const Names& names : {Names{L"A", L"", L"B"}, Names{L"One"}, Names{}}) {
        CHECK(WriteSort(names));
        CHECK(DatabaseList::ReadSort() == names);
    }
    CHECK(file.Bytes() == "[General]\r\nSort=\r\n");
}

TEST_CASE_FIXTURE(Stores, "What a list too long to be read whole holds behind the cut is kept by who writes it") {
    struct Row {
        size_t length;   ///< of each name
        size_t seen;     ///< names that 998 bytes show whole
        const char* cut; ///< where the read ends
    };
    constexpr Row rows[] = {{99, 9, "within a name"}, {998, 1, "at the end of a name"}, {997, 1, "behind a separator"}};
    for (const Row& row : rows) {
        CAPTURE(row.cut);
        const Names names = LongList(20, row.length);
        IniLib::WriteKeyValue(L"General", L"Sort", Text::Join(names, L';'));
        Names shown = DatabaseList::ReadSort();
        CHECK(shown == Names(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(row.seen)));
        CHECK(DatabaseList::IsLongerThanShown());

        CHECK(WriteSort(shown));
        CHECK(Sort() == Text::Join(names, L';'));

        shown.front() = L"New";
        WriteSort(shown);
        Names expected = names;
        expected.front() = L"New";
        CHECK(Sort() == Text::Join(expected, L';'));
    }
}

TEST_CASE_FIXTURE(Stores, "A name that an addition pushed behind the cut is not written twice") {
    const Names names = LongList(9, 99);
    WriteSort(names);
    CHECK_FALSE(DatabaseList::IsLongerThanShown());
    Names held = DatabaseList::ReadSort();
    held.insert(held.begin(), std::wstring(150, L'n'));
    WriteSort(held);
    CHECK(DatabaseList::IsLongerThanShown());
    WriteSort(held);
    CHECK(Sort() == Text::Join(held, L';'));
}

TEST_CASE_FIXTURE(Stores, "Renaming and removing on the buttons goes by whole names, equal neighbours included") {
    struct Row {
        const wchar_t* before;
        const wchar_t* oldName;
        const wchar_t* newName;
        const wchar_t* after;
    };
    constexpr Row rows[] = {
        {L"A;B;;;;;;", L"A", L"C", L"C;B;;;;;;"},
        {L"A;A;A;B;;;;", L"A", L"C", L"C;C;C;B;;;;"},
        {L"A;A;B;A;;;;", L"A", L"", L"B;;;;"},
        {L"AB;A;BA;;;;;", L"A", L"C", L"AB;C;BA;;;;;"},
        {L"A;B;;;;;;", L"a", L"C", L"A;B;;;;;;"},
        {L"A;B;;;;;;", L"", L"C", L"A;B;;;;;;"},
        {L"A", L"A", L"", L""},
    };
    for (const Row& row : rows) {
        IniLib::WriteKeyValue(L"General", L"QuickSwitch", row.before);
        Commit([&](IniLib::Change& change) { DatabaseList::ReplaceInQuickSwitch(change, row.oldName, row.newName); });
        CHECK(IniLib::GetKeyValue(L"General", L"Quickswitch") == row.after);
    }
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"A;;B");
    CHECK(DatabaseList::ReadQuickSwitch() == Names{L"A", L"", L"B", L"", L"", L"", L"", L""});
}

TEST_CASE_FIXTURE(Stores,
                  "Renaming in the list is text replacement; an empty name renames only itself, and can be removed") {
    struct Row {
        const wchar_t* before;
        const wchar_t* oldName;
        const wchar_t* after;
    };
    constexpr Row rows[] = {{L"Sales;Admin;Staff", L"Staff", L"Sales;Admin;New"},
                            {L"BigSales;Sales", L"Sales", L"BigNew;New"},
                            {L"A;;B", L"", L"A;New;B"}};
    for (const Row& row : rows) {
        IniLib::WriteKeyValue(L"General", L"Sort", row.before);
        CHECK(Commit([&](IniLib::Change& change) { DatabaseList::RenameInSort(change, row.oldName, L"New"); }));
        CHECK(Sort() == row.after);
    }
    DeleteDatabase(L"");
    CHECK(Sort() == L"A;New;B");
}

TEST_CASE_FIXTURE(Stores, "A record is read from the section of its name") {
    file.Bytes("[Sales]\r\nPath=C:\\s.dbf\r\nCLY=C:\\c.cly\r\nGLY=C:\\g.gly\r\nStartupMacro=C:\\m.mpr\r\n");
    const DatabaseRecord record = ExtractInfo(L"Sales");
    CHECK(record.Path == L"C:\\s.dbf");
    CHECK(record.ContactLayout == L"C:\\c.cly");
    CHECK(record.GroupLayout == L"C:\\g.gly");
    CHECK(record.OpeningMacro == L"C:\\m.mpr");
    CHECK(ExtractInfo(L"Other").Path.empty());
}

TEST_CASE_FIXTURE(Stores, "Deleting a database takes its record from both stores") {
    file.Bytes("[General]\r\nSort=Sales;Other\r\n[Sales]\r\nPath=x\r\nOwn=1\r\n[Other]\r\nPath=y\r\n");
    for (const wchar_t* name : {L"Sales", L"Other"}) UserStore::Set(name, L"Username", L"u");
    DeleteDatabase(L"Sales");
    CHECK(file.Bytes() == "[General]\r\nSort=Sales;Other\r\n[Other]\r\nPath=y\r\n");
    CHECK(UserStore::Get(L"Sales", L"Username", L"gone") == L"gone");
    CHECK(UserStore::Get(L"Other", L"Username") == L"u");
}

TEST_CASE_FIXTURE(Stores, "A database called like a section of the program takes only its own keys with it") {
    file.Bytes("[General]\r\nSort=GENERAL\r\nPath=x\r\nNetLinks=y\r\nUseLocationsFrom=z\r\nQuickSwitch=;;\r\n");
    DeleteDatabase(L"GENERAL");
    CHECK(file.Bytes() == "[General]\r\nSort=GENERAL\r\nQuickSwitch=;;\r\n");

    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"Settings", L"IniLocation"}, {L"Options", L"Language"}, {L"Display", L"Selected"}, {L"Logon", L"Other"}};
    for (const auto& [section, ownKey] : rows) {
        UserStore::Set(section, ownKey, L"kept");
        UserStore::Set(section, L"NoPasswordAtACTStartup", L"1");
        UserStore::Set(section, L"Password", L"secret");
        std::wstring name = section;
        CharUpperW(name.data());
        DeleteDatabase(name);
        CHECK(UserStore::Get(section, ownKey) == L"kept");
        CHECK(UserStore::Get(section, L"Password", L"gone") == L"gone");
        CHECK(UserStore::Get(section, L"NoPasswordAtACTStartup", L"gone") == L"gone");
    }
}

TEST_CASE_FIXTURE(Stores, "Log-on values are handed over whole: a missing one is empty, not somebody else's") {
    UserStore::Set(L"Logon", L"Password", L"of another database");
    UserStore::Set(L"Sales", L"Username", L"Chris");
    UserStore::Set(L"Sales", L"UsePassword", L"0");
    LogonValues::CopyToLogon(L"Sales");
    CHECK(UserStore::Get(L"Logon", L"Password", L"missing").empty());
    CHECK(UserStore::Get(L"Logon", L"Username") == L"Chris");
    CHECK(UserStore::Get(L"Logon", L"UsePassword") == L"0");
    CHECK(UserStore::Get(L"Settings", L"Last Username") == L"Chris");
}

TEST_CASE_FIXTURE(Stores, "The upgrade moves log-on values to the user, once") {
    file.Bytes(
        "[General]\r\nSort=Sales;Other\r\n"
        "[Sales]\r\nPath=x\r\nUsername=Chris\r\nPassword=\xA3\x01\xFF\r\nUsePassword=1\r\nNoPasswordAtACTStartup=0\r\n"
        "[Other]\r\nUsername=Pat\r\nPassword=\r\n");
    UserStore::Set(L"Other", L"Password", L"the user's own");
    for (int run = 1; run <= 2; ++run) {
        modUpgrade32::Upgrade_to_32();
        CHECK(UserStore::Get(L"Sales", L"Username") == L"Chris");
        CHECK(UserStore::Get(L"Sales", L"Password") == L"\xA3\x01\xFF");
        CHECK(UserStore::Get(L"Sales", L"UsePassword") == L"1");
        CHECK(UserStore::Get(L"Sales", L"NoPasswordAtACTStartup") == L"0");
        CHECK(UserStore::Get(L"Other", L"Username") == L"Pat");
        CHECK(UserStore::Get(L"Other", L"Password") == L"the user's own");
        CHECK(file.Bytes() == "[General]\r\nSort=Sales;Other\r\n[Sales]\r\nPath=x\r\n[Other]\r\n");
    }
}

TEST_CASE_FIXTURE(Stores, "An upgrade without sections has nothing to do, and one that cannot store keeps the file") {
    modUpgrade32::Upgrade_to_32();
    CHECK(file.Bytes().empty());
    file.Bytes("[Sales]\r\nUsername=Chris\r\n");
    RefuseKeysBelow(HKEY_CURRENT_USER);
    SilenceMessages(true);
    modUpgrade32::Upgrade_to_32();
    SilenceMessages(false);
    CHECK(file.Bytes() == "[Sales]\r\nUsername=Chris\r\n");
}
