#pragma once

#include <sys/types.h>

namespace LagomareTools::Descendants {

// Where the system offers it (Linux), processes whose parent has ended become children of this one, so that all that a
// child has started can be found and ended. Children that this process had before, or that are adopt()ed, are left
// alone.

/// Call it before a child is started.
void watch();
/// A child of this process that is to live on.
void adopt(pid_t child);
/// The child has been waited for.
void forget(pid_t child);
/// Ends all other children, and theirs, and waits for their ends.
void end() noexcept;

} // namespace LagomareTools::Descendants
