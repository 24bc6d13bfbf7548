#pragma once

#include <filesystem>

namespace LagomareQuery {

/// Throws QueryError where SQLite would ignore a part of a database's -wal file that may hold rows.
///
/// Such a log is a header and frames, each a page of the database. Header and frames bear the two salts of the time
/// when the log was last begun anew, and checksums, of which each continues the one before. A frame may end a
/// transaction. SQLite reads the log up to the end of the last transaction before the first frame that does not fit,
/// and ignores the rest. That is right for what a crash leaves, and for frames of an earlier time of the log; so a log
/// is taken where it holds, one behind the other,
///
/// 1. a header that fits,
/// 2. at least one whole transaction,
/// 3. frames that fit, of a transaction that has no end,
/// 4. frames both of whose salts are others,
/// 5. a part of a frame, at the file's end,
///
/// of which 3 to 5 may be missing. Anything else is an error: a header that does not fit, a log that was cut in its
/// first transaction, a frame with one of the salts that does not fit.
void requireWholeLog(const std::filesystem::path& log);

} // namespace LagomareQuery
