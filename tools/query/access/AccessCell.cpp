#include "tools/query/access/AccessCell.h"

#include "tools/query/access/AccessLongValue.h"
#include "tools/query/access/AccessNumber.h"
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace LagomareQuery {

namespace {

template <typename To, typename From>
To sameBits(From from) {
  static_assert(sizeof(To) == sizeof(From));
  To to;
  std::memcpy(&to, &from, sizeof to);
  return to;
}

void giveText(sqlite3_context* context, const std::string& text) {
  sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void giveStoredText(sqlite3_context* context, const AccessFile& file, AccessBytes stored) {
  std::string text;
  file.appendText(stored, text);
  giveText(context, text);
}

void giveBytes(sqlite3_context* context, AccessBytes bytes) {
  static const std::uint8_t none = 0; // a null pointer would mean NULL
  sqlite3_result_blob64(context, bytes.size() == 0 ? &none : bytes.data(), bytes.size(), SQLITE_TRANSIENT);
}

void giveLongValue(sqlite3_context* context, const AccessFile& file, const AccessColumn& column, AccessBytes cell) {
  const std::vector<std::uint8_t> value = readLongValue(file, cell);
  const AccessBytes bytes(value.data(), value.size());
  if (column.type == AccessType::memo)
    giveStoredText(context, file, bytes);
  else
    giveBytes(context, bytes);
}

} // namespace

void giveCell(sqlite3_context* context, const AccessFile& file, const AccessColumn& column,
              const AccessRecord& record) {
  if (column.type == AccessType::truth)
    return sqlite3_result_int(context, record.isNull(column) ? 0 : 1);
  if (record.isNull(column))
    return sqlite3_result_null(context);
  const AccessBytes cell = record.cell(column);
  if (column.calculated)
    return sqlite3_result_error(context,
                                ("column " + column.name + " is calculated by Access and cannot be read").c_str(), -1);
  switch (column.type) {
  case AccessType::truth:
    break; // is stored in the null mask, see above
  case AccessType::byte:
    return sqlite3_result_int(context, cell.u8(0));
  case AccessType::integer16:
    return sqlite3_result_int(context, sameBits<std::int16_t>(cell.u16(0)));
  case AccessType::integer32:
    return sqlite3_result_int(context, sameBits<std::int32_t>(cell.u32(0)));
  case AccessType::integer64:
    return sqlite3_result_int64(context, sameBits<std::int64_t>(cell.u64(0)));
  case AccessType::single:
    return sqlite3_result_double(context, doubleOfSingle(sameBits<float>(cell.u32(0))));
  case AccessType::real:
    return sqlite3_result_double(context, sameBits<double>(cell.u64(0)));
  case AccessType::currency:
    return sqlite3_result_double(context, doubleOfCurrency(sameBits<std::int64_t>(cell.u64(0))));
  case AccessType::decimal:
    return sqlite3_result_double(context, doubleOfDecimal(cell, column.scale));
  case AccessType::dateTime:
    return giveText(context, isoOfDateTime(sameBits<double>(cell.u64(0))));
  case AccessType::guid:
    return giveText(context, textOfGuid(cell));
  case AccessType::text:
    return giveStoredText(context, file, cell);
  case AccessType::binary:
    return giveBytes(context, cell);
  case AccessType::memo:
  case AccessType::ole:
    return giveLongValue(context, file, column, cell);
  }
  sqlite3_result_error(context, ("column " + column.name + " is of a type that cannot be read").c_str(), -1);
}

const char* sqlType(AccessType type) {
  switch (type) {
  case AccessType::truth:
  case AccessType::byte:
  case AccessType::integer16:
  case AccessType::integer32:
  case AccessType::integer64:
    return "INTEGER";
  case AccessType::single:
  case AccessType::real:
  case AccessType::currency:
  case AccessType::decimal:
    return "REAL";
  case AccessType::text:
  case AccessType::memo:
  case AccessType::dateTime:
  case AccessType::guid:
    return "TEXT";
  default:
    return "BLOB";
  }
}

} // namespace LagomareQuery
