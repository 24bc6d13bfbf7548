#pragma once

#include <filesystem>

namespace LagomareQuery {

/// Throws QueryError if SQLite would ignore a part of a database's -wal file that may hold rows.
///
/// A -wal file consists of a header and frames. A frame holds one page of the database, and may end a transaction. The
/// header has two random numbers, the salts, which are repeated in each frame and change whenever the file is written
/// from its beginning again. The header and each frame have a checksum over everything before it. SQLite reads up to
/// the first frame that is not valid, and uses what was read up to the end of the last complete transaction. The rest
/// is ignored. This is right after a crash, and for old frames that have not been overwritten yet. So the file must
/// consist of these parts, in this order:
///
/// 1. a valid header;
/// 2. valid frames of at least one complete transaction;
/// 3. optionally, valid frames of a transaction that is not complete;
/// 4. optionally, old frames: both salts differ from those of the header;
/// 5. optionally, a part of a frame at the end of the file.
///
/// Anything else is an error, such as a file that ends within its first transaction, or a frame that is not valid but
/// has one of the salts.
void requireWholeLog(const std::filesystem::path& log);

} // namespace LagomareQuery
