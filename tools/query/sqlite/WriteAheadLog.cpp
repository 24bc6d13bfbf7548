#include "tools/query/sqlite/WriteAheadLog.h"

#include "tools/query/QueryError.h"
#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace LagomareQuery {

namespace {

constexpr std::size_t headerSize = 32;
constexpr std::size_t frameHeaderSize = 24;

std::uint32_t bigEndian(const std::uint8_t* bytes) {
  return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

std::uint32_t littleEndian(const std::uint8_t* bytes) {
  return std::uint32_t{bytes[3]} << 24 | std::uint32_t{bytes[2]} << 16 | std::uint32_t{bytes[1]} << 8 | bytes[0];
}

/// The running checksum of the header and the frames.
class Checksum {
public:
  explicit Checksum(bool isBigEndian) : number_(isBigEndian ? bigEndian : littleEndian) {}

  /// `size` must be a multiple of 8.
  void add(const std::uint8_t* bytes, std::size_t size) {
    for (std::size_t i = 0; i < size; i += 8) {
      first_ += number_(bytes + i) + second_;
      second_ += number_(bytes + i + 4) + first_;
    }
  }
  [[nodiscard]] bool equals(const std::uint8_t* stored) const {
    return bigEndian(stored) == first_ && bigEndian(stored + 4) == second_;
  }

private:
  std::uint32_t (*number_)(const std::uint8_t*);
  std::uint32_t first_ = 0;
  std::uint32_t second_ = 0;
};

[[noreturn]] void throwIgnored(const std::string& what) {
  throw QueryError("the database's -wal file is damaged or cut off (" + what +
                   "), and rows in it would be missing; open and close the database once in the program that wrote it, "
                   "or restore both files from a backup");
}

class Log {
public:
  explicit Log(const std::filesystem::path& file) : stream_(file, std::ios::binary) {
    if (!read(header_.data(), header_.size()))
      throwIgnored("it ends within its header");
    const std::uint32_t magic = bigEndian(header_.data());
    const std::uint32_t pageSize = bigEndian(&header_[8]);
    checksum_ = Checksum((magic & 1) != 0);
    checksum_.add(header_.data(), 24);
    if ((magic | 1) != 0x377F0683 || !checksum_.equals(&header_[24]) || pageSize < 512 || pageSize > 65536)
      throwIgnored("its header is not valid");
    frame_.resize(frameHeaderSize + pageSize);
  }

  /// Reads the next frame; returns false after the last complete one.
  [[nodiscard]] bool nextFrame() { return read(frame_.data(), frame_.size()); }

  /// Whether the frame has at least one of the header's salts: a damaged salt does not make it an old frame.
  [[nodiscard]] bool isCurrent() const {
    return bigEndian(&frame_[8]) == bigEndian(&header_[16]) || bigEndian(&frame_[12]) == bigEndian(&header_[20]);
  }
  /// Whether the frame has both salts and the right checksum. Must be called for each frame in turn.
  [[nodiscard]] bool isValid() {
    checksum_.add(frame_.data(), 8);
    checksum_.add(&frame_[frameHeaderSize], frame_.size() - frameHeaderSize);
    return std::equal(&frame_[8], &frame_[16], &header_[16]) && checksum_.equals(&frame_[16]);
  }
  [[nodiscard]] bool endsTransaction() const { return bigEndian(&frame_[4]) != 0; }

private:
  bool read(std::uint8_t* to, std::size_t size) {
    return static_cast<bool>(stream_.read(reinterpret_cast<char*>(to), static_cast<std::streamsize>(size)));
  }

  std::ifstream stream_;
  std::array<std::uint8_t, headerSize> header_{};
  std::vector<std::uint8_t> frame_;
  Checksum checksum_{false};
};

} // namespace

void requireWholeLog(const std::filesystem::path& log) {
  Log frames(log);
  bool hasTransaction = false;
  bool hasOldFrames = false;
  for (std::uint64_t number = 1; frames.nextFrame(); ++number) {
    hasOldFrames = hasOldFrames || !frames.isCurrent();
    if (frames.isCurrent() && (hasOldFrames || !frames.isValid()))
      throwIgnored("frame " + std::to_string(number) + " is not valid");
    if (!hasOldFrames && frames.endsTransaction())
      hasTransaction = true;
  }
  if (!hasTransaction)
    throwIgnored("it has no complete transaction");
}

} // namespace LagomareQuery
