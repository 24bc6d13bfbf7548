#pragma once

#include <filesystem>
#include <string>

namespace LagomareTools {

// The library runs the query executable through a shell, without quoting, in the working directory. So it gets plain
// names only: a link to the database, and as executable the launcher, which is this program under another name. The
// launcher makes sure that no old answer can be read again, then starts the user's executable by its own path with the
// arguments unchanged.

struct PlainNames {
  std::string executable;
  std::string database;
};

/// Makes the links in the current directory, which must be private. All paths are absolute. Throws Failure.
[[nodiscard]] PlainNames installLauncher(const std::filesystem::path& program, const std::filesystem::path& executable,
                                         const std::filesystem::path& database);

/// Whether the program was called as the launcher.
[[nodiscard]] bool isLauncher(const std::string& calledAs);

/// Runs one query to its end, as a process group of its own. The answer says how it ended.
void launchQuery(char** arguments);

/// Ends the query that runs in a private directory, if any, with what it started; no other one can start there.
void stopQuery(const std::filesystem::path& directory);

/// What the launcher puts where the answer is due, as the channel's first line shows it.
extern const char* const noAnswer;

/// How many queries the launcher has run to their ends in the current directory.
[[nodiscard]] std::size_t numOfLaunches();

/// What the last query wrote to its standard error: the last line that says something.
[[nodiscard]] std::string lastQueryComplaint();

} // namespace LagomareTools
