#pragma once

#include "model/Element.h"

#include <map>
#include <memory>

namespace Lagomare {

/// The elements that a loader fills, by database id; shared with whoever made them.
using ElementMap = std::map<unsigned, std::shared_ptr<Element>>;

} // namespace Lagomare
