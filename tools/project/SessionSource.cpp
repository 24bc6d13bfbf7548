#include "tools/project/SessionSource.h"

#include "tools/project/QueryRefused.h"

#include <algorithm>
#include <streambuf>
#include <utility>

namespace LagomareTools {

namespace {

constexpr char endMark = '\4'; ///< begins the end line of an answer; no row holds it
constexpr std::string_view complete = "complete";
constexpr std::string_view error = "error: ";

} // namespace

/// The rows of the answer that the session is giving.
class SessionSource::Answer : public std::istream {
public:
  explicit Answer(SessionSource& source) : std::istream(nullptr), buffer_(source) { rdbuf(&buffer_); }

private:
  class Buffer : public std::streambuf {
  public:
    explicit Buffer(SessionSource& source) : source_(source) {}

  protected:
    int_type underflow() override {
      const std::string_view text = source_.next();
      auto* const begin = source_.block_.data();
      setg(begin, begin, begin + text.size());
      return text.empty() ? traits_type::eof() : traits_type::to_int_type(*begin);
    }

  private:
    SessionSource& source_;
  };

  Buffer buffer_;
};

SessionSource::SessionSource(std::filesystem::path executable, const std::filesystem::path& project,
                             std::string projectName)
    : executable_(std::move(executable)), projectName_(std::move(projectName)),
      process_({executable_, {"--session", project.u8string()}, directory_.path(), true}) {}

std::unique_ptr<std::istream> SessionSource::start(const std::string& sql, bool flag) {
  skipRest();
  if (kept_.open(sql)) { // the flag changes nothing in an answer
    rest_ = Rest::kept;
  } else {
    kept_.begin(sql);
    std::string line = (flag ? "1 " : "0 ") + sql;
    std::replace(line.begin(), line.end(), '\n', ' ');
    process_.write(line + '\n');
    rest_ = Rest::process;
  }
  return std::make_unique<Answer>(*this);
}

std::string_view SessionSource::next() {
  switch (rest_) {
  case Rest::process:
    return nextFromProcess();
  case Rest::kept:
    return {block_.data(), kept_.read(block_.data(), block_.size())};
  default:
    return {};
  }
}

std::string_view SessionSource::nextFromProcess() {
  const std::size_t length = process_.read(block_.data(), block_.size());
  if (length == 0)
    failAsEnded();
  const std::string_view text(block_.data(), length);
  const std::size_t end = text.find(endMark);
  kept_.add(text.substr(0, end));
  if (end != std::string_view::npos)
    readEndLine(std::string(text.substr(end + 1)));
  return text.substr(0, end);
}

/// `line` is the beginning of the line, behind its mark.
void SessionSource::readEndLine(std::string line) {
  while (line.empty() || line.back() != '\n') { // nothing follows it until the next query is asked
    std::array<char, 256> more{};
    const std::size_t length = process_.read(more.data(), more.size());
    if (length == 0)
      failAsEnded();
    line.append(more.data(), length);
  }
  line.pop_back();
  rest_ = Rest::none;
  if (line.compare(0, error.size(), error) == 0)
    throw QueryRefused(line.substr(error.size()));
  if (line != complete)
    failAsEnded();
  kept_.complete();
}

/// The end of an answer that nobody read to its end.
void SessionSource::skipRest() {
  try {
    while (rest_ == Rest::process)
      static_cast<void>(next());
  } catch (const QueryRefused&) {
    // Whoever asked for it does not want to know.
  }
}

void SessionSource::failAsEnded() {
  const std::string prefix = "lagomare-query: error: ";
  const ChildEnd end = process_.wait();
  const std::string complaint = lastLineOf(process_.complaint());
  if (complaint.compare(0, prefix.size(), prefix) == 0)
    throw Failure(projectName_ + ": " + complaint.substr(prefix.size()));
  throw Failure(projectName_ + ": the query executable " + executable_.u8string() + " ended before it had answered, " +
                (end.exitCode ? "with the exit code " + std::to_string(*end.exitCode) : "killed") +
                (complaint.empty() ? "" : ": " + complaint));
}

} // namespace LagomareTools
