#include "tools/query/AnswerFile.h"

#include <algorithm>

namespace LagomareQuery {

std::string inOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

AnswerFile::AnswerFile(std::string path) : m_file(std::move(path), unfinishedLine) {}

void AnswerFile::flush() {
  const std::size_t missingHead = m_flushed < m_head.size() ? m_head.size() - m_flushed : 0;
  const std::size_t held = std::min(m_used, missingHead);
  std::copy_n(m_buffer.data(), held, m_head.data() + (m_head.size() - missingHead));
  m_file.writeAt(m_flushed + held, std::string_view(m_buffer.data() + held, m_used - held));
  m_flushed += m_used;
  m_used = 0;
}

void AnswerFile::commit() {
  flush();
  const std::size_t head = std::min<std::uint64_t>(m_flushed, m_head.size());
  // A shorter answer: the error line's beginning, which is no row either, until the answer's bytes cover it.
  if (m_flushed < m_head.size())
    m_file.truncate(m_flushed);
  m_file.writeAt(0, std::string_view(m_head.data(), head));
  m_file.close();
}

void AnswerFile::fail(std::string_view reason) noexcept {
  // The line goes over the head before the tail is cut off: at no moment is the first line a row.
  const auto overwrite = [this](std::string_view line) {
    m_file.writeAt(0, line);
    m_file.truncate(line.size());
  };
  try {
    overwrite("error: " + inOneLine(reason) + " .\n");
  } catch (...) {
    try {
      overwrite(unfinishedLine); // needs no more room on the disk than the file has
    } catch (...) {
    }
  }
}

} // namespace LagomareQuery
