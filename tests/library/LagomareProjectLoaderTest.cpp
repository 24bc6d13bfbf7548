#include "ImportFixture.h"

#include "access/FieldError.h"
#include "access/LagomareProjectManager.h"
#include "model/Link.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

using namespace Lagomare;
using namespace testing;

namespace {

using Steps = std::vector<std::pair<long, long>>;

/// Something for every step to load, and a pair of links to fold.
const std::string network = R"(
insert into reservoir (id) values (1), (2);
insert into demand (id) values (3);
insert into junction (id) values (4);
insert into link (id, up, down) values (5, 1, 2), (6, 2, 1), (7, 2, 4), (8, 4, 3);
insert into linkLimit (id, value) values (5, 9.5);
)";

class LagomareProjectLoaderTest : public DialectTest {
protected:
  static bool leftNothing() {
    return !std::filesystem::exists("script.bat") && !std::filesystem::exists("query-result.txt");
  }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Dialects, LagomareProjectLoaderTest, bothDialects, dialectName);

TEST_P(LagomareProjectLoaderTest, ReturnsTheScenarioWithItsPairsOfLinksFolded) {
  const auto result = import(network);
  EXPECT_EQ(result.status, 3U);
  EXPECT_EQ(result.message, "Importação realizada com sucesso");
  EXPECT_TRUE(leftNothing());
  EXPECT_EQ(LagomareProjectManager::lagomareProjectManager, nullptr);
  EXPECT_TRUE(find<Link>(result.scenario, 5)->getIsBidirectional());
  EXPECT_FALSE(find<Link>(result.scenario, 7)->getIsBidirectional());
  EXPECT_EQ(result.scenario->getElement(6), nullptr);
}

TEST_P(LagomareProjectLoaderTest, RefusesATacticalProjectAndOneWithoutSettings) {
  auto result = import("update settings set tactical = 2, states = 1;" + network);
  EXPECT_EQ(result.status, 1U);
  EXPECT_EQ(result.message, "Não é possível importar projeto de planejamento tático");
  EXPECT_EQ(result.scenario, nullptr);
  EXPECT_EQ(queries().size(), 1U);
  EXPECT_TRUE(leftNothing());
  result = import("delete from settings;" + network);
  EXPECT_EQ(result.status, 2U);
  EXPECT_EQ(result.message, "Projeto inválido");
  EXPECT_EQ(result.scenario, nullptr);
  EXPECT_TRUE(leftNothing());
}

TEST_P(LagomareProjectLoaderTest, LeavesScriptAndAnswerAfterAnErrorUntilAnImportReturns) {
  try {
    import(network + "insert into linkLimit (id, value) values (6, 'a lot');");
    FAIL() << "a flow limit that is no number was read";
  } catch (const FieldError& error) {
    EXPECT_EQ(error.row(), 2U);
    EXPECT_EQ(error.rowId(), 6U);
    EXPECT_EQ(error.column(), 1U);
    EXPECT_EQ(error.text(), "a\u00A0lot");
  }
  EXPECT_THAT(read("script.bat"), HasSubstr(queries().back().substr(0, queries().back().size() - 2)));
  EXPECT_THAT(read("query-result.txt"), HasSubstr("6 a"));
  EXPECT_EQ(import(network).status, 3U);
  EXPECT_TRUE(leftNothing());
}

TEST_P(LagomareProjectLoaderTest, ReportsStepsDoneOfSteps) {
  const bool is2010 = GetParam() == &dialect2010;
  const long all = is2010 ? 18 : 15;
  Steps steps;
  const auto keep = [&steps](long done, long total) { return steps.emplace_back(done, total), true; };
  import(network, keep);
  Steps expected;
  for (long done = 1; done <= all; ++done)
    expected.emplace_back(done, all);
  EXPECT_EQ(steps, expected);

  // An empty project: the steps that need rows pass without a word, the total counts them all the same.
  steps.clear();
  EXPECT_EQ(import("", keep).status, 3U);
  EXPECT_EQ(steps.size(), is2010 ? 10U : 11U);
  EXPECT_EQ(steps.back(), std::make_pair(is2010 ? 10L : 11L, all));
}
