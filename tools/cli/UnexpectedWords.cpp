#include "tools/cli/UnexpectedWords.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace LagomareTools {

namespace {

/// How many letters must be added, removed or replaced to make one text from the other.
std::size_t distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (from[i] == to[j] ? 0U : 1U);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

/// The known word that differs least; empty if none is near.
std::string nearest(const std::string& word, const std::vector<std::string>& known) {
  constexpr std::size_t farthest = 2;
  const std::string name = word.substr(0, word.find('='));
  std::string found;
  std::size_t least = farthest + 1;
  for (const std::string& candidate : known)
    if (const std::size_t letters = distance(name, candidate); letters < least) {
      found = candidate;
      least = letters;
    }
  return found;
}

bool isOption(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

std::string quoted(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words)
    text += (text.empty() ? "\"" : " \"") + word + '"';
  return text;
}

} // namespace

std::string unexpectedWords(const std::vector<std::string>& words, const std::vector<std::string>& known) {
  const std::string& first = words.front();
  const std::string text = (words.size() == 1 ? "unexpected word: " : "unexpected words: ") + quoted(words);
  if (const std::string meant = nearest(first, known); isOption(first) && !meant.empty())
    return text + "; did you mean " + meant + "?";
  if (isOption(first))
    return text + "; there is no such option; a path that begins with a dash goes behind --";
  return text + "; one project at a time; a path that holds blanks needs quotes";
}

std::string unknownCommand(const std::vector<std::string>& words, const std::vector<std::string>& known) {
  const std::string& first = words.front();
  if (isOption(first))
    return "unexpected words: " + quoted(words) + "; the command comes first, such as lagomare " + known.front();
  const std::string meant = nearest(first, known);
  return "there is no command \"" + first + "\"; did you mean: lagomare " +
         (meant.empty() ? known.front() + ' ' + first : meant) + "?";
}

} // namespace LagomareTools
