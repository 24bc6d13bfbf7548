#include "tests/query/QueryTest.h"
#include "tools/query/Program.h"
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace LagomareQuery {
namespace {

/// A file cut at a random place, or with a few bytes changed; half of them where pages have their headers.
std::string damaged(std::string bytes, std::mt19937& random) {
  constexpr std::size_t pageSize = 4096;
  constexpr std::size_t headerSize = 80;
  if (random() % 8 == 0)
    return bytes.substr(0, random() % bytes.size());
  for (unsigned changes = 1u << random() % 6; changes > 0; --changes) {
    const std::size_t page = random() % (bytes.size() / pageSize) * pageSize;
    const std::size_t place = page + random() % (random() % 2 == 0 ? headerSize : pageSize);
    const auto flipped = static_cast<std::uint_fast32_t>(static_cast<unsigned char>(bytes[place]) ^ 1u << random() % 8);
    const std::uint_fast32_t values[] = {0, 0xFF, random() % 256, flipped};
    bytes[place] = static_cast<char>(values[random() % 4]);
  }
  return bytes;
}

void limitThisProcess() {
  const rlimit seconds{10, 10};
  setrlimit(RLIMIT_CPU, &seconds);
#ifndef __SANITIZE_ADDRESS__ // whose shadow takes more than any limit
  const rlimit bytes{256u << 20, 256u << 20};
  setrlimit(RLIMIT_DATA, &bytes);
#endif
  if (!std::freopen("/dev/null", "w", stderr))
    _exit(3);
}

struct Damaged {
  const char* name;
  const char* sample;
  const char* sql;
};

class AccessDamageTest : public QueryTest, public testing::WithParamInterface<Damaged> {};

/// LAGOMARE_DAMAGE_TRIES sets how often, LAGOMARE_DAMAGE_SEED from where.
unsigned fromEnvironment(const char* name, unsigned otherwise) {
  const char* text = std::getenv(name);
  return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

TEST_P(AccessDamageTest, EveryTryAnswersFullyOrWithAnError) {
  const auto& [name, sample, sql] = GetParam();
  const std::string file = std::string(SAMPLES) + "/" + sample;
  const std::string bytes = contentOf(file);
  const std::string whole = answer(file, sql);
  std::mt19937 random(fromEnvironment("LAGOMARE_DAMAGE_SEED", 1));
  for (unsigned tries = fromEnvironment("LAGOMARE_DAMAGE_TRIES", 100); tries > 0; --tries) {
    writeFile("damaged.mdb", damaged(bytes, random));
    rusage usage{};
    const int status = statusOfChild(
        [&, query = std::string(sql)] {
          limitThisProcess();
          _exit(runProgram({"damaged.mdb", query, "0"}));
        },
        &usage);
    const std::string found = contentOf("query-result.txt");
    ASSERT_TRUE(WIFEXITED(status)) << "killed by signal " << WTERMSIG(status) << ", " << tries << " tries to go";
    ASSERT_LT(usage.ru_maxrss, 1 << 20) << "kilobytes, " << tries << " tries to go";
    if (WEXITSTATUS(status) == 0)
      ASSERT_EQ(std::count(found.begin(), found.end(), '\n'), std::count(whole.begin(), whole.end(), '\n'));
    else
      ASSERT_TRUE(WEXITSTATUS(status) == 1 && found.rfind("error: ", 0) == 0) << WEXITSTATUS(status) << found;
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, AccessDamageTest,
                         testing::Values(Damaged{"Types", "types.mdb", "SELECT * FROM Tipos"},
                                         Damaged{"Names", "types.mdb", "SELECT * FROM \"Tabela com espaço\""},
                                         Damaged{"Access97", "jet3.mdb", "SELECT * FROM Nós"},
                                         Damaged{"Access2000", "example-2010.mdb", "SELECT * FROM Vazao"},
                                         Damaged{"Access2010", "example-2013.accdb", "SELECT * FROM LgmDemDemSC"}),
                         [](const testing::TestParamInfo<Damaged>& tried) { return std::string(tried.param.name); });

} // namespace
} // namespace LagomareQuery
