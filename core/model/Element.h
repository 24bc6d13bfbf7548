#pragma once

#include "model/Container.h"
#include "model/ElementType.h"
#include "model/Serie.h"
#include "model/SerieType.h"
#include "telu_qt_export.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Anything that a scenario's network is made of. Owned by std::shared_ptr.
class TELU_QT_EXPORT Element {
public:
  virtual ~Element();
  Element(const Element&) = delete;
  Element& operator=(const Element&) = delete;

  [[nodiscard]] const std::string& getName() const { return name_; }
  void setName(const std::string& name) { name_ = name; }

  /// What the element is; never empty.
  [[nodiscard]] const std::shared_ptr<EnumElementType>& getElementType() const { return kind_; }

  /// The series given for the first execution window, shared; never empty.
  [[nodiscard]] const std::shared_ptr<Container<SerieType>>& getSeriesInput() const { return windows_.front(); }
  void setSeriesInput(std::shared_ptr<Container<SerieType>> series) { windows_.front() = std::move(series); }
  /// Takes the series of all windows of another element in place of its own; both share them then.
  void shareSeries(const Element& other) { windows_ = other.windows_; }
  /// The series by window, shared.
  [[nodiscard]] const std::vector<std::shared_ptr<Container<SerieType>>>& getWindows() const { return windows_; }
  /// Adds the series of a further execution window.
  void addWindow(std::shared_ptr<Container<SerieType>> series) { windows_.push_back(std::move(series)); }
  /// The series of a window, from 0, in ascending order of kind. Throws std::out_of_range
  /// "Invalid window index".
  [[nodiscard]] std::vector<std::shared_ptr<Serie>> getVectorOfSeries(unsigned window) const;

  std::uint32_t bdId = 0; ///< the id in the legacy database; the key of settings and of look-ups

protected:
  explicit Element(const EnumElementType& kind);

private:
  std::string name_;
  std::shared_ptr<EnumElementType> kind_;
  std::vector<std::shared_ptr<Container<SerieType>>> windows_; ///< one per execution window, at least one
};
