#pragma once

#include "common/Journal.h"
#include "server/CloseNotice.h"
#include "server/CommandBar.h"
#include "win32/Owner.h"

#include <string>
#include <vector>

/// The stand-in's window: what ACT! would show, and the calls it received.
class StandInWindow {
public:
    StandInWindow();
    StandInWindow(const StandInWindow&) = delete;
    StandInWindow& operator=(const StandInWindow&) = delete;
    ~StandInWindow();

    /// Runs until the window is closed.
    void Run();

    /// Shows another program's stand-in window and has it open a database ("" for none).
    static void HandOver(HWND running, const std::wstring& database);

private:
    static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static void Received(const Journal::Entry& entry);
    static void RequestClose();

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT HandleCommand(int command);
    HWND MakeList(int id);
    void MakeFonts();
    void MakeControls();
    void Arrange();
    void Refresh();
    void AddCall(const Journal::Entry& entry);
    void UserCloses(CloseNotice::Urgency urgency);
    void Follow(CloseNotice::Outcome outcome);
    void OpenHandedOver(const COPYDATASTRUCT& data);
    int Scaled(int pixels) const;

    HWND window_ = nullptr;
    HWND factsTitle_ = nullptr;
    HWND facts_ = nullptr;
    HWND callsTitle_ = nullptr;
    HWND calls_ = nullptr;
    HWND status_ = nullptr;
    CommandBar commands_;
    FontHandle font_;
    FontHandle boldFont_;
    CloseNotice notice_;
    std::vector<Journal::Entry> unseen_; ///< received since the lists were last filled
};
