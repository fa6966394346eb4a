#include "src/state/ProgramState.h"

namespace kalyxo {

namespace {

ProgramState* current = nullptr;

}  // namespace

ProgramState::ProgramState() { current = this; }

ProgramState::~ProgramState() { current = nullptr; }

ProgramState& TheApp() { return *current; }

}  // namespace kalyxo
