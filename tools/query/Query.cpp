#include "tools/query/Query.h"

#include "tools/query/QueryError.h"
#include "tools/query/answer/RowWriter.h"
#include "tools/query/sqlite/PageCheck.h"
#include "tools/query/sqlite/StoredOrder.h"

namespace LagomareQuery {

namespace {

void runQuery(const Database& database, const std::string& sql, AnswerSink& sink) {
  const StoredOrderQuery query(database.connection.get(), sql);
  if (database.needsCheck)
    requireSoundTables(database.connection.get(), query.tables());
  const int columns = sqlite3_column_count(query.statement());
  RowWriter writer(sink);
  while (step(query.statement()))
    writer.writeRow(query.statement(), columns);
  writer.flush();
}

} // namespace

void writeRows(const Database& database, const std::string& sql, AnswerSink& sink) {
  try {
    runQuery(database, sql, sink);
  } catch (const QueryError&) {
    requireUnchanged(database); // if another program writes to the file, say so rather than speak of damage
    throw;
  }
  requireUnchanged(database);
}

} // namespace LagomareQuery
