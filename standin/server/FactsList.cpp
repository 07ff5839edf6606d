#include "server/FactsList.h"

#include "common/State.h"
#include "server/AuxCommands.h"
#include "server/Installation.h"
#include "server/Preferences.h"
#include "server/Session.h"

#include <string>
#include <utility>
#include <vector>

namespace {

using Rows = std::vector<std::pair<std::wstring, std::wstring>>;

std::wstring NumberOrNone(int number) { return number == 0 ? L"" : std::to_wstring(number); }

void AddCommands(Rows& rows, const wchar_t* place, const wchar_t* label) {
    for (int view = 1; view <= AuxCommands::kLastView; ++view)
        if (std::wstring names = AuxCommands::NamesIn(place, view); !names.empty())
            rows.emplace_back(label + std::wstring(L", view ") + std::to_wstring(view), std::move(names));
}

Rows CurrentRows() {
    const Session::Facts& facts = Session::Current();
    Rows rows = {
        {L"Open database", facts.Database},
        {L"User", Session::User()},
        {L"View", NumberOrNone(facts.View)},
        {L"Calendar mode", NumberOrNone(facts.CalendarMode)},
        {L"Contact layout in use", facts.ContactLayout},
        {L"Group layout in use", facts.GroupLayout},
        {L"Macro run last", facts.LastMacro},
        {L"Default contact layout", Preferences::Text(L"DefaultContactLayout")},
        {L"Default group layout", Preferences::Text(L"DefaultGroupLayout")},
        {L"Start-up macro", Preferences::Text(L"StartupMacro")},
        {L"Folder of databases (0)", Preferences::Location(0)},
        {L"Folder of layouts (6)", Preferences::Location(6)},
        {L"Folder of macros (7)", Preferences::Location(7)},
    };
    AddCommands(rows, L"Toolbar", L"Toolbar");
    AddCommands(rows, L"ToolsMenu", L"Tools menu");
    for (auto& fileType : Installation::FileTypes()) rows.push_back(std::move(fileType));
    return rows;
}

} // namespace

void SetRow(HWND list, int row, const wchar_t* const* texts, int count) {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    for (item.iSubItem = 0; item.iSubItem < count; ++item.iSubItem) {
        item.pszText = const_cast<wchar_t*>(texts[item.iSubItem]);
        const bool isNew = item.iSubItem == 0 && row >= ListView_GetItemCount(list);
        SendMessageW(list, isNew ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
}

void FillFacts(HWND list) {
    const Rows rows = CurrentRows();
    int place = 0;
    for (const auto& [label, value] : rows) {
        const wchar_t* const texts[] = {label.c_str(), value.empty() ? L"\u2013" : value.c_str()};
        SetRow(list, place++, texts, 2);
    }
    while (ListView_GetItemCount(list) > place) ListView_DeleteItem(list, place);
}
