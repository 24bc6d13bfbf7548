#pragma once

#include "telu_qt_export.h"

#include <string>
#include <vector>

class TELU_QT_EXPORT StringUtils {
public:
  /// The fields between the separators, in order: n separators part n + 1 fields, and two in a row enclose an
  /// empty one, so that an empty name keeps its column.
  [[nodiscard]] static std::vector<std::string> split(const std::string& text, const char& separator);
};
