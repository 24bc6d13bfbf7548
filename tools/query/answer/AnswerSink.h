#pragma once

#include <string>
#include <string_view>

namespace LagomareQuery {

/// Takes the bytes of an answer: a file or a stream.
class AnswerSink {
public:
  virtual ~AnswerSink() = default;
  virtual void write(std::string_view bytes) = 0;

protected:
  AnswerSink() = default;
  AnswerSink(const AnswerSink&) = default;
  AnswerSink& operator=(const AnswerSink&) = default;
};

/// Returns the text with a blank for each line break and other control character. File names can contain them.
[[nodiscard]] std::string inOneLine(std::string_view text);

} // namespace LagomareQuery
