// ini_writer FILE SECTION COUNT [plain]: writes that many keys into a section, or the same few for ever when COUNT is
// 0. "plain" uses the platform's call alone. The exit code is the number of writes that were refused again and again.

#include "stores/IniLib.h"
#include "win32/AnsiText.h"
#include "win32/Windows.h"

#include <cwchar>

namespace {

bool Write(const std::wstring& section, const std::wstring& key, const std::wstring& value, bool isPlain) {
    if (!isPlain) return IniLib::WriteKeyValue(section, key, value);
    return WritePrivateProfileStringA(ToAnsi(section).c_str(), ToAnsi(key).c_str(), ToAnsi(value).c_str(),
                                      ToAnsi(IniLib::SettingsFile()).c_str()) != 0;
}

} // namespace

int wmain(int count, wchar_t** arguments) {
    constexpr int kTries = 20;
    constexpr unsigned long kFewKeys = 5;
    if (count < 4) return -1;
    IniLib::SettingsFile(arguments[1]);
    const unsigned long wanted = std::wcstoul(arguments[3], nullptr, 10);
    int refused = 0;
    for (unsigned long number = 0; wanted == 0 || number < wanted; ++number) {
        const std::wstring key = L"K" + std::to_wstring(wanted == 0 ? number % kFewKeys : number);
        const std::wstring value(number % 20 + 1, L'v');
        int tries = 0;
        while (tries < kTries && !Write(arguments[2], key, value, count > 4)) ++tries;
        if (tries == kTries) ++refused;
    }
    return refused;
}
