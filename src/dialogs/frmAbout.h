#pragma once

#include "ui/Button.h"
#include "ui/Form.h"
#include "ui/PictureBox.h"
#include "ui/TextBox.h"

/// The about box: what this program is, whose, and where to write to. Its text can be selected and copied.
class frmAbout : public Form {
public:
    frmAbout();

    PictureBox picIcon{this, L"picIcon", {180, 180, 720, 720}, {.Draw = &frmAbout::DrawIcon}};
    CommandButton cmdOK{this, L"cmdOK", {4605, 3120, 1215, 345}, {.Click = &frmAbout::cmdOK_Click}, Cancel};
    TextBox txtAbout{this, L"txtAbout", {1080, 180, 4740, 2820}, {}, TextBox::Kind::Notice};

private:
    void Form_Load() override;
    void cmdOK_Click() { Unload(); }
    void DrawIcon(int number, HDC canvas, const RECT& area, bool isFocused);
};
