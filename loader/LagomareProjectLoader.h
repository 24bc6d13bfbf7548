#pragma once

#include "lagomare_export.h"
#include "loader/SceneryProjectManagerRet.h"

#include <functional>
#include <memory>
#include <string>

class Scenario;

/// The library's entry: one call imports one legacy project.
///
/// The query executable is run through the platform's command interpreter with the working directory as it
/// is; the files "script.bat" and "query-result.txt" appear there during the import and are deleted when it
/// returns. Neither path is quoted or escaped on the way. One import at a time per process and working
/// directory.
///
/// The callback is given the steps done and the steps in all, on the calling thread; when it answers false
/// the import stops with status 0. An empty callback lets it run.
///
/// Throws what the query channel, the conversion of numbers (see FieldError) and the model throw: what the
/// project holds that cannot be read. In that case the two files stay, for whoever looks for the cause, until
/// the next import that returns.
class LAGOMARE_EXPORT LagomareProjectLoader {
public:
  [[nodiscard]] static SceneryProjectManagerRet load2010(const std::string& executablePath,
                                                         const std::string& databaseFilename,
                                                         std::function<bool(long, long)> progress);
  [[nodiscard]] static SceneryProjectManagerRet load2013(const std::string& executablePath,
                                                         const std::string& databaseFilename,
                                                         std::function<bool(long, long)> progress);

  /// Folds each pair of opposite links between two reservoirs into one bidirectional link of kind 10: the one
  /// that leaves the reservoir met first stays, and nothing of the other is carried over. Between two
  /// reservoirs with several links the pairs form in the links' order; a link without a partner stays as it
  /// is, and so does one from a reservoir to itself. The time grows with the number of links, not with its square.
  static void transformBirectionalLinks(std::shared_ptr<Scenario> scenario);
};
