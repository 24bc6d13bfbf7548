#include "tools/system/posix/Descendants.h"

#include <cerrno>
#include <csignal>
#include <fstream>
#include <set>
#include <string>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace LagomareTools::Descendants {

namespace {

std::set<pid_t> ownChildren;
bool isWatching = false;

/// None where the system does not list them.
std::vector<pid_t> childrenNow() {
  std::vector<pid_t> children;
  std::ifstream list("/proc/self/task/" + std::to_string(::getpid()) + "/children");
  for (pid_t child = 0; list >> child;)
    children.push_back(child);
  return children;
}

} // namespace

void watch() {
#ifdef __linux__
  if (!isWatching && ::prctl(PR_SET_CHILD_SUBREAPER, 1) == 0) {
    isWatching = true;
    for (const pid_t child : childrenNow()) // of a shell that became this program
      ownChildren.insert(child);
  }
#endif
}

void adopt(pid_t child) {
  if (child > 0)
    ownChildren.insert(child);
}

void forget(pid_t child) { ownChildren.erase(child); }

void end() noexcept {
  for (bool hasEnded = isWatching; hasEnded;) {
    hasEnded = false;
    for (const pid_t child : childrenNow())
      if (ownChildren.count(child) == 0) {
        ::kill(child, SIGKILL);
        while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
        hasEnded = true; // its own children are this process's now
      }
  }
}

} // namespace LagomareTools::Descendants
