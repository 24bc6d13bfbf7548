#include "tools/check/rules/OwnedRows.h"

#include "access/Numbers.h"
#include "tools/check/rules/Conversions.h"

#include <charconv>
#include <string_view>
#include <system_error>

namespace LagomareTools {

namespace {

/// The database compares the state with 1, 2 and so on; whatever else stands there is none of them.
unsigned stateOf(std::string_view text) {
  unsigned state = 0;
  const char* const end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, state);
  return error == std::errc() && last == end && text.front() != '0' ? state : 0;
}

std::uint64_t keyOf(std::uint32_t id, unsigned state) { return std::uint64_t{id} << 32U | state; }

} // namespace

OwnedRows::OwnedRows(Inspection& inspection, const LegacyTable& table)
    : inspection_(inspection), rows_(inspection, table), stateColumn_(table.columnOf(Type::state)) {}

void OwnedRows::run() {
  while (rows_.next()) {
    const std::string_view id = rows_.at(idColumn).value_or("");
    const std::string_view state = table().hasStates() ? rows_.at(stateColumn_).value_or("") : "";
    if (slot_ == nullptr || id != idText_ || state != stateText_)
      locate();
    if (slot_ == nullptr)
      continue;
    rows_.setOwner(slot_->id, slot_->element->name);
    ++slot_->rows;
    addRow(*slot_);
  }
  if (!rows_.isRead())
    return;
  for (const auto& [id, node] : inspection_.elements.nodes)
    if (table().isOwnedBy(node.kind))
      finish(id, node);
  for (const auto& [id, link] : inspection_.elements.links)
    if (table().isOwnedBy(Kind::link) && !link.isPartner)
      finish(id, link);
}

/// Finds the slot of the current row.
void OwnedRows::locate() {
  slot_ = nullptr;
  idText_ = rows_.at(idColumn).value_or("");
  if (table().hasStates()) {
    stateText_ = rows_.at(stateColumn_).value_or("");
    state_ = stateOf(stateText_);
    if (const auto code = whyNotAsked(state_))
      return reportUnasked(*code);
  }
  const auto id = readId(rows_);
  if (!id)
    return;
  if (const ElementRow* const element = inspection_.elements.find(*id, table().owners))
    slot_ = &slotOf(*id, *element, splitsByState() ? state_ : 0U);
  else
    reportUnknown(*id);
}

std::optional<Code> OwnedRows::whyNotAsked(unsigned state) const {
  if (state == 1 || (state > 1 && state <= numOfStates()))
    return std::nullopt;
  return Code::stateNotRead;
}

void OwnedRows::setOwnerIfKnown() {
  if (Lagomare::lengthOfUnsigned(idText_) == 0)
    return;
  const std::uint32_t id = Lagomare::toUnsigned(idText_);
  const ElementRow* const element = inspection_.elements.find(id, table().owners);
  rows_.setOwner(id, element == nullptr ? "" : std::string_view(element->name));
}

void OwnedRows::reportUnasked(Code code) {
  setOwnerIfKnown();
  const auto message = [&] {
    return quoted(stateText_) + (numOfStates() == 0 ? " is not 1, and the project does not ask for states"
                                                    : " is none of the states 1 to " + std::to_string(numOfStates()));
  };
  leave(code, rows_.place(stateColumn_), message, std::hash<std::string>()(stateText_));
}

/// Reservoirs are in the scenario before the demands; with states the import then looks for the demand's settings of
/// each id that the scenario holds.
void OwnedRows::reportUnknown(std::uint32_t id) {
  const auto node = inspection_.elements.nodes.find(id);
  const bool isNode = node != inspection_.elements.nodes.end();
  const bool isReservoir = isNode && node->second.kind == Kind::reservoir;
  const bool areOwnersKnown =
      table().isOwnedBy(Kind::link) ? inspection_.elements.areLinksKnown : inspection_.elements.areNodesKnown;
  if (isNode)
    rows_.setOwner(id, node->second.name);
  if (isReservoir && table().isOwnedBy(Kind::demand) && numOfStates() > 0)
    rows_.add(Code::idOfOtherKind, rows_.place(idColumn), [] { return "it is the id of a reservoir"; });
  else if (areOwnersKnown)
    leave(Code::unknownId, rows_.place(idColumn), [&] {
      if (isNode && !table().isOwnedBy(Kind::link))
        return std::string("it is the id of a ") + nameOf(node->second.kind);
      return std::string("there is no ") + (table().owners.size() > 1 ? "node" : nameOf(table().owners.front())) +
             " with this id";
    });
}

OwnedRows::Slot& OwnedRows::slotOf(std::uint32_t id, const ElementRow& element, unsigned state) {
  Slot*& slot = slotsByKey_[keyOf(id, state)];
  if (slot == nullptr)
    slot = &slots_.emplace_back(Slot{id, &element, state, slots_.size(), 0, rows_.number()});
  return *slot;
}

const OwnedRows::Slot* OwnedRows::find(std::uint32_t id, unsigned state) const {
  const auto found = slotsByKey_.find(keyOf(id, state));
  return found == slotsByKey_.end() ? nullptr : found->second;
}

void OwnedRows::take(const Slot& slot) {
  const auto* const link = table().isOwnedBy(Kind::link) ? static_cast<const LinkRow*>(slot.element) : nullptr;
  if (link == nullptr || !link->isPartner)
    return rows_.take();
  std::size_t column = 0;
  while (table().columns[column].type != Type::number)
    ++column;
  leave(Code::twoWayPartner, rows_.place(column), [this, column] {
    return quoted(*rows_.at(column)) + " stays behind: the link comes in as the other direction of another one";
  });
}

void OwnedRows::reportAbsence(std::uint32_t id, const ElementRow& element, const std::string& consequence) {
  Place place{table().name};
  place.id = id;
  place.element = element.name;
  rows_.add(Code::elementWithoutRows, place, [&consequence] { return consequence; });
}

} // namespace LagomareTools
