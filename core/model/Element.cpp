#include "model/Element.h"

#include <stdexcept>

Element::Element(const EnumElementType& kind)
    : kind_(std::make_shared<EnumElementType>(kind)), windows_{std::make_shared<Container<SerieType>>()} {}

Element::~Element() = default;

std::vector<std::shared_ptr<Serie>> Element::getVectorOfSeries(unsigned window) const {
  if (window >= windows_.size())
    throw std::out_of_range("Invalid window index");
  std::vector<std::shared_ptr<Serie>> series;
  for (const auto& entry : windows_[window]->all())
    series.push_back(entry.second);
  return series;
}
