#include "tools/export/JsonWriter.h"

#include "tools/export/NumberText.h"
#include "tools/system/Text.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <string>

namespace LagomareTools {

namespace {

std::string quoted(std::string_view text) { return nlohmann::json(plainText(text)).dump(); }

} // namespace

void JsonWriter::separate() {
  if (needsComma_)
    out_.write(",");
  if (breaksLine_)
    out_.write("\n");
  breaksLine_ = false;
}

void JsonWriter::piece(std::string_view json) {
  separate();
  out_.write(json);
  needsComma_ = true;
}

void JsonWriter::open(char bracket) {
  piece(std::string_view(&bracket, 1));
  needsComma_ = false;
}

void JsonWriter::close(char bracket) {
  needsComma_ = false;
  piece(std::string_view(&bracket, 1));
}

void JsonWriter::key(std::string_view name) {
  piece(quoted(name));
  out_.write(":");
  needsComma_ = false;
}

void JsonWriter::text(std::string_view text) { piece(quoted(text)); }

void JsonWriter::number(std::optional<double> value) {
  if (value && std::isfinite(*value))
    piece(NumberText(*value).view());
  else
    null();
}

void JsonWriter::real(std::optional<double> value) {
  if (!value || !std::isfinite(*value))
    return null();
  std::string text(NumberText(*value).view());
  if (text.find_first_of(".e") == std::string::npos)
    text += ".0";
  piece(text);
}

void JsonWriter::integer(std::optional<std::int64_t> value) {
  if (value)
    piece(std::to_string(*value));
  else
    null();
}

} // namespace LagomareTools
