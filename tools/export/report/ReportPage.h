#pragma once

#include <string_view>

namespace LagomareTools {

/// The report's page with its style and scripts, made at build time from page/. Where a part of the project belongs it
/// holds <!--part NAME-->.
[[nodiscard]] std::string_view reportPage();

} // namespace LagomareTools
