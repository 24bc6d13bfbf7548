#include "tools/cli/Failure.h"

#include <system_error>

namespace LagomareCli {

std::string systemText(int error) { return std::generic_category().message(error); }

} // namespace LagomareCli
