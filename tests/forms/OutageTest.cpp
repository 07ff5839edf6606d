// The settings file's share goes away for a moment, at each moment at which something is read or saved: nothing that
// the user did not remove may be lost, and whatever is removed or renamed is so in both stores or in neither.

#include "dialogs/frmListMaintenance.h"
#include "dialogs/frmPrefLocations.h"
#include "dialogs/frmProperties.h"
#include "quickswitch/frmAssign.h"
#include "support/ActDesk.h"
#include "support/FakeMainWindow.h"
#include "support/Text.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::wstring>;

/// What both stores hold about the databases, the file as the platform reads it.
struct Stored {
    Names List, Buttons;
    std::map<std::wstring, std::wstring> Records;
    std::map<std::wstring, std::vector<std::pair<std::wstring, std::wstring>>> Logons;
};

/// An office's list on a share of its own, and one user's log-ons.
struct Office : ActDesk {
    Office() {
        fs::create_directory(share_);
        IniLib::SettingsFile(Path());
        UserStore::Set(L"Settings", L"IniLocation", Path());
        AddDatabase(L"Sales", {{L"Path", L"C:\\s.dbf"}, {L"CLY", L"C:\\s.cly"}, {L"Document", L"C:\\d"}});
        AddDatabase(L"Service", {{L"Path", L"C:\\v.dbf"}, {L"CLY", L"C:\\v.cly"}});
        AddDatabase(L"Staff", {{L"Path", L"C:\\t.dbf"}, {L"CLY", L"C:\\t.cly"}, {L"UseLocationsFrom", L"Sales"}});
        IniLib::WriteKeyValue(L"General", L"QuickSwitch", L"Staff;Sales;;;;;;Service");
        for (const wchar_t* name : {L"Sales", L"Service", L"Staff"}) {
            UserStore::Set(name, L"Username", L"Chris");
            UserStore::Set(name, L"UsePassword", L"0");
            UserStore::Set(name, L"NoPasswordAtACTStartup", L"0");
        }
    }
    std::wstring Path() const { return (share_ / L"Kelmorra.ini").wstring(); }
    void Away() const { fs::rename(share_, away_); }
    void Back() const { fs::rename(away_, share_); }
    void Writable(bool isWritable) const {
        SetFileAttributesW(Path().c_str(), isWritable ? FILE_ATTRIBUTE_NORMAL : FILE_ATTRIBUTE_READONLY);
    }
    Stored Take() const {
        Stored stored;
        std::array<wchar_t, 4096> text{};
        const auto value = [&](const wchar_t* key) {
            GetPrivateProfileStringW(L"General", key, L"", text.data(), text.size(), Path().c_str());
            return Text::Split(text.data(), L';');
        };
        stored.List = value(L"Sort");
        stored.Buttons = value(L"QuickSwitch");
        for (const wchar_t* name : {L"Sales", L"Service", L"Staff", L"New"}) {
            stored.Records[name] = {text.data(),
                                    GetPrivateProfileSectionW(name, text.data(), text.size(), Path().c_str())};
            stored.Logons[name] = UserStore::GetSection(name);
        }
        return stored;
    }

private:
    fs::path share_ = fs::path(SettingsFile()).parent_path() / L"Share";
    fs::path away_ = share_.wstring() + L" that is away";
};

/// All that is asked of an outage. `touched` was to be removed, or renamed to `newName`.
void CheckNothingLost(Stored before, Stored after, const std::wstring& touched, const std::wstring& newName) {
    for (const std::wstring& name : before.List) {
        CAPTURE(name);
        const bool isGone = std::ranges::count(after.List, name) == 0;
        if (isGone) CHECK(name == touched);
        const std::wstring& now = isGone && !newName.empty() ? newName : name;
        const bool mustBeThere = !isGone || !newName.empty();
        CHECK(std::ranges::count(after.List, now) == (mustBeThere ? 1 : 0));
        if (!mustBeThere) CHECK(after.Records[now].empty());
        for (const std::wstring& line : Text::Split(before.Records[name], L'\0'))
            CHECK((!mustBeThere || line.empty() || after.Records[now].find(line) != std::wstring::npos));
        CHECK(after.Logons[now].size() == (mustBeThere ? before.Logons[name].size() : 0));
        CHECK(std::ranges::count(after.Buttons, now) == (mustBeThere ? std::ranges::count(before.Buttons, name) : 0));
        if (isGone && mustBeThere) CHECK(after.Records[name].empty());
    }
}

