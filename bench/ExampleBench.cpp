#include "access/LagomareProjectManager.h"
#include "access/QuerySource.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Sqlite.h"
#include "bench/Table.h"
#include "bench/plain/PlainRows.h"
#include "loader/LagomareProjectLoader.h"
#include "tools/project/Project.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace LagomareBench {

namespace {

const std::string database = "example.db";
const std::string listing = "example.txt";

/// What an import asks, and what it is answered.
struct Conversation {
  std::string queries;
  std::string answers;
};

/// Passes queries on, and writes down what it hears.
class Listener : public Lagomare::QuerySource {
public:
  Listener(std::shared_ptr<Lagomare::QuerySource> source, Conversation& heard)
      : source_(std::move(source)), heard_(heard) {}

  std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) override {
    const auto stream = source_->ask(sql, flag);
    const std::string answer(std::istreambuf_iterator<char>(*stream), {});
    heard_.queries += sql + ";\n";
    heard_.answers += answer;
    return std::make_unique<std::istringstream>(answer);
  }

private:
  std::shared_ptr<Lagomare::QuerySource> source_;
  Conversation& heard_;
};

void replaceAll(std::string& text, const std::string& part, const std::string& other) {
  for (auto found = text.find(part); found != std::string::npos; found = text.find(part, found + other.size()))
    text.replace(found, part.size(), other);
}

Conversation listenToImport() {
  Conversation heard;
  const LagomareTools::Project project({database, {}, {}, {}});
  LagomareProjectManager::getInstance(database)->setSource(std::make_shared<Listener>(project.source(), heard));
  if (!LagomareProjectLoader::load2013("", database, {}).scenario)
    throw std::runtime_error("the example does not import");
  // SQLite's own FORMAT is another function.
  replaceAll(heard.queries, "FORMAT(DataHoraIni, 'dd/mm/yyyy')", "strftime('%d/%m/%Y', DataHoraIni)");
  return heard;
}

std::vector<std::string> shellCommand(const std::string& queries) {
  return {"sqlite3", "-batch", "-list", database, queries};
}

bool isSameField(const std::string& left, const std::string& right) {
  return left == right ||
         (!left.empty() && !right.empty() && std::strtod(left.c_str(), nullptr) == std::strtod(right.c_str(), nullptr));
}

/// The shell's fields are parted by bars, and blanks in names are blanks.
void requireEqualAnswers(const Conversation& heard) {
  runCommand(shellCommand(heard.queries), listing);
  std::ifstream shell(listing);
  std::istringstream ours(heard.answers);
  for (std::string ourLine, line; std::getline(ours, ourLine);) {
    std::getline(shell, line);
    replaceAll(line, " ", "\u00A0");
    const auto fields = Plain::split(ourLine, ' ');
    if (!std::equal(fields.begin(), fields.end() - 1, Plain::split(line, '|').begin(), isSameField))
      throw std::runtime_error("sqlite3 answers otherwise: " + line + " instead of " + ourLine);
  }
  if (shell.peek() != EOF)
    throw std::runtime_error("sqlite3 answers more rows");
}

/// Mean processor seconds of several calls, for one takes a few milliseconds.
std::function<double()> secondsOfCall(const std::vector<std::string>& command) {
  return [command] {
    constexpr int calls = 10;
    double sum = 0.0;
    for (int call = 0; call < calls; ++call)
      sum += runCommand(command, listing).seconds;
    return sum / calls;
  };
}

/// How many processes a command is, itself included.
double countProcesses(const std::vector<std::string>& command) {
  std::vector<std::string> traced{"strace", "-f", "-qq", "-o", "calls.txt", "-e", "trace=clone,clone3,fork,vfork"};
  traced.insert(traced.end(), command.begin(), command.end());
  runCommand(traced, listing);
  std::ifstream calls("calls.txt");
  double processes = 1.0;
  for (std::string line; std::getline(calls, line);) {
    const bool isStart = line.find("clone") != std::string::npos || line.find("fork(") != std::string::npos;
    if (isStart && line.find("resumed") == std::string::npos && line.find("CLONE_THREAD") == std::string::npos)
      ++processes;
  }
  return processes;
}

void makeExample(const Setting& setting) {
  std::ifstream in(setting.examples / "sao-francisco-2013.sql");
  execute(create(database), std::string(std::istreambuf_iterator<char>(in), {}));
}

} // namespace

void addExampleBenches(Table& table, const Setting& setting) {
  makeExample(setting);
  const Conversation heard = listenToImport();
  Work& time = table.add("`lagomare import --no-check --quiet` of the São Francisco example, processor time (plain: "
                         "`sqlite3` answers the same queries in one process)",
                         milliseconds);
  time.setCheck([heard] { requireEqualAnswers(heard); });
  time.add("plain", 1, secondsOfCall(shellCommand(heard.queries)));
  time.add("ours", 1, secondsOfCall(importCommand(setting, database)));
  time.aimAtMost("ours", "plain", 2.0);
  Work& processes = table.add("processes of the same, its own included", plainCount);
  processes.add("plain", 1, [heard] { return countProcesses(shellCommand(heard.queries)); });
  processes.add("ours", 1, [&setting] { return countProcesses(importCommand(setting, database)); });
  processes.aimAtMost("ours", "", 2);
  Work& check =
      table.add("`lagomare check` of the same, processor time (floor: `lagomare import --no-check`)", milliseconds);
  check.add("ours", 1, secondsOfCall(checkCommand(setting, database)));
  check.add("floor", 1, secondsOfCall(importCommand(setting, database)));
  check.aimAtMost("ours", "floor", 1.5);
}

} // namespace LagomareBench
