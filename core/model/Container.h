#pragma once

#include "model/Serie.h"

#include <map>
#include <memory>
#include <utility>

/// The series of one element, by kind. It shares them with whoever looks them up.
template <typename T>
class Container {
public:
  virtual ~Container() = default;

  /// The series of a kind, or an empty pointer.
  [[nodiscard]] std::shared_ptr<Serie> find(T type) const {
    const auto found = series_.find(type);
    return found == series_.end() ? nullptr : found->second;
  }
  /// Puts a series in, in the place of one of the same kind.
  void set(T type, std::shared_ptr<Serie> serie) { series_[type] = std::move(serie); }
  /// In ascending order of kind.
  [[nodiscard]] const std::map<T, std::shared_ptr<Serie>>& all() const { return series_; }

private:
  std::map<T, std::shared_ptr<Serie>> series_;
};
