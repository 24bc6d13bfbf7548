#include "access/QuerySource.h"

namespace Lagomare {

QuerySource::~QuerySource() = default;

} // namespace Lagomare
