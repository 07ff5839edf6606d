#pragma once

#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/Label.h"

/// Says that the program waits for ACT!, when nothing else of it is on the screen. Cancel works although the program is
/// in a call into ACT!, where no other command does.
class frmWaiting : public Form {
public:
    frmWaiting();

    Label lblWaiting{this, L"lblWaiting", {180, 210, 6660, 225}};
    CommandButton cmdCancel{
        this, L"cmdCancel", {5610, 630, 1215, 345}, {.Click = &frmWaiting::cmdCancel_Click}, Cancel};

    /// Lets calls into ACT! that are refused for long show it.
    static void Serve();

private:
    void Form_Load() override;
    void Form_CloseBox() override { isCancelled_ = true; }
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void cmdCancel_Click() { isCancelled_ = true; }
    static bool IsCancelled(DWORD milliseconds);
    static void Over();

    bool isCancelled_ = false;
};
