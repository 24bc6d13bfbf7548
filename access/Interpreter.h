#pragma once

#include <string>

namespace Lagomare {

/// Runs a script of the working directory with the platform's command interpreter and waits for its end. Its
/// exit code means nothing. On Windows the interpreter's console is kept hidden.
void runScript(const std::string& scriptFile);

} // namespace Lagomare
