#include "tools/check/tables/Elements.h"

#include <algorithm>

namespace LagomareTools {

namespace {

template <typename Rows>
const ElementRow* findIn(const Rows& rows, std::uint32_t id) {
  const auto found = rows.find(id);
  return found == rows.end() ? nullptr : &found->second;
}

} // namespace

const ElementRow* Elements::find(std::uint32_t id, const std::vector<Kind>& owners) const {
  const ElementRow* const element = owners.front() == Kind::link ? findIn(links, id) : findIn(nodes, id);
  const bool isOwner = element != nullptr && std::find(owners.begin(), owners.end(), element->kind) != owners.end();
  return isOwner ? element : nullptr;
}

} // namespace LagomareTools
