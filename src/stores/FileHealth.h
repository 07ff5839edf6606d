#pragma once

#include <optional>
#include <string>

/// Whether what a settings file reads as is what it holds.
namespace FileHealth {

/// `Empty` has no byte at all, or holds zero bytes, as a file does after a crash of its machine. A folder counts as
/// missing.
enum class State { Missing, Unreadable, Empty, Sound };

State Inspect(const std::wstring& path);
/// The same of bytes that have been read, none when they could not be.
State Inspect(const std::optional<std::string>& bytes);

/// True when the file is unreadable or empty, and stays so for 400 milliseconds: another program may be writing it.
bool IsDamaged(const std::wstring& path);

/// Remembers for this run that settings have been read from the file.
void NoteRead(const std::wstring& path);

/// False while the file cannot be read, or has become empty since settings were read from it in this run. What it reads
/// as then must not be written back. Waits up to 90 milliseconds for it to get well.
bool CanBeTrusted(const std::wstring& path);

} // namespace FileHealth
