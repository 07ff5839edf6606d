#pragma once

#include <string>

/// Has the shell open a program, a document or a web address in a normal window, with the program's folder as working
/// folder. Shows nothing and fails silently: what is opened is never needed to go on.
void OpenWithShell(const std::wstring& target);

/// Loads the shell's library now, so that the first open does not wait for it.
void PrepareShell();
