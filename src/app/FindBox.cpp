#include "app/FindBox.h"

#include "support/Text.h"

void FindBox::Open() {
    if (!isOpen_) Toggle();
    box_.SetFocus();
    box_.SelectAll();
}

void FindBox::Close() {
    label_.Visible(false);
    box_.Visible(false);
    if (!isOpen_) return;
    Toggle();
    box_.Text({});
    list_.ShowOnly({});
}

void FindBox::Toggle() {
    isOpen_ = !isOpen_;
    SendMessageW(GetParent(list_.Handle()), WM_SIZE, SIZE_RESTORED, 0);
    label_.Visible(isOpen_);
    box_.Visible(isOpen_);
}

void FindBox::Narrow() {
    if (!isOpen_) return;
    const std::wstring wanted = box_.Text();
    list_.ShowOnly([&](int row) {
        for (int column = 0; column < list_.ColumnCount(); ++column)
            if (wanted.empty() || Text::ContainsNoCase(list_.Cell(row, column), wanted)) return true;
        return false;
    });
}

bool FindBox::TakesKey(int key) const {
    if (!isOpen_ || GetFocus() != box_.Handle() || (key != VK_UP && key != VK_DOWN)) return false;
    SendMessageW(list_.Handle(), WM_KEYDOWN, static_cast<WPARAM>(key), 0);
    return true;
}
