// The rules about databases: their list, the buttons, and what both stores keep under a name.

#include "databases/EditedDatabase.h"
#include "databases/EditedList.h"
#include "databases/Palette.h"
#include "databases/modUpgrade32.h"
#include "stores/UserStore.h"
#include "support/SettingsDesk.h"
#include "support/Text.h"

#include <algorithm>
#include <filesystem>

namespace {

using NameList::Names;

void List(const Names& names) { REQUIRE(IniLib::WriteKeyValue(L"General", L"Sort", Text::Join(names, L';'))); }
std::wstring Sort() { return Whole(L"General", L"Sort"); }

EditedDatabase::Outcome Save(const wchar_t* oldName, const wchar_t* newName) {
    DatabaseValues values = EditedDatabase::Load(oldName, {})->Values();
    values.Name = newName;
    return EditedDatabase::Load(oldName, {})->Save(values);
}

/// Removes the database at a line of the list.
bool Remove(size_t line) {
    auto list = EditedList::Load();
    return list->Remove(list->Shown(), line);
}

} // namespace

TEST_CASE_FIXTURE(SettingsDesk, "Changes of a list that are made up at the same moment all reach it") {
    List({L"A", L"B", L"C", L"D"});
    IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"A;B;C");
    auto moved = EditedList::Load();
    const auto palette = Palette::Edited::Load();
    const auto added = EditedDatabase::Load(L"", L"");
    const auto again = EditedDatabase::Load(L"", L"");
    CHECK(Save(L"A", L"X") == EditedDatabase::Outcome::Saved);
    DatabaseValues fresh;
    fresh.Name = L"New";
    CHECK(added->Save(fresh) == EditedDatabase::Outcome::Saved);
    CHECK(again->Save(fresh) == EditedDatabase::Outcome::NameTaken);
    CHECK(moved->Remove({L"D", L"A", L"B", L"C"}, 3));
    CHECK(palette->Save({L"A", L"B", L"", L"D", L"", L"", L"", L""}, 2, true));
    CHECK(Sort() == L"D;B;X;New");
    CHECK(moved->Shown() == Names{L"D", L"B", L"X", L"New"});
    CHECK(moved->HaveOthersChanged());
    CHECK(Whole(L"General", L"QuickSwitch") == L"X;B;;D;;;;");
    CHECK(Save(L"X", L"B") == EditedDatabase::Outcome::NameTaken);
}

TEST_CASE_FIXTURE(SettingsDesk, "What a list too long to be read whole holds behind the cut is kept by who writes it") {
    // The length of each name, and how many 998 bytes show whole: the cut is in a name, at its end, behind a separator.
    const std::pair<size_t, size_t> rows[] = {{99, 9}, {998, 1}, {997, 1}};
    for (const auto& [length, seen] : rows) {
        CAPTURE(length);
        Names names;
        for (wchar_t letter = L'a'; names.size() < 20; ++letter) names.emplace_back(length, letter);
        List(names);
        auto list = EditedList::Load();
        Names shown = list->Shown();
        CHECK(shown == Names(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(seen)));
        std::ranges::reverse(shown);
        CHECK(list->Save(shown));
        std::reverse(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(seen));
        CHECK(Sort() == Text::Join(names, L';'));
        CHECK_FALSE(list->HaveOthersChanged());

        // One that only the rest of the list holds is taken as a name, and stays on its button.
        IniLib::WriteKeyValue(L"General", L"QuickSwitch", names.back() + L";gone");
        CHECK(Save(L"", names.back().c_str()) == EditedDatabase::Outcome::NameTaken);
        const auto palette = Palette::Edited::Load();
        CHECK(palette->Choices(0).back() == names.back());
        CHECK(palette->Save({palette->Button(0), palette->Button(1), L"", L"", L"", L"", L"", L""}, 0, false));
        CHECK(Whole(L"General", L"QuickSwitch") == names.back() + L";;;;;;;");
    }
}

TEST_CASE_FIXTURE(SettingsDesk, "A list longer than the platform reads is shown in part, never written in part") {
    for (const size_t length : {34'000U, 65'540U}) {
        std::string sort;
        while (sort.size() < length) sort += "Database " + std::to_string(sort.size()) + ';';
        file.Bytes("[General]\r\nSort=" + sort + "\r\n");
        const std::string before = file.Bytes();
        auto list = EditedList::Load();
        CHECK(list->Shown().size() > 50);
        CHECK_FALSE(list->Save({L"A"}));
        CHECK((file.Bytes() == before)); // in parentheses: not to be shown
    }
}

TEST_CASE_FIXTURE(SettingsDesk, "Databases whose names share a section lose nothing by each other") {
    for (const wchar_t* name : {L"SALES", L"Sales\\"})
        for (const bool isRenamed : {false, true}) {
            CAPTURE(std::wstring(name));
            List({L"Sales", name});
            for (const wchar_t* each : {L"Sales", name}) {
                IniLib::WriteKeyValue(each, L"Path", L"x");
                UserStore::Set(each, L"Username", L"Chris");
            }
            if (isRenamed)
                CHECK(Save(name, L"New") == EditedDatabase::Outcome::Saved);
            else
                CHECK(Remove(1));
            CHECK(Whole(L"Sales", L"Path") == L"x");
            CHECK(UserStore::Get(L"Sales", L"Username") == L"Chris");
        }
}

TEST_CASE_FIXTURE(SettingsDesk, "The upgrade moves log-on values to the user, once") {
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
        // No copy is made of a file with log-on values.
        CHECK_FALSE(std::filesystem::exists(backups.Folder() + L"\\Kelmorra"));
    }
}
