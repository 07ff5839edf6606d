#pragma once

#include "Measure.h"
#include "support/Journey.h"

/// A journey with long lists, the log-on helper beside the program, and programs to compare with.
class Workplace : public Journey {
public:
    static constexpr const wchar_t* MainClass = L"frmMain";
    static constexpr const wchar_t* PaletteClass = L"frmQuickSwitch";
    static constexpr const wchar_t* MinimalClass = L"BenchMinimal";
    static constexpr const wchar_t* ClientClass = L"Static";

    Workplace();

    // Programs to compare with.
    static std::wstring Minimal();
    static std::wstring Client();
    /// Lets the client connect, show a window and wait for its WM_APP.
    std::wstring ClientArguments() const {
        return L'"' + SettingsFile() + L"\" " + Name(1) + L" \"" + ProgramFile(L"logon.exe") + L'"';
    }

    /// Writes a settings file of so many databases, each with layouts and all twelve folders. Their files exist. Unless
    /// told otherwise the file is an hour old: Wine's profile calls read a file that was just written anew at each
    /// call.
    void WriteList(int databases, const std::string& general = {}, bool justWritten = false) const;
    /// Two letters: the longest list that can be shown is 998 bytes.
    static std::wstring Name(int number);

    /// Milliseconds until the window of that class is ready.
    double StartProgram(const wchar_t* windowClass = MainClass) const {
        return TimeToReady(ProgramFile(L"Kelmorra.exe"), windowClass);
    }
    static double StartMinimal(int rows) { return TimeToReady(Minimal(), MinimalClass, std::to_wstring(rows)); }
    /// Milliseconds that a bare client needs for a start's calls of ACT!.
    static double CallsOfStart();
};
