// What a start does to the stores: the upgrade.

#include "support/Journey.h"

using JourneyStores::User;

TEST_CASE_FIXTURE(Journey, "only settings of an earlier version are upgraded") {
    struct Case {
        const wchar_t* version;
        bool isUpgraded;
    };
    const std::wstring path = ListRealDatabase(L"Customers");
    StartAct(path);
    for (const Case& expected : {Case{L"32", false}, Case{L"3", false}, Case{L"31", true}}) {
        CAPTURE(expected.version);
        User(L"Settings", L"Version", expected.version);
        Ini(L"Customers", L"Username", L"Pat");
        StartToMainWindow();
        CHECK(User(L"Customers", L"Username").has_value() == expected.isUpgraded);
        CHECK((JourneyStores::FileBytes(SettingsFile()).find("Username") == std::string::npos) == expected.isUpgraded);
        CHECK(User(L"Settings", L"Version") == L"320");
        Close();
    }
}
