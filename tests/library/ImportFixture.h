#pragma once

#include "Dialect.h"
#include "model/Node.h"
#include "model/Scenario.h"

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <filesystem>

/// An empty working directory of the test's own, and no query channel before and after it.
class WorkingDirectoryTest : public testing::Test {
protected:
  WorkingDirectoryTest();
  ~WorkingDirectoryTest() override;

  static void write(const std::string& file, const std::string& text);
  [[nodiscard]] static std::string read(const std::string& file);

private:
  std::filesystem::path outside_ = std::filesystem::current_path();
  std::filesystem::path directory_;
};

/// Imports projects through the library's entry and the real query executable, whose calls are recorded.
class ImportTest : public WorkingDirectoryTest {
protected:
  using Progress = std::function<bool(long, long)>;

  /// The common SQL is run before the dialect's tables are made of it, the other after that.
  static SceneryProjectManagerRet import(const Dialect& dialect, const std::string& commonSql,
                                         const Progress& progress = {}, const std::string& dialectSql = {});
  /// The same where the import must succeed.
  static std::shared_ptr<Scenario> load(const Dialect& dialect, const std::string& commonSql,
                                        const std::string& dialectSql = {});
  /// What the last import asked, in order, each as SQL|flag.
  [[nodiscard]] static std::vector<std::string> queries();
};

/// A test that is run for both dialects.
class DialectTest : public ImportTest, public testing::WithParamInterface<const Dialect*> {
protected:
  static SceneryProjectManagerRet import(const std::string& sql, const Progress& progress = {}) {
    return ImportTest::import(*GetParam(), sql, progress);
  }
  static std::shared_ptr<Scenario> load(const std::string& sql) { return ImportTest::load(*GetParam(), sql); }
};

inline const auto bothDialects = testing::Values(&dialect2010, &dialect2013);
inline std::string dialectName(const testing::TestParamInfo<const Dialect*>& info) { return info.param->name; }

/// The element of an id; throws where the scenario has none of the class.
template <typename T = Node>
std::shared_ptr<T> find(const std::shared_ptr<Scenario>& scenario, unsigned id) {
  auto element = std::dynamic_pointer_cast<T>(scenario->getElement(id));
  return element ? element : throw std::runtime_error("no such element: " + std::to_string(id));
}

/// The values of a series over its interval.
std::vector<double> valuesOf(const Serie& serie);
std::vector<double> valuesOf(const Element& element, SerieType type);
