#include "common/Journal.h"

#include "common/Module.h"
#include "win32/Owner.h"

#include <array>
#include <cwchar>

namespace {

void (*listener)(const Journal::Entry&) = nullptr;

std::wstring Now() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    std::array<wchar_t, 32> text{};
    std::swprintf(text.data(), text.size(), L"%04u-%02u-%02u %02u:%02u:%02u.%03u", now.wYear, now.wMonth, now.wDay,
                  now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
    return text.data();
}

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

void Append(const std::string& line) {
    // Program and component append to the same file: it is open only while a line is written, by one call.
    const FileHandle file(CreateFileW(NamedOrBeside(L"ACT_STANDIN_LOG", L"ActStandIn.log").c_str(), FILE_APPEND_DATA,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    if (file) WriteFile(file.Get(), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

} // namespace

namespace Journal {

void Write(Entry entry) {
    entry.Time = Now();
    Append(Utf8(entry.Time + L'\t' + entry.Object + L'\t' + entry.Member + L'\t' + entry.Flags + L'\t' +
                entry.Arguments + L'\t' + entry.Result + L"\r\n"));
    if (listener) listener(entry);
}

void Note(const std::wstring& member, const std::wstring& arguments, const std::wstring& result) {
    Write({{}, L"STANDIN", member, L"-", arguments, result});
}

void SetListener(void (*function)(const Entry& entry)) { listener = function; }

} // namespace Journal
