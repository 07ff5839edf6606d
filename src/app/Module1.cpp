#include "app/Module1.h"

#include "program/Program.h"
#include "support/ErrorReport.h"
#include "win32/Windows.h"

namespace Module1 {

bool Create_object() try {
    ProgramState& program = Program();
    program.Application = ActApplication::Create();
    program.Application.OpenFile(L"");
    program.Views = program.Application.Views();
    program.Preferences = program.Application.Preferences();
    return true;
} catch (...) {
    ErrorReport("Module1: Sub Create_object");
    return false;
}

void Release_object() noexcept {
    ProgramState& program = Program();
    program.Preferences.Release();
    program.Views.Release();
    program.Application.Release();
}

} // namespace Module1
