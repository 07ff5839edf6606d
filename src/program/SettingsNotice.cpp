#include "program/SettingsNotice.h"

#include "i18n/MoreText.h"
#include "stores/IniLib.h"
#include "support/MsgBox.h"
#include "support/Text.h"

namespace {

std::wstring WithPath(MoreText text) { return Text::Replace(Translated(text), L"%1", IniLib::SettingsFile()); }

} // namespace

namespace SettingsNotice {

void CannotRead() { MsgBox(WithPath(MoreText::CannotRead), MsgIcon::Exclamation); }

void NotSaved() { MsgBox(WithPath(MoreText::NotSaved), MsgIcon::Exclamation); }

bool AskToSaveOrderAgain() { return AskYesNo(WithPath(MoreText::OrderNotSaved), MsgIcon::Exclamation); }

} // namespace SettingsNotice
