#pragma once

#include <cstdint>
#include <string>
#include <utility>

/// A value of one family of the vocabulary: the id that is compared and stored, and the Portuguese name that
/// people see (UTF-8). T only tells the families apart. Each enumerator is a class of its own that derives
/// from its family's Enum and adds nothing, so values may be copied as Enum<T>.
template <typename T>
class Enum {
public:
  Enum(std::int32_t enumId, std::string displayName) : id(enumId), name(std::move(displayName)) {}

  std::int32_t id;
  std::string name;
};
