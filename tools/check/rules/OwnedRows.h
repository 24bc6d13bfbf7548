#pragma once

#include "tools/check/result/Findings.h"
#include "tools/check/result/Rule.h"
#include "tools/check/rules/Inspection.h"
#include "tools/check/rules/TableRows.h"
#include "tools/check/tables/Elements.h"
#include "tools/check/tables/Tables.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <unordered_map>

namespace LagomareTools {

/// The rows of a table whose first column names an element: sorts out the rows that the import does not ask for or
/// whose id it does not know, and gives the others to the rules of a layout.
class OwnedRows {
public:
  OwnedRows(Inspection& inspection, const LegacyTable& table);
  virtual ~OwnedRows() = default;
  OwnedRows(const OwnedRows&) = delete;
  OwnedRows& operator=(const OwnedRows&) = delete;

  void run();

protected:
  /// The rows that belong together: those of an element, in each hydrological state by themselves where `splitByState`.
  struct Slot {
    std::uint32_t id;
    const ElementRow* element;
    unsigned state;    ///< 0 where rows are not split by state
    std::size_t index; ///< of the slots, in the order in which they came
    std::size_t rows = 0;
    std::size_t firstRow = 0;
  };

  [[nodiscard]] virtual bool splitsByState() const { return false; }
  /// Whether the import asks for rows of a state; 0 is none. The code says why not.
  [[nodiscard]] virtual std::optional<Code> whyNotAsked(unsigned state) const;
  /// A row that the import does not ask for: neither the import nor an error looks at its id.
  virtual void reportUnasked(Code code);
  /// The current row, counted in the slot already.
  virtual void addRow(Slot& slot) = 0;
  /// Called for each element that the table is about once all rows are read, in order of id.
  virtual void finish(std::uint32_t id, const ElementRow& element) = 0;

  [[nodiscard]] const LegacyTable& table() const { return rows_.table(); }
  /// 0 where the project does not ask for states.
  [[nodiscard]] unsigned numOfStates() const { return inspection_.settings.numOfStates; }
  /// Of the current row.
  [[nodiscard]] unsigned state() const { return state_; }
  /// Makes the element with the id in the current row its owner, if there is one.
  void setOwnerIfKnown();
  /// Null where there is no row.
  [[nodiscard]] const Slot* find(std::uint32_t id, unsigned state) const;
  [[nodiscard]] std::size_t numOfSlots() const { return slots_.size(); }

  /// The import takes the current row, unless its link is dropped later.
  void take(const Slot& slot);
  template <typename MakeMessage>
  void leave(Code code, const Place& place, MakeMessage makeMessage, std::size_t part = 0) {
    rows_.add(code, place, makeMessage, part);
  }
  /// For an element without rows, and what follows from that.
  void reportAbsence(std::uint32_t id, const ElementRow& element, const std::string& consequence);

  Inspection& inspection_;
  TableRows rows_;

private:
  void locate();
  void reportUnknown(std::uint32_t id);
  [[nodiscard]] Slot& slotOf(std::uint32_t id, const ElementRow& element, unsigned state);

  std::size_t stateColumn_;
  std::string idText_; ///< of the row before, as the state
  std::string stateText_;
  unsigned state_ = 0;
  Slot* slot_ = nullptr; ///< of the row before; null where it had none
  std::deque<Slot> slots_;
  std::unordered_map<std::uint64_t, Slot*> slotsByKey_;
};

} // namespace LagomareTools
