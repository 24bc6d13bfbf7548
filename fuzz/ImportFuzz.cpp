// An import of any answers succeeds, is refused or throws; and an import of sound answers after it gives what it gave
// before it. The input is a project as text: "? SQL" begins the answer to that query; a query without an answer gets
// no rows. Each input is imported as a project of either dialect that it has settings of.

#include "access/LagomareProjectManager.h"
#include "access/QuerySource.h"
#include "bench/Digest.h"
#include "fuzz/Finding.h"
#include "loader/LagomareProjectLoader.h"
#include "loader/SceneryProjectManagerRet.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>

using namespace LagomareFuzz;

namespace {

class Answers : public Lagomare::QuerySource {
public:
  explicit Answers(const std::string& project) {
    std::istringstream lines(project);
    std::string* answer = nullptr;
    for (std::string line; std::getline(lines, line);)
      if (line.rfind("? ", 0) == 0)
        answer = &answers_[line.substr(2)];
      else if (answer != nullptr)
        *answer += line + '\n';
  }

  std::unique_ptr<std::istream> ask(const std::string& sql, bool /*flag*/) override {
    asked_.insert(sql);
    const auto found = answers_.find(sql);
    return std::make_unique<std::istringstream>(found == answers_.end() ? "" : found->second);
  }

  [[nodiscard]] bool hasAnswerWith(const std::string& word) const {
    return std::any_of(answers_.begin(), answers_.end(),
                       [&](const auto& answer) { return answer.first.find(word) != std::string::npos; });
  }
  /// Each query had an answer, and each answer had its query.
  [[nodiscard]] bool fits() const {
    return asked_.size() == answers_.size() &&
           std::all_of(asked_.begin(), asked_.end(), [&](const auto& sql) { return answers_.count(sql) == 1; });
  }

private:
  std::map<std::string, std::string> answers_; ///< by SQL
  std::set<std::string> asked_;
};

struct Dialect {
  const char* name; ///< of its sound project among the seeds, too
  const char* settingsTable;
  SceneryProjectManagerRet (*load)(const std::string&, const std::string&, std::function<bool(long, long)>);
};
constexpr std::array<Dialect, 2> dialects{
    {{"2010", "DefGerais", LagomareProjectLoader::load2010}, {"2013", "Tk_Gerais", LagomareProjectLoader::load2013}}};

/// The status and a digest of the whole scenario, or the error.
std::string import(const Dialect& dialect, const std::shared_ptr<Answers>& answers) {
  LagomareProjectManager::cleanInstance();
  LagomareProjectManager::getInstance("project")->setSource(answers);
  try {
    const auto result = dialect.load("", "project", {});
    return std::to_string(result.status) + ' ' +
           (result.scenario ? std::to_string(LagomareBench::Digest::of(*result.scenario)) : result.message);
  } catch (const std::exception& error) {
    return error.what();
  }
}

struct Sound {
  std::shared_ptr<Answers> answers;
  std::string outcome;
};

Sound soundProject(const Dialect& dialect) {
  std::ifstream in(std::string(LAGOMARE_FUZZ_SEEDS "/import/") + dialect.name);
  auto answers = std::make_shared<Answers>(std::string(std::istreambuf_iterator<char>(in), {}));
  std::string outcome = import(dialect, answers);
  require(outcome.rfind("3 ", 0) == 0, "the seed does not import: " + outcome);
  require(answers->fits(), "the seed no longer fits the queries");
  return {answers, outcome};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::array<Sound, 2> sound{soundProject(dialects[0]), soundProject(dialects[1])};
  const auto answers = std::make_shared<Answers>(std::string(reinterpret_cast<const char*>(data), size));
  for (std::size_t dialect = 0; dialect < dialects.size(); ++dialect) {
    if (!answers->hasAnswerWith(dialects[dialect].settingsTable))
      continue;
    static_cast<void>(import(dialects[dialect], answers));
    require(import(dialects[dialect], sound[dialect].answers) == sound[dialect].outcome,
            "the next import is another one");
  }
  return 0;
}
