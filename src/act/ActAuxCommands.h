#pragma once

#include "act/Dispatch.h"

#include <string>
#include <string_view>

/// The commands that others have added to ACT! ("ACTOLE.AUXCMDS"). Commands are told apart by name; views are numbered
/// from 1: contacts, contact list, groups, task list, calendars, e-mail. Results are ACT!'s own, 0 for success.
class ActAuxCommands {
public:
    /// A command as ACT! is to know it. Files are full paths.
    struct Definition {
        std::wstring Name;
        std::wstring ProgramFile;
        std::wstring Folder;
        std::wstring Caption;
        std::wstring ToolTip;
        std::wstring SmallIconFile;
        std::wstring LargeIconFile;
    };

    ActAuxCommands() = default;
    explicit ActAuxCommands(Dispatch object) : object_(std::move(object)) {}
    static ActAuxCommands Create(Where at = Where::current()) {
        return ActAuxCommands(Dispatch::Create(L"ACTOLE.AUXCMDS", at));
    }
    void Release() { object_.Release(); }

    bool AuxCommandExists(std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"AuxCommandExists", at}, name).Truth(at);
    }
    long AddAuxCommand(const Definition& command, Where at = Where::current()) const {
        constexpr short kLastArgument = 1; // as ACT! expects it
        return object_
            .Get({L"AddAuxCommand", at}, command.Name, command.ProgramFile, command.Folder, command.Caption,
                 command.ToolTip, command.SmallIconFile, command.LargeIconFile, kLastArgument)
            .Number(at);
    }
    bool AuxCommandExistsInToolbar(short view, std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"AuxCommandExistsInToolbar", at}, view, name).Truth(at);
    }
    bool AuxCommandExistsInToolsMenu(short view, std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"AuxCommandExistsInToolsMenu", at}, view, name).Truth(at);
    }
    long AddAuxCommandToToolbar(short view, std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"AddAuxCommandToToolbar", at}, view, name).Number(at);
    }
    long RemoveAuxCommandFromToolbar(short view, std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"RemoveAuxCommandFromToolbar", at}, view, name).Number(at);
    }
    long AddAuxCommandToToolsMenu(short view, std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"AddAuxCommandToToolsMenu", at}, view, name).Number(at);
    }
    long RemoveAuxCommandFromToolsMenu(short view, std::wstring_view name, Where at = Where::current()) const {
        return object_.Get({L"RemoveAuxCommandFromToolsMenu", at}, view, name).Number(at);
    }

private:
    Dispatch object_;
};
