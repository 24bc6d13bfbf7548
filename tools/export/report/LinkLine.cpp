#include "tools/export/report/LinkLine.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace LagomareTools {

namespace {

constexpr double bow = 32.0;     ///< from a straight line to the next one's bend
constexpr double nothing = 0.05; ///< below what is written

} // namespace

LinkLine::LinkLine(MapPoint begin, MapPoint end, int side)
    : begin_(begin), bend_{(begin.x + end.x) / 2, (begin.y + end.y) / 2}, end_(end), isStraight_(side == 0) {
  const double step = side * bow / std::max(length(), nothing);
  bend_.x -= step * (end.y - begin.y);
  bend_.y += step * (end.x - begin.x);
}

double LinkLine::length() const { return std::hypot(end_.x - begin_.x, end_.y - begin_.y); }

double LinkLine::angle() const { return std::atan2(end_.y - begin_.y, end_.x - begin_.x) * 180.0 / std::acos(-1.0); }

MapPoint LinkLine::at(double part) const {
  const double rest = 1 - part;
  const auto mix = [&](double begin, double bend, double end) {
    return rest * rest * begin + 2 * rest * part * bend + part * part * end;
  };
  return {mix(begin_.x, bend_.x, end_.x), mix(begin_.y, bend_.y, end_.y)};
}

std::string LinkLine::path() const {
  const std::string start = fmt::format("M{:.1f} {:.1f}", begin_.x, begin_.y);
  if (length() < nothing)
    return start + "c16-24-16-24 0 0";
  return start + (isStraight_ ? "L" : fmt::format("Q{:.1f} {:.1f} ", bend_.x, bend_.y)) +
         fmt::format("{:.1f} {:.1f}", end_.x, end_.y);
}

int LinkLine::sideOf(unsigned number) {
  const int step = static_cast<int>((number + 1) / 2);
  return number % 2 == 0 ? -step : step;
}

} // namespace LagomareTools
