#include "server/Session.h"

#include "common/Automation.h"
#include "common/State.h"
#include "server/Installation.h"
#include "server/LogOn.h"
#include "support/Text.h"

#include <array>
#include <optional>

namespace {

Session::Facts facts;
void (*closeRequest)() = nullptr;

constexpr WORD kObjectNotSet = 91;
constexpr WORD kFileNotFound = 53;

bool IsFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

std::wstring FullPath(const std::wstring& path) {
    std::array<wchar_t, 32768> full{};
    const DWORD length = GetFullPathNameW(path.c_str(), full.size(), full.data(), nullptr);
    return length > 0 && length < full.size() ? std::wstring(full.data(), length) : path;
}

/// A preset of a database, by its path or its file name.
std::optional<std::wstring> Preset(const wchar_t* section, const std::wstring& database) {
    std::optional<std::wstring> text = State::Text(section, database);
    return text ? text : State::Text(section, Text::AfterLast(database, L'\\'));
}

std::wstring UserOf(const std::wstring& database) {
    if (std::optional<std::wstring> user = Preset(L"Users", database)) return *user;
    return State::Text(L"Users", L"default").value_or(L"Chris Sample");
}

/// Only a database with a password, be it an empty one, asks who its user is.
void LogOnTo(const std::wstring& database) {
    if (const std::optional<std::wstring> password = Preset(L"Passwords", database))
        LogOn::Ask(database, {UserOf(database), *password});
}

} // namespace

namespace Session {

const Facts& Current() { return facts; }

void OpenDatabase(const std::wstring& path) {
    if (path.empty()) Fail(kObjectNotSet, L"Object variable or With block variable not set");
    if (!IsFile(path)) Fail(kFileNotFound, L"The database \"" + path + L"\" cannot be opened: file not found");
    const std::wstring database = FullPath(path);
    LogOnTo(database);
    facts.Database = database;
    Installation::RecordLastDatabase(facts.Database);
    // A database comes up in the layouts that are the defaults at that moment.
    UseLayouts(State::Text(L"Preferences", L"DefaultContactLayout").value_or(L""),
               State::Text(L"Preferences", L"DefaultGroupLayout").value_or(L""));
}

std::wstring User() { return facts.Database.empty() ? L"" : UserOf(facts.Database); }

void ShowView(int view) { facts.View = view; }

void SetCalendarMode(int mode) { facts.CalendarMode = mode; }

void RunMacro(const std::wstring& path) { facts.LastMacro = path; }

void UseLayouts(const std::wstring& contact, const std::wstring& group) {
    facts.ContactLayout = contact;
    facts.GroupLayout = group;
}

void RequestClose() {
    if (closeRequest) closeRequest();
}

void SetCloseRequest(void (*request)()) { closeRequest = request; }

} // namespace Session
