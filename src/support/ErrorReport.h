#pragma once

#include "support/Error.h"

#include <string>

/// Names the source of the sentence that ends every error report ("Please contact ... with this error message.") in the
/// user's language. Until it is set the reports end without one.
void SetSupportSentence(std::wstring (*sentence)());

/// The text of an error report: number, description, place ("in " + procedure + " - Line # " + line) and the support
/// sentence.
std::wstring ErrorText(const Error& error, const std::wstring& procedure);

/// The exception being handled as an Error. A foreign exception gets its Basic number and line 0.
/// Call it only inside a catch block.
Error CurrentError() noexcept;

/// Shows the common error report about the exception being handled, naming the given procedure such as
/// "frmMain: Sub Form_Load" unless the error names its own. Call it only inside a catch block; lets nothing escape.
void ErrorReport(const char* procedure) noexcept;
void ErrorReport(const std::wstring& procedure) noexcept;
