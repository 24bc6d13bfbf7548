#pragma once

#include "access/QueryResult.h"
#include "access/QuerySource.h"
#include "access/ValueResult.h"
#include "lagomare_export.h"

#include <istream>
#include <memory>
#include <string>

/// The channel to a legacy database: asks an external query executable, which writes its answer to a file, or a source
/// that the host gave it.
///
/// One channel per process, owned by the class itself; one query at a time per process and, without a source, per
/// working directory. Between queries the script and the last answer stay on disk; destroying the channel deletes them.
class LAGOMARE_EXPORT LagomareProjectManager {
public:
  static const std::string scriptFile;                   ///< "script.bat", in the working directory
  static const std::string fileResultQuery;              ///< "query-result.txt", in the working directory
  static const std::string elementBdIdField1;            ///< "NumPto"
  static const std::string elementBdIdField2;            ///< "NumPonto"
  static LagomareProjectManager* lagomareProjectManager; ///< the channel, or null

  /// The channel; makes it for this database where there is none. An existing channel keeps its database.
  static LagomareProjectManager* getInstance(const std::string& databaseFilename);
  /// The channel. Throws std::runtime_error
  /// "LagomareProjectManager::getInstance(): database filename not initialized" where there is none.
  [[nodiscard]] static LagomareProjectManager* getInstance();
  /// Destroys the channel, if any, and with it the two files.
  static void cleanInstance();

  LagomareProjectManager(const LagomareProjectManager&) = delete;
  LagomareProjectManager& operator=(const LagomareProjectManager&) = delete;

  void setApiExecutable(const std::string& path);

  /// From now on this source answers the queries: no script is written or run, and the working directory is left alone.
  /// The channel shares the source until it is destroyed. An import uses the channel that it finds, so a host calls
  /// getInstance(databaseFilename)->setSource(source) and then the import, which destroys the channel when it returns.
  /// After an exception the channel is still there: the host calls cleanInstance(). A null pointer brings the script
  /// back.
  void setSource(std::shared_ptr<Lagomare::QuerySource> source);

  /// Writes the one line of the script: executable "database" "sql" flag. Nothing in it is escaped, and the
  /// executable is not quoted. A script that cannot be written is not reported.
  void buildScript(const std::string& sql, bool flag) const;

  /// Runs one query. With a source: throws what the source throws, unchanged, and std::runtime_error
  /// "LagomareProjectManager::query: the source gave no answer that can be read: SQL" for a stream that is null or not
  /// good. With the script: an answer that cannot be opened is empty; that the executable failed is not noticed, so an
  /// old answer would be read again. Throws as Lagomare::parseRows does.
  [[nodiscard]] QueryResult query(const std::string& sql, bool flag) const;
  /// The same for a query of an id and one value.
  [[nodiscard]] Lagomare::ValueResult queryValues(const std::string& sql, bool flag) const;

private:
  explicit LagomareProjectManager(std::string databaseFilename);
  ~LagomareProjectManager();

  /// Runs one query and opens its answer.
  [[nodiscard]] std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) const;
  [[nodiscard]] std::unique_ptr<std::istream> runScript(const std::string& sql, bool flag) const;

  std::string databaseFilename;
  std::string apiExecutable;
  std::shared_ptr<Lagomare::QuerySource> source_; ///< null: the script
};
