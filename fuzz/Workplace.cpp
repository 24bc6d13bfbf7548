#include "fuzz/Workplace.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace LagomareFuzz {

namespace fs = std::filesystem;

namespace {

class Directory {
public:
  Directory() {
    std::string name = fs::temp_directory_path() / "lagomare-fuzz-XXXXXX";
    if (mkdtemp(name.data()) == nullptr)
      throw std::runtime_error("cannot make a directory in " + fs::temp_directory_path().string());
    path_ = fs::canonical(name);
  }
  ~Directory() { fs::remove_all(path_); }
  Directory(const Directory&) = delete;
  Directory& operator=(const Directory&) = delete;

  [[nodiscard]] const fs::path& path() const { return path_; }

private:
  fs::path path_;
};

} // namespace

const fs::path& workplace() {
  static const Directory directory;
  return directory.path();
}

std::string contentOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in)
    throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void writeFile(const fs::path& file, const std::string& content) {
  std::ofstream out(file, std::ios::binary);
  if (!out.write(content.data(), static_cast<std::streamsize>(content.size())).flush())
    throw std::runtime_error("cannot write " + file.string());
}

} // namespace LagomareFuzz
