#pragma once

#include "tools/check/tables/Tables.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace LagomareTools {

/// What the check remembers of a node or a link: what its first row says. Texts are as people see them.
struct ElementRow {
  Kind kind;
  const char* table; ///< static
  std::size_t row;   ///< from 1
  std::string name;
};

struct NodeRow : ElementRow {
  std::optional<double> utmX; ///< m
  std::optional<double> utmY;
};

struct LinkRow : ElementRow {
  std::optional<std::uint32_t> upstream{};
  std::optional<std::uint32_t> downstream{};
  bool isPartner = false; ///< goes into the opposite link, which stays
};

/// Volumes of a reservoir, hm³.
struct Volumes {
  double maximum;
  double minimum;
  double initial;
};

/// The elements of a project by id; the ids of nodes and of links are separate.
struct Elements {
  std::map<std::uint32_t, NodeRow> nodes;
  std::map<std::uint32_t, LinkRow> links;
  std::map<std::uint32_t, Volumes> volumes; ///< of reservoirs
  bool areNodesKnown = true;                ///< all tables of nodes could be read
  bool areLinksKnown = true;

  /// The element that owns a row with this id in a table of these owners; null where there is none.
  [[nodiscard]] const ElementRow* find(std::uint32_t id, const std::vector<Kind>& owners) const;
};

} // namespace LagomareTools
