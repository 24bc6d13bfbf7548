#pragma once

#include <chrono>
#include <string>

namespace LagomareTools {

/// One line on standard error that tells how far the import is, redrawn at each step and gone when this goes. Draws
/// nothing where it is not wanted or standard error is no terminal.
class Progress {
public:
  explicit Progress(bool isWanted);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void show(long stepsDone, long stepsInAll);

private:
  void draw(const std::string& text);

  bool isDrawn_;
  std::size_t width_ = 0; ///< bytes of the text that stands there
  std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

} // namespace LagomareTools
