#include "tools/check/result/Findings.h"

#include "tools/system/Text.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace LagomareTools {

bool Findings::Key::operator==(const Key& other) const {
  return code == other.code && id == other.id && part == other.part && table == other.table && column == other.column;
}

std::size_t Findings::Hash::operator()(const Key& key) const {
  std::size_t hash = static_cast<std::size_t>(key.code);
  const auto mix = [&hash](std::size_t value) { hash = hash * 1000003U ^ value; };
  mix(std::hash<std::string_view>()(key.table));
  mix(std::hash<std::string_view>()(key.column));
  mix(key.id.value_or(0));
  mix(key.part);
  return hash;
}

Fault* Findings::faultOf(Code code, const Place& place, std::size_t part) {
  const Key key{code, place.table, place.column, place.id, part};
  if (const auto known = places_.find(key); known != places_.end()) {
    faults_[known->second].rows += place.rows;
    return nullptr;
  }
  std::size_t& count = perTable_[{code, place.table, {}, {}, 0}];
  if (count > mostOfACode) {
    faults_[places_.at({code, place.table, {}, {}, mostOfACode})].rows += place.rows;
    return nullptr;
  }
  const Rule& rule = ruleOf(code);
  Fault& fault = faults_.emplace_back();
  codes_.push_back(code);
  fault.code = rule.slug;
  fault.severity = rule.severity;
  fault.table = place.table;
  fault.row = place.row;
  fault.rows = place.rows;
  fault.remedy = rule.remedy;
  const bool isLast = ++count > mostOfACode;
  places_.emplace(isLast ? Key{code, place.table, {}, {}, mostOfACode} : key, faults_.size() - 1);
  if (isLast) {
    fault.message = "more of the same, which is counted here but not listed one by one";
    return nullptr;
  }
  fault.id = place.id;
  fault.element = plainText(place.element);
  fault.column = place.column;
  if (place.value)
    fault.value = excerpt(plainText(*place.value));
  return &fault;
}

std::vector<Fault> Findings::sorted() const {
  std::vector<std::size_t> order(faults_.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) { return codes_[a] < codes_[b]; });
  std::vector<Fault> sorted;
  sorted.reserve(order.size());
  for (const std::size_t at : order)
    sorted.push_back(faults_[at]);
  return sorted;
}

} // namespace LagomareTools
