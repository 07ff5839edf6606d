#include "program/Program.h"

ProgramState& Program() {
    static ProgramState state;
    return state;
}
