#pragma once

#include "act/Dispatch.h"

#include <string>
#include <string_view>

/// What ACT!'s preferences are asked for with GetDefaultLocation.
namespace DefaultLocation {
inline constexpr long Databases = 0;
inline constexpr long Layouts = 6;
inline constexpr long Macros = 7;
} // namespace DefaultLocation

/// The view created by ActViews::Create.
class ActView {
public:
    explicit ActView(Dispatch object) : object_(std::move(object)) {}
    /// 300 monthly, 301 weekly, 302 daily.
    void SetCalendarMode(short mode, Where at = Where::current()) const {
        object_.Call({L"SetCalendarMode", at}, mode);
    }

private:
    Dispatch object_;
};

/// The "Views" object of a running ACT!.
class ActViews {
public:
    ActViews() = default;
    explicit ActViews(Dispatch object) : object_(std::move(object)) {}
    /// Shows a view: 1 contacts, 2 contact list, 3 groups, 4 task list, 5 calendar.
    void Show(short view, Where at = Where::current()) const {
        object_.Call({L"Create", at}, view, std::wstring_view(L"V"));
    }
    /// Shows a view and returns it.
    ActView Create(short view, Where at = Where::current()) const {
        return ActView(Dispatch(object_.Get({L"Create", at}, view, std::wstring_view(L"V")).Object(at)));
    }
    void Release() { object_.Release(); }

private:
    Dispatch object_;
};

/// The "Preferences" object of a running ACT!. Layouts and macros are full paths.
class ActPreferences {
public:
    ActPreferences() = default;
    explicit ActPreferences(Dispatch object) : object_(std::move(object)) {}

    std::wstring DefaultContactLayout(Where at = Where::current()) const { return Text({L"DefaultContactLayout", at}); }
    void DefaultContactLayout(std::wstring_view path, Where at = Where::current()) const {
        object_.Put({L"DefaultContactLayout", at}, path);
    }
    std::wstring DefaultGroupLayout(Where at = Where::current()) const { return Text({L"DefaultGroupLayout", at}); }
    void DefaultGroupLayout(std::wstring_view path, Where at = Where::current()) const {
        object_.Put({L"DefaultGroupLayout", at}, path);
    }
    std::wstring StartupMacro(Where at = Where::current()) const { return Text({L"StartupMacro", at}); }
    void StartupMacro(std::wstring_view path, Where at = Where::current()) const {
        object_.Put({L"StartupMacro", at}, path);
    }
    bool UseLastDBonStartup(Where at = Where::current()) const {
        return object_.Get({L"UseLastDBonStartup", at}).Truth(at);
    }
    /// A folder of ACT!'s; may or may not end in "\". `kind` is one of DefaultLocation.
    std::wstring GetDefaultLocation(long kind, Where at = Where::current()) const {
        return object_.Get({L"GetDefaultLocation", at}, kind).Text(at);
    }
    void Release() { object_.Release(); }

private:
    std::wstring Text(const Member& member) const { return object_.Get(member).Text(member.At); }

    Dispatch object_;
};

/// A running ACT! ("ACTOLE.APPOBJECT").
class ActApplication {
public:
    ActApplication() = default;
    explicit ActApplication(Dispatch object) : object_(std::move(object)) {}
    static ActApplication Create(Where at = Where::current()) {
        return ActApplication(Dispatch::Create(L"ACTOLE.APPOBJECT", at));
    }

    explicit operator bool() const { return static_cast<bool>(object_); }
    void OpenFile(std::wstring_view path, Where at = Where::current()) const { object_.Call({L"OpenFile", at}, path); }
    ActViews Views(Where at = Where::current()) const {
        return ActViews(Dispatch(object_.Get({L"Views", at}).Object(at)));
    }
    ActPreferences Preferences(Where at = Where::current()) const {
        return ActPreferences(Dispatch(object_.Get({L"Preferences", at}).Object(at)));
    }
    void openDB(std::wstring_view path, Where at = Where::current()) const {
        Dispatch::WaitLonger();
        object_.Call({L"openDB", at}, path);
    }
    void RunMacro(std::wstring_view path, Where at = Where::current()) const { object_.Call({L"RunMacro", at}, path); }
    /// Full path of the open database, "" when none is open.
    std::wstring GetOpenDBName(Where at = Where::current()) const {
        return object_.Get({L"GetOpenDBName", at}).Text(at);
    }
    /// Chooses an item of ACT!'s menus by its number there.
    void Command(short number, Where at = Where::current()) const { object_.Call({L"Command", at}, number); }
    /// The logged-on user, "" when no database is open.
    std::wstring GetCurrentUserName(Where at = Where::current()) const {
        return object_.Get({L"GetCurrentUserName", at}).Text(at);
    }
    void Release() { object_.Release(); }

private:
    Dispatch object_;
};
