#include "bench/Digest.h"

#include "model/Calendar.h"
#include "model/Date.h"
#include "model/Element.h"
#include "model/Interval.h"
#include "model/Link.h"
#include "model/PriorityReservoirSettings.h"
#include "model/PrioritySettings.h"
#include "model/Reservoir.h"
#include "model/Serie.h"

#include <cstring>

namespace LagomareBench {

namespace {

std::vector<double> valuesOf(const Serie& serie) {
  std::vector<double> values;
  const Interval& interval = serie.getInterval();
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    values.push_back(serie.getValue(date));
  return values;
}

} // namespace

std::uint64_t Digest::of(const Scenario& scenario) {
  Digest digest;
  for (const auto& element : scenario.getElements())
    digest.addElement(element, scenario);
  return digest.state_;
}

void Digest::addNumber(double number) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  add(bits);
}

void Digest::addText(const std::string& text) {
  for (const char letter : text)
    add(letter);
}

void Digest::addValues(const std::vector<double>& values) {
  for (const double value : values)
    addNumber(value);
}

void Digest::addElement(const std::shared_ptr<Element>& element, const Scenario& scenario) {
  add(element->bdId);
  addText(element->getName());
  for (const auto& [kind, serie] : element->getSeriesInput()->all()) {
    add(kind);
    addValues(valuesOf(*serie));
  }
  if (const auto link = std::dynamic_pointer_cast<Link>(element)) {
    add(link->upstream.lock()->bdId);
    add(link->downstream.lock()->bdId);
  } else if (const auto node = std::dynamic_pointer_cast<Node>(element)) {
    addValues({node->getX(), node->getY()});
    addSettings(*node, scenario);
  }
}

void Digest::addSettings(const Element& element, const Scenario& scenario) {
  const auto settings =
      std::dynamic_pointer_cast<PrioritySettings>(scenario.getSettingsManager().getSettings(element.bdId));
  if (!settings)
    return;
  add(settings->priority);
  for (const auto& [priority, serie] : settings->getPrioritySeries()) {
    add(priority);
    addValues(valuesOf(*serie));
  }
  const auto* const reservoir = dynamic_cast<const Reservoir*>(&element);
  if (reservoir == nullptr)
    return;
  const auto& info = reservoir->getReservoirInfo();
  add(std::dynamic_pointer_cast<PriorityReservoirSettings>(settings)->getIsHydrologicalStateSystem());
  addValues({info.initialVolume, info.minimumVolume, info.maximumVolume});
  for (const auto& point : info.areaVolumeCurve)
    addValues(point);
}

} // namespace LagomareBench
