#include "ImportFixture.h"

#include "model/Reservoir.h"
#include "model/ScenarioManager.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <locale>
#include <string>
#include <vector>

using namespace testing;

/// Asked by the leak checker: the C library never frees what it makes of LOCPATH.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions() {
  return "leak:__argz_add_sep";
}

namespace {

std::vector<double> numbersOf(const Reservoir& reservoir) {
  std::vector<double> numbers{reservoir.getX(), reservoir.getY(), reservoir.getReservoirInfo().maximumVolume};
  for (const auto type : {SerieType::NaturalAffluentFlow, SerieType::Evapotranspiration})
    for (const double value : valuesOf(reservoir, type))
      numbers.push_back(value);
  return numbers;
}

/// Puts the process under pt_BR.UTF-8, whose decimal point is a comma, made in the test's directory: machines rarely
/// have it.
class BrazilianLocaleTest : public DialectTest {
protected:
  void SetUp() override {
    ASSERT_EQ(std::system("mkdir locales && localedef -i pt_BR -f UTF-8 ./locales/pt_BR.UTF-8"), 0);
    setenv("LOCPATH", (std::filesystem::current_path() / "locales").c_str(), 1);
    setenv("LC_ALL", "pt_BR.UTF-8", 1);
  }
  void TearDown() override {
    std::locale::global(std::locale::classic());
    unsetenv("LC_ALL");
    unsetenv("LOCPATH");
  }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, BrazilianLocaleTest, bothDialects, dialectName);

TEST_P(BrazilianLocaleTest, ReadsTheSameNumbers) {
  const std::string project = R"(
    insert into reservoir values (1, 'R', 472297.25, 7986229.5, 19528.125, 4250.5, 12345.75, 1);
    insert into flow select 1, 1000.5 + month / 8.0 from month;
    insert into evaporation select 1, month * 0.3 from month;)";
  const auto expected = numbersOf(*find<Reservoir>(load(project), 1));

  std::locale::global(std::locale("pt_BR.UTF-8"));
  ASSERT_STREQ(localeconv()->decimal_point, ",");
  ASSERT_EQ(std::stod("3.5"), 3.0) << "the locale is not in force";
  ScenarioManager::instance = 1234567;
  const auto scenario = load(project);
  EXPECT_EQ(numbersOf(*find<Reservoir>(scenario, 1)), expected);
  EXPECT_EQ(scenario->getName(), "Scenario1234567");
}
