#pragma once

#include <string>
#include <string_view>

/// What the program is called and where it lies.
namespace Application {

/// The application's title: caption of every message box and root of the per-user store.
inline constexpr wchar_t Title[] = L"Kelmorra";

/// Full path of the folder that holds the running program, without a trailing "\" (with one for a drive's root).
std::wstring Folder();

/// File name of the running program without its folder and without ".exe".
std::wstring ProgramName();

/// `Folder()` and a file name joined by exactly one "\".
std::wstring FileInFolder(std::wstring_view fileName);

/// The program's version with its points: "3.2.0".
std::wstring Version();

/// The program's version as major, minor and revision written one after another: "320" for 3.2.0.
std::wstring VersionDigits();

} // namespace Application
