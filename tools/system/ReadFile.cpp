#include "tools/system/ReadFile.h"

#include <fstream>
#include <sstream>

namespace LagomareTools {

std::string readFile(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

} // namespace LagomareTools
