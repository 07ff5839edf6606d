#pragma once

#include "i18n/LangText.h"

#include <string>

/// Names for the rows of LangText, for use as LangText[Caption::Open]. Rows without a name are used by no window.
namespace Caption {

enum Row : int {
    OK = 1,
    Cancel,
    MoreAt,
    About,
    Freeware,
    EmailUs,
    AlreadyRunning,
    RunActFirst = 9, ///< ends where the program's name follows
    EventProblem,
    RunActReg,
    VendorAddOns, ///< with an access key
    IntegrateTitle,
    Close = 17,
    RestartNeeded = 20,
    RestartNow,
    OperationFailed,
    ClickToLaunch,
    DatabaseColumn = 42,
    ContactLayoutColumn,
    GroupLayoutColumn,
    OpeningMacroColumn,
    OpenIn,
    FirstView, ///< seven, in the order of the views' codes
    DatabaseProperties = 55,
    Help,
    OnlineHelp,
    AboutItem,
    Options,
    Integrate,
    LanguagesItem,
    Open,
    OnlineHelpPage, ///< a file's name
    PickLanguage,
    Languages,
    NoDatabaseSelected = 82,
    Properties,
    DefaultContactLayout,
    DefaultGroupLayout,
    RunMacroOnOpening,
    Add,
    Remove,
    ManageList,
    DatabasesListed,
    DatabasePath,
    FriendlyName,
    ContactLayoutNeeded,
    MoveUp,
    MoveDown,
    ToolbarViews,
    ToolsMenuViews,
    FirstActView, ///< six, in the order of ACT!'s views
    SelectFirst = 104,
    EmptyListHint,
    NotAccessible,
    ContactSupport = 108,
    FirstLocation, ///< twelve, in the order of Keys::Locations
    UniqueNameNeeded = 121,
    SettingsFileLocation,
    DatabaseNeeded,
    EditLocations,
    Edit,
    OpenDatabaseNeeded,
    QuickSwitchSettings,
    File,
    Exit,
    UsersManual,
    General,
    DefaultLocations,
    Logon,
    UseLocationsFrom,
    UseSpecificLocations,
    Username,
    UsePassword,
    Buttons,
    ColorScheme,
    AssignDatabase,
    Button,
    DisplayAtStartup = 145,
    ChooseColorScheme,
    FileType,
    Location,
    ClearLocation, ///< a question that ends where the location follows
    CloseAndLaunch,
    NoPasswordAtStartup = 152,
};
static_assert(NoPasswordAtStartup == LangTextRows);

/// A caption without the "&" of its access key.
std::wstring Plain(const std::wstring& caption);
/// A caption with the dots that stand for a dialog.
std::wstring WithDots(const std::wstring& caption);

} // namespace Caption
