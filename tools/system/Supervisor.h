#pragma once

#include <csignal>
#include <functional>

namespace LagomareTools {

/// Asks the work to stop: nothing else sends it, to a whole group neither.
constexpr int stopSignal = SIGUSR1;

/// Does the work in a process of its own and returns its exit code. Ctrl-C and its kin (SIGINT, SIGQUIT, SIGHUP, but
/// for those that this process was started to ignore, and SIGTERM) are handed on to it as stopSignal, which is blocked
/// there.
///
/// The work starts queries by system(). That makes its caller ignore SIGINT and SIGQUIT, which throws away one that has
/// just come, blocked or not. The work is also asked to stop when this process is killed.
[[nodiscard]] int supervise(const std::function<int()>& work);

} // namespace LagomareTools
