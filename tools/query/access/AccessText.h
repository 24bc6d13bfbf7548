#pragma once

#include "tools/query/access/AccessBytes.h"

namespace LagomareQuery {

/// Appends text stored by Access 2000 and later, turned into UTF-8: UTF-16, little-endian; or, marked by FF FE, runs of
/// one byte per character and runs of UTF-16 that take turns at each zero byte. Half a surrogate pair becomes U+FFFD.
void appendUtf16(AccessBytes stored, std::string& text);

/// Appends text stored by Access 97, turned into UTF-8: one byte per character, in Windows code page 1252. The five
/// bytes that it leaves undefined become U+FFFD.
void appendWindows1252(AccessBytes stored, std::string& text);

} // namespace LagomareQuery
