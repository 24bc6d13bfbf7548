#include "tools/project/ExecutableSource.h"

#include "access/LagomareProjectManager.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/ChildProcess.h"

#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>

namespace LagomareTools {

namespace {

namespace fs = std::filesystem;

const std::string noAnswer = "did not answer";

/// The reason that an answer's first line gives in place of rows: "error: REASON .". Empty if it is no such line.
std::string refusalIn(const std::string& line) {
  const std::string beginning = "error:";
  if (line.compare(0, beginning.size(), beginning) != 0)
    return "";
  std::string reason = line.substr(beginning.size());
  reason.erase(reason.find_last_not_of(". \r") + 1);
  return reason.erase(0, reason.find_first_not_of(' '));
}

/// Throws QueryRefused if the stream holds a refusal, and leaves it at its beginning otherwise.
void requireRows(std::istream& answer) {
  std::string beginning(std::size_t{4096}, '\0');
  answer.read(beginning.data(), static_cast<std::streamsize>(beginning.size()));
  beginning.resize(static_cast<std::size_t>(answer.gcount()));
  const std::string reason = refusalIn(beginning.substr(0, beginning.find('\n')));
  if (!reason.empty())
    throw QueryRefused(reason);
  answer.clear();
  answer.seekg(0);
}

} // namespace

ExecutableSource::ExecutableSource(fs::path executable, fs::path project)
    : executable_(std::move(executable)), project_(std::move(project)) {}

std::unique_ptr<std::istream> ExecutableSource::start(const std::string& sql, bool flag) {
  const fs::path file = directory_.path() / LagomareProjectManager::fileResultQuery;
  std::error_code error;
  fs::remove_all(file, error); // no old answer can be read again
  if (error || !fs::is_directory(directory_.path()))
    throw Failure("cannot clear the working directory " + directory_.path().u8string() + " for the next query");
  ChildProcess process({executable_, {project_.u8string(), sql, flag ? "1" : "0"}, directory_.path()});
  const ChildEnd end = process.wait();
  const std::string complaint = lastLineOf(process.complaint());
  const std::string reason = complaint.empty() ? "" : ": " + complaint;
  const fs::file_type type = fs::symlink_status(file, error).type();
  if (!end.exitCode || type == fs::file_type::not_found)
    throw QueryRefused(notAnswered(noAnswer + reason));
  if (type != fs::file_type::regular)
    throw QueryRefused(notAnswered("wrote its answer into what is no ordinary file"));
  errno = 0;
  auto answer = std::make_unique<std::ifstream>(file, std::ios::binary);
  if (!*answer)
    throw QueryRefused(notAnswered("wrote an answer that cannot be opened: " + systemText(errno)));
  if (*end.exitCode != 0 && !complaint.empty() && fs::is_empty(file, error))
    throw QueryRefused(notAnswered(noAnswer + reason));
  requireRows(*answer);
  return answer;
}

std::string ExecutableSource::notAnswered(const std::string& reason) const {
  return "the query executable " + executable_.u8string() + ' ' + reason;
}

} // namespace LagomareTools
