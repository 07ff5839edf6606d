#pragma once

#include "stores/SafeFile.h"

#include <string>

/// Whether what a settings file reads as is what it holds.
namespace FileHealth {

/// From worse to better. `Empty` has no byte at all, or holds zero bytes, as a file does after a crash of its machine.
/// A folder counts as missing.
enum class State { Unreadable, Missing, Empty, Sound };

State Inspect(const SafeFile::Contents& contents);
State Inspect(const std::wstring& path);

/// True when the file is unreadable or empty, and stays so for 400 milliseconds: another program may be writing it.
bool IsDamaged(const std::wstring& path);

/// Remembers for this run the best that a file has been found in.
void Note(const std::wstring& path, State state);

/// True when a file cannot be taken at its word: it cannot be read, or has been in a better state in this run. Missing
/// then means that its share is away, and empty that it is damaged.
bool IsOutage(const std::wstring& path, State state);

} // namespace FileHealth
