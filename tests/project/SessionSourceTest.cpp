#include "tools/project/SessionSource.h"

#include "access/Answer.h"
#include "support/CommandTest.h"
#include "tools/project/QueryRefused.h"
#include "tools/system/Interruption.h"

#include <csignal>
#include <filesystem>
#include <iterator>
#include <memory>
#include <string>
#include <sys/resource.h>

using namespace LagomareTools;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
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

  static std::string text(SessionSource& source, const std::string& sql, bool flag) {
    return {std::istreambuf_iterator<char>(*source.ask(sql, flag)), {}};
  }

  /// A session that says how many queries it has answered.
  static std::shared_ptr<SessionSource> countingSession() {
    return session("n=0; while read -r flag sql; do n=$((n + 1)); case $sql in\n"
                   "  refused) printf \"7 half .\\n\\004error: refusal $n\\n\";;\n"
                   "  long) seq -f \"7 $n.%.0f .\" 50000; printf '\\004complete\\n';;\n"
                   "  *) printf \"7 $n .\\n\\004complete\\n\";;\n"
                   "esac; done");
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

TEST_F(SessionSourceTest, AQueryThatIsAskedAgainIsNotRunAgain) {
  const auto source = countingSession();
  EXPECT_EQ(answer(*source, "a"), "1");
  EXPECT_EQ(answer(*source, "a"), "2");
  static_cast<void>(source->ask("long", true)->get());
  source->keepAnswers(); // the rest of that answer is still to come, and must not pass for the whole
  EXPECT_EQ(answer(*source, "a"), "4");
  const std::string longText = text(*source, "long", true);
  EXPECT_THAT(longText, AllOf(StartsWith("7 5.1 .\n"), EndsWith("7 5.50000 .\n")));
  source->keepAnswers();
  static_cast<void>(source->ask("unread", false));
  for (int i = 0; i < 2; ++i) // a refusal is not kept
    EXPECT_THROW(static_cast<void>(text(*source, "refused", false)), QueryRefused);
  EXPECT_EQ(answer(*source, "b"), "9");
  static_cast<void>(source->ask("long", true)->get());
  EXPECT_EQ(answer(*source, "a"), "4");
  EXPECT_EQ(text(*source, "long", false), longText);
  EXPECT_EQ(answer(*source, "unread"), "6");
  EXPECT_EQ(answer(*source, "c"), "10");
  EXPECT_EQ(answer(*source, "b"), "9");
}

TEST_F(SessionSourceTest, WithoutRoomForATemporaryFileAQueryIsRunAgain) {
  const auto source = countingSession();
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  rlimit usual{};
  getrlimit(RLIMIT_FSIZE, &usual);
  const rlimit small{100000, usual.rlim_max}; // bytes
  setrlimit(RLIMIT_FSIZE, &small);
  source->keepAnswers();
  EXPECT_EQ(answer(*source, "a"), "1");
  EXPECT_EQ(answer(*source, "a"), "1");
  EXPECT_THAT(text(*source, "long", true), EndsWith("7 2.50000 .\n"));
  EXPECT_THAT(text(*source, "long", true), EndsWith("7 3.50000 .\n"));
  EXPECT_EQ(answer(*source, "a"), "4");
  setrlimit(RLIMIT_FSIZE, &usual);
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
