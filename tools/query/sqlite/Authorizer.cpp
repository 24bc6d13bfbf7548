#include "tools/query/sqlite/Authorizer.h"

#include <utility>

namespace LagomareQuery {

namespace {

std::string textOrEmpty(const char* text) { return text == nullptr ? "" : text; }

bool sameName(const std::string& left, const std::string& right) {
  return sqlite3_stricmp(left.c_str(), right.c_str()) == 0;
}

} // namespace

Authorizer::Authorizer(sqlite3* connection, TableAccess access) : connection_(connection), access_(access) {
  sqlite3_set_authorizer(connection_, decide, this);
}

Authorizer::~Authorizer() { sqlite3_set_authorizer(connection_, nullptr, nullptr); }

int Authorizer::decide(void* self, int action, const char* first, const char* second, const char* schema,
                       const char* view) {
  auto& authorizer = *static_cast<Authorizer*>(self);
  std::string refusal = action == SQLITE_READ ? authorizer.refusalOfReading(textOrEmpty(first), textOrEmpty(second),
                                                                            textOrEmpty(schema), textOrEmpty(view))
                                              : Authorizer::refusalOf(action, textOrEmpty(first), textOrEmpty(second));
  if (action == SQLITE_READ && textOrEmpty(schema) == "main")
    authorizer.tables_.insert(textOrEmpty(first));
  if (action == SQLITE_READ && textOrEmpty(schema) == "temp" && textOrEmpty(second) == trueRowid)
    authorizer.readsRowidOfView_ = true;
  if (refusal.empty())
    return SQLITE_OK;
  authorizer.refusal_ = std::move(refusal);
  return SQLITE_DENY;
}

std::string Authorizer::refusalOf(int action, const std::string& table, const std::string& function) {
  // SQLite does this itself when it declares a table of an Access file. It refuses such a statement from anybody else.
  const bool declaresTable = action == SQLITE_UPDATE && table == "sqlite_master";
  if (action == SQLITE_SELECT || action == SQLITE_RECURSIVE || declaresTable)
    return {};
  if (action != SQLITE_FUNCTION)
    return "only one statement that selects is answered here: nothing that writes, attaches or changes settings";
  return sameName(function, "load_extension") ? "the function load_extension is not allowed here" : "";
}

std::string Authorizer::refusalOfReading(const std::string& table, const std::string& column, const std::string& schema,
                                         const std::string& view) const {
  // The table must be read by the view with its name.
  const bool shadowed = access_ == TableAccess::shadowsOnly && schema == "main" && table.rfind("sqlite_", 0) != 0;
  if (!shadowed || column.empty() || sameName(view, table))
    return {};
  return "write the table " + table + " without 'main.' before it, so that its rows come in stored order";
}

} // namespace LagomareQuery
