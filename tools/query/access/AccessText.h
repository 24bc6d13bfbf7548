#pragma once

#include "tools/query/access/AccessBytes.h"

#include <string>

namespace LagomareQuery {

/// Appends a text of Access 2000 and later, converted to UTF-8. It is stored in UTF-16, little-endian, or compressed:
/// the bytes FF FE, then one byte per character, then after a zero byte UTF-16, and so on, changing at each zero byte.
/// Half a surrogate pair becomes U+FFFD.
void appendUtf16(AccessBytes stored, std::string& text);

/// Appends a text of Access 97, converted from Windows code page 1252 to UTF-8. The five bytes that have no meaning in
/// that code page become U+FFFD.
void appendWindows1252(AccessBytes stored, std::string& text);

} // namespace LagomareQuery
