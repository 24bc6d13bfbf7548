#pragma once

#include "bench/plain/PlainImport.h"
#include "model/ElementType.h"
#include "model/Scenario.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace LagomareBench {

/// A number that two scenarios share only where they hold the same elements with the same values, bit by bit.
class Digest {
public:
  [[nodiscard]] static std::uint64_t of(const Scenario& scenario);
  template <typename S>
  [[nodiscard]] static std::uint64_t of(const Plain::Scenario<S>& scenario) {
    Digest digest;
    for (const auto& [type, elements] : scenario.elements)
      for (const auto& [id, element] : elements)
        digest.addElement(type, id, element, scenario.months);
    return digest.state_;
  }

private:
  template <typename Integer>
  void add(Integer number) {
    state_ = (state_ ^ static_cast<std::uint64_t>(number)) * 0x9E3779B97F4A7C15U;
    state_ ^= state_ >> 29U;
  }
  void addNumber(double number);
  void addText(const std::string& text);
  void addValues(const std::vector<double>& values);
  void addElement(const std::shared_ptr<Element>& element, const Scenario& scenario);
  void addSettings(const Element& element, const Scenario& scenario);

  template <typename S>
  void addElement(ElementType type, unsigned id, const Plain::Element<S>& element, const Plain::Months& months) {
    add(id);
    addText(element.name);
    for (const auto& [kind, serie] : element.series) {
      add(kind);
      addValues(serie.getValues(months));
    }
    if (type == ElementType::NaturalLink) {
      add(element.upstream);
      add(element.downstream);
      return;
    }
    addValues({element.x, element.y});
    if (type == ElementType::Junction)
      return;
    add(element.priority);
    for (const auto& [priority, serie] : element.states) {
      add(priority);
      addValues(serie.getValues(months));
    }
    if (type != ElementType::Reservoir)
      return;
    add(element.isInSystem);
    addValues({element.volumes.begin(), element.volumes.end()});
    for (const auto& point : element.curve)
      addValues({point.begin(), point.end()});
  }

  std::uint64_t state_ = 1;
};

} // namespace LagomareBench
