#include "tools/project/Project.h"

#include "support/CommandTest.h"
#include "tools/project/Import.h"
#include "tools/system/Failure.h"

#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

using namespace LagomareTools;
namespace fs = std::filesystem;

class ProjectTest : public CommandTest {};

TEST_F(ProjectTest, AChangeDuringTheImportIsAnError) {
  const std::vector<std::function<void()>> changes{[] { runSql("basin.db", "pragma user_version"); }, // only read
                                                   [] { fs::resize_file("basin.db", 4096); },
                                                   [] { fs::remove("basin.db"); },
                                                   [] { writeFile("basin.db-wal", "x"); },
                                                   [] { // another file of the same size and time
                                                     fs::copy("basin.db", "other.db");
                                                     fs::last_write_time("other.db", fs::last_write_time("basin.db"));
                                                     fs::rename("other.db", "basin.db");
                                                   },
                                                   [] { // changed and set back
                                                     const auto time = fs::last_write_time("basin.db");
                                                     writeFile("basin.db", readFile("basin.db"));
                                                     fs::last_write_time("basin.db", time);
                                                   }};
  for (std::size_t index = 0; index < changes.size(); ++index) {
    fs::remove("basin.db-wal");
    ProjectOptions options;
    options.project = project();
    const Project opened(options);
    bool isFirst = true;
    const auto import = [&] {
      return importScenario(opened, [&](long /*done*/, long /*inAll*/) {
        if (std::exchange(isFirst, false))
          changes[index]();
      });
    };
    if (index == 0)
      EXPECT_EQ(import().result.status, 3U);
    else
      EXPECT_THROW(static_cast<void>(import()), Failure) << index;
  }
}