FakeMainWindow row;
void Maintain() {
    row.Row = 0;
    frmListMaintenance(row).ShowModal();
}
void Assign() { frmAssign().ShowModal(); }
void Locate() { frmPrefLocations(L"Sales", L"Sales").ShowModal(); }
void Edit() {
    Program().FriendlyName = L"Sales";
    Program().DatabaseNames = {L"Sales", L"Service", L"Staff"};
    frmProperties(&row).ShowModal();
}

/// What the user does, and what becomes of the share meanwhile.
enum class Act { Away, Back, ReadOnly, Writable, Down, Undo, Remove, Add, Rename, Fill, Ok, Cancel, Close };

void Play(const Office& office, HWND form, Act act) {
    switch (act) {
    case Act::Away: return office.Away();
    case Act::Back: return office.Back();
    case Act::ReadOnly: return office.Writable(false);
    case Act::Writable: return office.Writable(true);
    case Act::Down: return TranslateKey(FindControl(form, L"lstDB"), VK_DOWN, VK_MENU);
    case Act::Undo: return TranslateKey(FindControl(form, L"lstDB"), 'Z', VK_CONTROL);
    case Act::Remove: return Press(form, L"cmdRemove");
    case Act::Add: return Press(form, L"cmdAdd");
    case Act::Rename: return Type(form, L"txtName", L"New");
    case Act::Fill: return Type(form, L"txtCL", L"C:\\s.cly"), Type(form, L"txtUsername", L"Chris");
    case Act::Ok: return Press(form, L"cmdOK");
    case Act::Cancel: return Press(form, L"cmdCancel");
    case Act::Close: return Press(form, L"cmdClose");
    }
}

/// A dialog, what happens in it, and what may have changed by it. When the first act is Back, the share is away before
/// the dialog opens.
struct Row {
    const char* what;
    void (*open)();
    std::vector<Act> acts;
    const wchar_t* touched = L"";
    const wchar_t* newName = L"";
};

const Row kRows[] = {
    {"move, away at Close", Maintain, {Act::Down, Act::Away, Act::Close, Act::Back}},
    {"away at the move", Maintain, {Act::Away, Act::Down, Act::Back, Act::Close}},
    {"away at Remove", Maintain, {Act::Away, Act::Remove, Act::Back, Act::Close}, L"Sales"},
    {"away at undo", Maintain, {Act::Remove, Act::Away, Act::Undo, Act::Back, Act::Close}, L"Sales"},
    {"undone when back", Maintain, {Act::Remove, Act::Away, Act::Undo, Act::Back, Act::Undo, Act::Close}},
    {"away at Add", Maintain, {Act::Away, Act::Add, Act::Back, Act::Close}},
    {"buttons, away at first", Assign, {Act::Back, Act::Ok}},
    {"buttons, away at OK", Assign, {Act::Away, Act::Ok, Act::Back, Act::Ok}},
    {"locations, away at first", Locate, {Act::Back, Act::Ok}},
    {"properties, away at first", Edit, {Act::Back, Act::Fill, Act::Ok}},
    {"rename, read-only", Edit, {Act::Rename, Act::ReadOnly, Act::Ok, Act::Writable, Act::Ok}, L"Sales", L"New"},
    {"rename, cancelled", Edit, {Act::Rename, Act::Away, Act::Ok, Act::Back, Act::Cancel}, L"Sales", L"New"},
    {"rename, away", Edit, {Act::Rename, Act::Away, Act::Ok, Act::Back, Act::Ok}, L"Sales", L"New"},
};

} // namespace

TEST_CASE("A share that goes away for a moment takes nothing with it") {
    for (const Row& test : kRows) {
        CAPTURE(std::string(test.what));
        const Office office;
        const Stored before = office.Take();
        {
            DialogScript script;
            script.Otherwise([&, isPlayed = false](HWND window) mutable {
                // Message boxes, and dialogs that open behind the first one, are left.
                if (isPlayed || GetDlgItem(window, 0xFFFF)) return Leave(window);
                isPlayed = true;
                for (const Act act : test.acts) Play(office, window, act);
            });
            if (test.acts.front() == Act::Back) office.Away();
            test.open();
        }
        if (!fs::exists(office.Path())) office.Back();
        Stored after = office.Take();
        if (*test.newName && std::ranges::count(after.List, L"New")) // who borrows follows
            CHECK(after.Records[L"Staff"].find(L"UseLocationsFrom=New") != std::wstring::npos);
        after.Records[L"Staff"] = Stored(before).Records[L"Staff"];
        CheckNothingLost(before, after, test.touched, test.newName);
    }
}
