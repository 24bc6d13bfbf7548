#include "tools/project/SessionSource.h"

#include "access/Answer.h"
#include "support/CommandTest.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/Interruption.h"

#include <filesystem>
#include <memory>
#include <string>

using namespace LagomareTools;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class SessionSourceTest : public CommandTest {
protected:
  static std::shared_ptr<SessionSource> session(const std::string& script) {
    return std::make_shared<SessionSource>(std::filesystem::absolute(executable(script, "session")), "basin.db",
                                           "basin.db");
  }

  static std::string answer(SessionSource& source, const std::string& sql) {
    return Lagomare::parseRows(*source.ask(sql, true)).at(7).at(0).at(1);
  }
};

TEST_F(SessionSourceTest, ARefusedOrUnreadAnswerDoesNotTouchTheNext) {
  const auto source =
      session("[ \"$*\" = '--session basin.db' ] || exit\n"
              "while read -r flag sql; do case $sql in\n"
              "  refused) printf '7 half .\\n\\004error: no such table: t\\n';;\n"
              "  *) printf '7 %s .\\n\\004comp' \"$flag$(echo \"$sql\" | tr ' ' _)\"; printf 'lete\\n';;\n"
              "esac; done");
  EXPECT_EQ(answer(*source, "a"), "1a");
  try {
    static_cast<void>(answer(*source, "refused"));
    FAIL();
  } catch (const QueryRefused& refusal) {
    EXPECT_STREQ(refusal.what(), "no such table: t");
  }
  static_cast<void>(source->ask("unread", false));
  static_cast<void>(source->ask("refused", false));
  EXPECT_EQ(answer(*source, "b\nc"), "1b_c");
}

TEST_F(SessionSourceTest, AnAnswerWithoutItsEndLineIsNone) {
  for (const std::string end : {"", "\\n", " .\\n", " .\\n\\004", " .\\n\\004complete", " .\\n\\004else\\n"})
    for (const std::string death : {"exit", "kill -9 $$", "echo trouble >&2; exit 1"}) {
      const auto source = session("read -r line; printf '7 x" + end + "'; " + death);
      try {
        static_cast<void>(answer(*source, "a"));
        ADD_FAILURE() << end << death;
      } catch (const Failure& failure) {
        EXPECT_EQ(dynamic_cast<const QueryRefused*>(&failure), nullptr);
        EXPECT_THAT(failure.what(), StartsWith("basin.db: "));
        EXPECT_THAT(failure.what(), HasSubstr(death == "exit"         ? "code 0"
                                              : death == "kill -9 $$" ? "killed"
                                                                      : "trouble"));
      }
    }
}

TEST_F(SessionSourceTest, ASilentSessionEndsWhenTheUserAsksToStop) {
  const Interruption interruption;
  const LifeLine alive("alive");
  {
    const auto source = session("exec 3> \"${0%/*}/alive\"; read -r line; kill -INT $PPID; exec sleep 1000");
    EXPECT_THROW(static_cast<void>(answer(*source, "a")), Interrupted);
  }
  EXPECT_TRUE(alive.awaitEnd());
}
