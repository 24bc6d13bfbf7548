#include "tools/cli/ReadFile.h"

#include <fstream>
#include <sstream>

namespace LagomareCli {

std::string readFile(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

} // namespace LagomareCli
