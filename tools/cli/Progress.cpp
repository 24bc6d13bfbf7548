#include "tools/cli/Progress.h"

#include "tools/system/StandardStreams.h"

#include <cstdio>
#include <exception>
#include <fmt/format.h>

namespace LagomareTools {

Progress::Progress(bool isWanted) : isDrawn_(isWanted && isErrorATerminal()) { draw("lagomare: reading the project"); }

Progress::~Progress() {
  try {
    draw("");
  } catch (const std::exception&) {
    // Only a line that is not drawn.
  }
}

void Progress::show(long stepsDone, long stepsInAll) {
  const auto elapsed = std::chrono::steady_clock::now() - begin_;
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(elapsed).count();
  draw(fmt::format("lagomare: step {} of {}, {}:{:02}", stepsDone, stepsInAll, seconds / 60, seconds % 60));
}

/// An empty text leaves the cursor where the line began.
void Progress::draw(const std::string& text) {
  if (!isDrawn_)
    return;
  std::string line = fmt::format("\r{:<{}}", text, width_);
  if (text.empty())
    line += '\r';
  width_ = text.size();
  std::fputs(line.c_str(), stderr);
}

} // namespace LagomareTools
