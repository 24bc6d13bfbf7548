#pragma once

#include "tools/check/result/Rule.h"
#include "tools/project/Fault.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace LagomareTools {

/// Where a fault lies. Texts are borrowed for the call and stand as the query executable wrote them.
struct Place {
  std::string_view table{}; ///< a static text, as the column
  std::optional<std::size_t> row{};
  std::optional<std::uint32_t> id{};
  std::string_view element{};
  std::string_view column{};
  std::optional<std::string_view> value{};
  std::size_t rows = 1; ///< how many there are, `row` being the first
};

/// The faults found so far. Rows with the same code, table, column and id become one fault; conversions also tell
/// values apart. Of one code and table only so many faults are kept, the further rows are counted in a last one: a
/// table of millions of bad rows must not fill the memory.
class Findings {
public:
  static constexpr std::size_t mostOfACode = 10000;

  /// makeMessage() returns the fault's message, without a full stop at its end; it is called only for the first row of
  /// a fault. `part` tells faults apart that else are the same.
  template <typename MakeMessage>
  void add(Code code, const Place& place, MakeMessage makeMessage, std::size_t part = 0) {
    if (Fault* const fault = faultOf(code, place, part))
      fault->message = makeMessage();
  }

  /// The faults in the order of their codes, those of a code in the order in which they were found.
  [[nodiscard]] std::vector<Fault> sorted() const;

private:
  struct Key {
    Code code;
    std::string_view table; ///< of a static text
    std::string_view column;
    std::optional<std::uint32_t> id;
    std::size_t part;

    bool operator==(const Key& other) const;
  };
  struct Hash {
    std::size_t operator()(const Key& key) const;
  };

  /// A new fault, its message still to be written; null where the row was counted in an old one.
  [[nodiscard]] Fault* faultOf(Code code, const Place& place, std::size_t part);

  std::vector<Fault> faults_;
  std::vector<Code> codes_;                             ///< of each fault
  std::unordered_map<Key, std::size_t, Hash> places_;   ///< indexes of faults_
  std::unordered_map<Key, std::size_t, Hash> perTable_; ///< how many faults of a code and table there are
};

} // namespace LagomareTools
