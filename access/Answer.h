#pragma once

#include "access/LineReader.h"
#include "access/QueryResult.h"
#include "access/ValueResult.h"
#include "lagomare_export.h"

#include <istream>

namespace Lagomare {

// The answer of a query executable: lines as LineReader reads them, one per row, fields parted by single blanks, the
// last field of each line no data. Fields are parted as StringUtils::split of the stand-alone core does it, but in
// place: two blanks in a row enclose an empty field. Both functions read the stream to where it ends or fails; both
// throw InvalidField or FieldOutOfRange ("stoul") for a line whose first field is no id, and InvalidField for a line
// of a single field, each with the number of the row set. The block size is LineReader's.

/// The rows by id.
[[nodiscard]] LAGOMARE_EXPORT QueryResult parseRows(std::istream& answer,
                                                    std::size_t blockSize = LineReader::usualBlockSize);

/// The values by id: of each row the field behind the id.
[[nodiscard]] LAGOMARE_EXPORT ValueResult parseValues(std::istream& answer,
                                                      std::size_t blockSize = LineReader::usualBlockSize);

} // namespace Lagomare
