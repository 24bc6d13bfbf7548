#include "tools/project/UtmZone.h"

#include <charconv>
#include <system_error>

namespace LagomareTools {

std::string textOf(const UtmZone& zone) {
  return std::to_string(zone.number) + (zone.hemisphere == Hemisphere::North ? 'N' : 'S');
}

std::optional<UtmZone> parseZone(std::string_view text) {
  constexpr std::string_view southern = "CDEFGHJKLMScdefghjklms";
  constexpr std::string_view northern = "NPQRTUVWXnpqrtuvwx";
  UtmZone zone{0, Hemisphere::South};
  const char* const end = text.data() + text.size();
  const auto number = std::from_chars(text.data(), end, zone.number);
  if (number.ec != std::errc() || zone.number < 1 || zone.number > 60 || end - number.ptr != 1)
    return std::nullopt;
  if (northern.find(*number.ptr) != std::string_view::npos)
    zone.hemisphere = Hemisphere::North;
  else if (southern.find(*number.ptr) == std::string_view::npos)
    return std::nullopt;
  return zone;
}

} // namespace LagomareTools
