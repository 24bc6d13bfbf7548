#pragma once

#include "tools/project/ProjectSource.h"
#include "tools/system/PrivateDirectory.h"

#include <filesystem>
#include <istream>
#include <memory>
#include <string>

namespace LagomareTools {

/// Starts a custom query executable once per query, with the words DATABASE SQL FLAG, in a private directory. It is not
/// trusted: an answer counts only if it is an ordinary file that was written by a run that ended by itself.
class ExecutableSource : public ProjectSource {
public:
  /// Throws Failure.
  ExecutableSource(std::filesystem::path executable, std::filesystem::path project);

private:
  std::unique_ptr<std::istream> start(const std::string& sql, bool flag) override;
  [[nodiscard]] std::string notAnswered(const std::string& reason) const;

  std::filesystem::path executable_;
  std::filesystem::path project_;
  PrivateDirectory directory_;
};

} // namespace LagomareTools
