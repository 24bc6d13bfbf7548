#include "tools/query/answer/AnswerFile.h"

#include "tests/query/QueryTest.h"
#include "tools/query/QueryError.h"
#include <csignal>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace LagomareQuery {
namespace {

namespace fs = std::filesystem;

void write(AnswerFile& answer, const std::string& bytes) {
  constexpr std::size_t block = 1000;
  for (std::size_t done = 0; done < bytes.size(); done += block)
    answer.write(std::string_view(bytes).substr(done, block));
}

std::string rows(std::size_t bytes) {
  std::string text;
  while (text.size() < bytes)
    text += "12 3.5 .\n";
  return text.substr(0, bytes);
}

/// Whatever stands in the file, its first line is no row: the reader takes the first field for a number.
bool isNoAnswer() { return contentOf("a.txt").rfind("error:", 0) == 0; }

using AnswerFileTest = QueryTest;

TEST_F(AnswerFileTest, AnswersOfEveryLengthReplaceTheErrorLine) {
  for (std::size_t bytes : {0u, 1u, 6u, 32u, 33u, 34u, 35u, 36u, 70u, 999u, 1000u, 1001u, 1000000u}) {
    writeFile("a.txt", rows(100000));
    AnswerFile answer("a.txt");
    EXPECT_EQ(contentOf("a.txt"), AnswerFile::unfinishedLine);
    write(answer, rows(bytes));
    EXPECT_TRUE(isNoAnswer()); // as a killed program leaves it
    answer.commit();
    EXPECT_TRUE(contentOf("a.txt") == rows(bytes)) << bytes;
  }
}

TEST_F(AnswerFileTest, AFailureLeavesOneLineAlsoAfterTheAnswer) {
  AnswerFile answer("a.txt");
  write(answer, rows(1000000));
  answer.fail("no such table: a\nb");
  EXPECT_EQ(contentOf("a.txt"), "error: no such table: a b .\n");
  AnswerFile finished("a.txt");
  write(finished, rows(20));
  finished.commit();
  finished.fail("the disk is gone"); // as where closing the file fails
  EXPECT_EQ(contentOf("a.txt"), "error: the disk is gone .\n");
}

TEST_F(AnswerFileTest, AFullDiskLeavesNoAnswer) {
  for (rlim_t room : {0u, 1u, 20u, 33u, 34u, 35u, 60u, 300000u, 524288u, 999999u}) {
    fs::remove("a.txt");
    const int status = statusOfChild([&] {
      std::signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{room, room};
      setrlimit(RLIMIT_FSIZE, &limit);
      try {
        AnswerFile answer("a.txt");
        try {
          write(answer, rows(1000000));
          answer.commit();
        } catch (const QueryError& error) {
          answer.fail(error.what());
          _exit(1);
        }
      } catch (const QueryError&) {
        _exit(1);
      }
    });
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_TRUE(isNoAnswer() || !fs::exists("a.txt") || contentOf("a.txt") == "e") << room << contentOf("a.txt");
  }
}

TEST_F(AnswerFileTest, WhatIsNoFileOfItsOwnIsReplaced) {
  writeFile("other", "1 2 .\n");
  const std::pair<const char*, std::function<void()>> inTheWay[] = {
      {"symbolic link", [] { fs::create_symlink("other", "a.txt"); }},
      {"dangling link", [] { fs::create_symlink("nowhere", "a.txt"); }},
      {"hard link", [] { fs::create_hard_link("other", "a.txt"); }},
      {"pipe", [] { ASSERT_EQ(mkfifo("a.txt", 0600), 0); }},
  };
  for (const auto& [what, make] : inTheWay) {
    fs::remove("a.txt");
    make();
    AnswerFile answer("a.txt");
    EXPECT_EQ(contentOf("a.txt"), AnswerFile::unfinishedLine) << what;
    write(answer, rows(90));
    answer.commit();
    EXPECT_EQ(contentOf("a.txt"), rows(90)) << what;
  }
  EXPECT_EQ(contentOf("other"), "1 2 .\n");
  EXPECT_FALSE(fs::exists("nowhere"));
}

TEST_F(AnswerFileTest, AFolderInTheWayIsAnError) {
  fs::create_directory("a.txt");
  writeFile("a.txt/x", "");
  EXPECT_THROW(AnswerFile("a.txt"), QueryError);
  EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 1);
}

} // namespace
} // namespace LagomareQuery
