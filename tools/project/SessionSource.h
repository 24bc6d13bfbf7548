#pragma once

#include "tools/project/AnswerStore.h"
#include "tools/project/ProjectSource.h"
#include "tools/system/ChildProcess.h"
#include "tools/system/PrivateDirectory.h"

#include <array>
#include <filesystem>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

namespace LagomareTools {

/// Asks one process for the whole project: `lagomare-query --session DATABASE`. Each answer is read while it is
/// written. It counts only once its end line has come. As the process sees one state of the project, a query that is
/// asked again has the same answer.
class SessionSource : public ProjectSource {
public:
  /// Starts the process; `projectName` is for messages. Throws Failure.
  SessionSource(std::filesystem::path executable, const std::filesystem::path& project, std::string projectName);

  void keepAnswers() override { kept_.keepIn(directory_.path()); }

private:
  class Answer;
  /// Where the rest of the answer comes from.
  enum class Rest { none, process, kept };

  std::unique_ptr<std::istream> start(const std::string& sql, bool flag) override;

  /// Reads more of the answer. Empty at its end.
  [[nodiscard]] std::string_view next();
  [[nodiscard]] std::string_view nextFromProcess();
  void readEndLine(std::string line);
  void skipRest();
  [[noreturn]] void failAsEnded();

  std::filesystem::path executable_;
  std::string projectName_;
  PrivateDirectory directory_;
  ChildProcess process_;
  AnswerStore kept_;
  Rest rest_ = Rest::none;
  std::array<char, std::size_t{1} << 16U> block_{};
};

} // namespace LagomareTools
