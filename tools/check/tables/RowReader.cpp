#include "tools/check/tables/RowReader.h"

namespace LagomareTools {

namespace {

std::unique_ptr<std::istream> openAnswer(Lagomare::QuerySource& source, const std::string& sql, bool flag) {
  auto answer = source.ask(sql, flag);
  answer->exceptions(std::ios::badbit); // a stream by itself would take an exception of its buffer for the end
  return answer;
}

} // namespace

RowReader::RowReader(Lagomare::QuerySource& source, const std::string& sql, bool flag)
    : answer_(openAnswer(source, sql, flag)), lines_(*answer_) {}

bool RowReader::next() {
  std::string_view line;
  if (!lines_.next(line))
    return false;
  recall(number_ + 1, line);
  return true;
}

void RowReader::recall(std::size_t number, std::string_view line) {
  number_ = number;
  line_ = line;
  fields_.clear();
  std::string_view rest = line;
  for (std::size_t end = rest.find(' '); end != std::string_view::npos; end = rest.find(' ')) {
    fields_.push_back(rest.substr(0, end));
    rest.remove_prefix(end + 1);
  }
}

} // namespace LagomareTools
