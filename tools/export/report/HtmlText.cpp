#include "tools/export/report/HtmlText.h"

#include "tools/export/NumberText.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace LagomareTools {

namespace {

constexpr std::string_view groupSeparator = "\xE2\x80\xAF"; // U+202F
constexpr std::string_view ellipsis = "…";
constexpr std::size_t longestUngrouped = 4; // 1999 rather than 1 999

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; }

std::string grouped(std::string text) {
  if (text.find('e') != std::string::npos)
    return text;
  const std::size_t first = text.front() == '-' ? 1 : 0;
  std::size_t place = std::min(text.find('.'), text.size());
  if (place - first <= longestUngrouped)
    return text;
  while (place > first + 3)
    text.insert(place -= 3, groupSeparator);
  return text;
}

} // namespace

std::string htmlText(std::string_view text) {
  std::string html;
  for (const char c : plainText(text))
    switch (c) {
    case '&':
      html += "&amp;";
      break;
    case '<':
      html += "&lt;";
      break;
    case '>':
      html += "&gt;";
      break;
    case '"':
      html += "&quot;";
      break;
    case '\'':
      html += "&#39;";
      break;
    default:
      html += c;
    }
  return html;
}

std::string figureText(std::optional<double> value) {
  return value && std::isfinite(*value) ? grouped(std::string(NumberText(*value).view())) : "";
}

std::string roundedText(std::optional<double> value) {
  if (!value || !std::isfinite(*value))
    return "";
  // Whole digits are kept all; the rounding is done in decimal, so that the shortest text has no digits behind it.
  const double magnitude = std::fabs(*value);
  const int wholeDigits = magnitude < 1e-5 ? 1 : static_cast<int>(std::floor(std::log10(magnitude))) + 1;
  if (magnitude >= 1e15)
    return figureText(value);
  std::string text = fmt::format("{:.{}f}", *value, std::max(0, 4 - wholeDigits));
  if (text.find('.') != std::string::npos)
    text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.')
    text.pop_back();
  return grouped(text == "-0" ? "0" : text);
}

std::size_t lengthOf(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), continuesCharacter));
}

std::string shortened(const std::string& text, std::size_t length) {
  if (lengthOf(text) <= length)
    return text;
  std::size_t end = 0;
  for (std::size_t left = length; end < text.size(); ++end)
    if (!continuesCharacter(text[end]) && left-- == 1)
      break;
  return text.substr(0, end).append(ellipsis);
}

} // namespace LagomareTools
