#pragma once

#include "tools/export/Table.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace LagomareTools {

/// An SQLite database that is filled once. Keeps no journal: nothing appears beside the file. Every member throws
/// Failure.
class SqliteFile {
public:
  /// The file must be empty or missing.
  explicit SqliteFile(const std::filesystem::path& file);

  /// Runs one or more statements.
  void execute(const std::string& sql);

  /// A statement that is run once per row.
  class Insert {
  public:
    Insert(SqliteFile& file, const std::string& sql);
    /// Parameters from 1. What is bound to one stays until the next time; a text or a blob must live until run().
    void bind(int parameter, const Cell& cell);
    /// NULL if there are no bytes.
    void bindBlob(int parameter, std::string_view bytes);
    void run();

  private:
    struct Finalize {
      void operator()(sqlite3_stmt* statement) const;
    };
    SqliteFile& file_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
  };

private:
  struct Close {
    void operator()(sqlite3* database) const;
  };
  void require(bool isDone) const;

  std::unique_ptr<sqlite3, Close> database_;
};

} // namespace LagomareTools
