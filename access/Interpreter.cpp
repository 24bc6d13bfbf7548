#include "access/Interpreter.h"

#include <cstdlib>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

void Lagomare::runScript(const std::string& scriptFile) {
  AllocConsole(); // fails harmlessly where there is one
  ShowWindow(FindWindowA("ConsoleWindowClass", nullptr), SW_HIDE);
  static_cast<void>(std::system(scriptFile.c_str()));
}

#else

void Lagomare::runScript(const std::string& scriptFile) {
  // Read by the shell that system() starts: naming another shell would start a second process.
  const std::string command = ". ./" + scriptFile;
  [[maybe_unused]] const int exitCode = std::system(command.c_str()); // NOLINT(cert-env33-c): the channel's one way
}

#endif
