#include "access/LagomareProjectManager.h"

#include "ImportFixture.h"

#include <filesystem>
#include <stdexcept>

using namespace testing;

namespace {

/// Asks a channel whose executable does nothing: what stands in the answer file is the answer.
class LagomareProjectManagerTest : public WorkingDirectoryTest {
protected:
  LagomareProjectManagerTest() { LagomareProjectManager::getInstance("a b.db")->setApiExecutable(":"); }

  static QueryResult ask() { return LagomareProjectManager::getInstance()->query("select 1", true); }
};

} // namespace

TEST_F(LagomareProjectManagerTest, WritesOneLineWithNothingEscaped) {
  const auto* channel = LagomareProjectManager::getInstance();
  channel->buildScript("select * from T where a = 'b' -- a long one", true);
  channel->buildScript("select $1", false);
  EXPECT_EQ(read("script.bat"), ": \"a b.db\" \"select $1\" 0\n");
  LagomareProjectManager::getInstance()->setApiExecutable("C:\\tools\\query.exe --fast");
  channel->buildScript("select * from Pontos", true);
  EXPECT_EQ(read("script.bat"), "C:\\tools\\query.exe --fast \"a b.db\" \"select * from Pontos\" 1\n");
}

TEST_F(LagomareProjectManagerTest, KeepsItsFirstDatabaseUntilItIsCleaned) {
  auto* const channel = LagomareProjectManager::getInstance("other.db");
  EXPECT_EQ(channel, LagomareProjectManager::getInstance());
  write("query-result.txt", "1 .\n");
  ask();
  EXPECT_EQ(read("script.bat"), ": \"a b.db\" \"select 1\" 1\n");
  LagomareProjectManager::cleanInstance();
  LagomareProjectManager::cleanInstance();
  EXPECT_TRUE(std::filesystem::is_empty("."));
  EXPECT_THAT(
      [] { static_cast<void>(LagomareProjectManager::getInstance()); },
      ThrowsMessage<std::runtime_error>("LagomareProjectManager::getInstance(): database filename not initialized"));
  LagomareProjectManager::getInstance("other.db")->buildScript("select 1", true);
  EXPECT_EQ(read("script.bat"), " \"other.db\" \"select 1\" 1\n") << "a new channel knows no executable";
}

TEST_F(LagomareProjectManagerTest, ReadsAnOldAnswerAgainWhereNoNewOneIsWritten) {
  EXPECT_TRUE(ask().empty()) << "there is no file yet";
  write("query-result.txt", "7 x .\n");
  const QueryResult answer{{7, {{"7", "x"}}}};
  EXPECT_EQ(ask(), answer);
  EXPECT_EQ(ask(), answer);
}
