#include "support/CommandTest.h"
#include "support/Program.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

class InterruptionTest : public CommandTest {
protected:
  InterruptionTest() {
    project();
    writeFile("out.json", "old");
  }

  static std::vector<std::string> words(const std::string& script) {
    return importing({"basin.db", "--json", "out.json", "--csv", "tables", "--query-executable", executable(script)});
  }

  static void expectCancelled(RunningProgram& program) {
    const Ending ending = program.wait();
    EXPECT_EQ(ending.exitCode, 130);
    EXPECT_EQ(ending.out, "");
    EXPECT_EQ(readFile("out.json"), "old");
    EXPECT_FALSE(fs::exists("tables"));
  }

  /// The script that hangs at a query.
  static std::string hangAt(const std::string& sql) {
    return "case \"$2\" in " + sql + ") > \"${0%/*}/reached\"; sleep 1000;; esac; answer \"$@\"";
  }
};

TEST_F(InterruptionTest, TheFirstSignalStopsTheImportAndTheQueryThatRuns) {
  const std::string steps = "*LgmResCAV";
  const std::string beforeAnyStep = "'select NumPonto from Tk_Dem_FEA'";
  const std::string whileAsked = "*count*DefGerais";
  for (const std::string& query : {steps, beforeAnyStep, whileAsked})
    for (const int signal : {SIGINT, SIGTERM}) {
      RunningProgram program(words(hangAt(query)));
      ASSERT_TRUE(awaitFile("reached"));
      program.send(signal);
      expectCancelled(program);
      fs::remove("reached");
    }
}

TEST_F(InterruptionTest, NothingThatTheQueryStartedOutlivesIt) {
  const LifeLine alive("alive");
  RunningProgram program(words("case \"$2\" in *LgmResCAV) exec 3> \"${0%/*}/alive\"; > \"${0%/*}/reached\"\n"
                               "sleep 1000;; esac; answer \"$@\""));
  ASSERT_TRUE(awaitFile("reached"));
  program.send(SIGINT);
  expectCancelled(program);
  EXPECT_TRUE(alive.awaitEnd());
}

TEST_F(InterruptionTest, TheQueryEndsWithAProgramThatIsKilled) {
  const LifeLine alive("alive");
  RunningProgram program(importing({"basin.db", "--query-executable",
                                    executable("exec 3> \"${0%/*}/alive\"; > \"${0%/*}/reached\"; exec sleep 1000")}));
  ASSERT_TRUE(awaitFile("reached"));
  program.send(SIGKILL);
  EXPECT_EQ(program.wait().exitCode, -1);
  EXPECT_TRUE(alive.awaitEnd());
  fs::remove_all("tmp"); // only what is killed leaves its working directory
  fs::create_directory("tmp");
}

TEST_F(InterruptionTest, AProgramWhoseCallerIgnoresItsChildrenEnds) {
  std::vector<std::string> words{"/usr/bin/perl", "-e",
                                 "$SIG{CHLD} = 'IGNORE'; exec @ARGV"}; // shells do not pass it on
  for (const std::string& word : importing({"basin.db"}))
    words.push_back(word);
  EXPECT_EQ(run(words).exitCode, 0);
}

TEST_F(InterruptionTest, AnIgnoredSignalStaysIgnored) {
  const auto command = importing({"basin.db", "--quiet", "--query-executable",
                                  executable("case \"$2\" in *LgmResCAV) kill -INT $(cat \"${0%/*}/pid\");; esac\n"
                                             "answer \"$@\"")});
  EXPECT_EQ(run({"/bin/sh", "-c", "trap '' INT; echo $$ > pid; exec \"$@\"", "sh", command[0], command[1], command[2],
                 command[3], command[4], fs::absolute(command[5]).string()})
                .exitCode,
            0);
}

TEST_F(InterruptionTest, AfterTheImportTheFirstSignalEndsTheProgram) {
  ASSERT_EQ(::mkfifo("pipe", 0600), 0);
  const int reader = ::open("pipe", O_RDONLY | O_NONBLOCK);
  runSql("basin.db", "update Tk_Gerais set Duracao = 2000"); // more than the pipe takes
  RunningProgram program(importing({"basin.db", "--json", "pipe", "--geojson", "out.json"}));
  pollfd readable{reader, POLLIN, 0};
  EXPECT_EQ(::poll(&readable, 1, 60000), 1);
  program.send(SIGINT);
  expectCancelled(program);
  ::close(reader);
}
