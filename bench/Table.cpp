#include "bench/Table.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace LagomareBench {

namespace {

struct Contender {
  Work* work;
  std::string name;
  double items;
  bool isManual;
  std::string failure = {}; ///< the last message, if one round failed
};

/// By the name under which it is registered.
std::map<std::string, Contender>& contenders() {
  static std::map<std::string, Contender> all;
  return all;
}

benchmark::internal::Benchmark* enlist(const std::string& name, Contender contender,
                                       std::function<void(benchmark::State&)> body) {
  contenders().emplace(name, std::move(contender));
  return benchmark::RegisterBenchmark(name.c_str(), std::move(body));
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

/// Three digits that mean something, and no exponent.
std::string shortText(double value) {
  std::ostringstream out;
  const int decimals = value == 0.0 ? 0 : 2 - static_cast<int>(std::floor(std::log10(std::abs(value))));
  out << std::fixed << std::setprecision(std::clamp(decimals, 0, 3)) << value;
  return out.str();
}

/// Hands the costs to their works.
class Recorder : public benchmark::BenchmarkReporter {
public:
  bool ReportContext(const Context& /*machine*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      record(run);
  }

private:
  static void record(const Run& run) {
    const Contender& contender = contenders().at(run.run_name.function_name);
    if (!contender.failure.empty())
      return;
    const double time = contender.isManual ? run.real_accumulated_time : run.cpu_accumulated_time;
    contender.work->record(contender.name, time / static_cast<double>(run.iterations) / contender.items);
  }
};

} // namespace

void Work::add(const std::string& contender, double items, std::function<double()> cost) {
  const std::string name = name_ + " / " + contender;
  const auto body = [this, name, cost = std::move(cost)](benchmark::State& state) {
    runChecked(state, name, [&] { state.SetIterationTime(cost()); });
  };
  enlist(name, {this, contender, items, true}, body)->Iterations(1)->UseManualTime();
}

void Work::addLoop(const std::string& contender, double items, std::function<void()> work) {
  constexpr double enoughSeconds = 0.05;
  const std::string name = name_ + " / " + contender;
  const auto body = [this, name, work = std::move(work)](benchmark::State& state) { runChecked(state, name, work); };
  enlist(name, {this, contender, items, false}, body)->MinTime(enoughSeconds);
}

void Work::runChecked(benchmark::State& state, const std::string& name, const std::function<void()>& body) {
  try {
    if (check_) // once, but for one that fails
      check_();
    check_ = nullptr;
    for ([[maybe_unused]] auto _ : state)
      body();
  } catch (const std::exception& error) {
    contenders().at(name).failure = error.what();
    state.SkipWithError(error.what());
  }
}

std::string Work::figure(const std::string& contender) const {
  const auto found = costs_.find(contender);
  return found == costs_.end() ? "" : shortText(median(found->second) * unit_.scale) + " " + unit_.name;
}

double Work::value(const Aim& aim) const {
  std::vector<double> values = costs_.at(aim.over);
  if (aim.under.empty())
    return median(values) * unit_.scale;
  const auto& under = costs_.at(aim.under);
  values.resize(std::min(values.size(), under.size()));
  std::transform(values.begin(), values.end(), under.begin(), values.begin(), std::divides<>());
  return median(values);
}

bool Work::isMeasured(const Aim& aim) const {
  return costs_.count(aim.over) == 1 && (aim.under.empty() || costs_.count(aim.under) == 1);
}

void Work::printAim(std::ostream& out, const Aim& aim) const {
  const double today = value(aim);
  const bool isMet = aim.atLeast ? today >= aim.limit : today <= aim.limit;
  out << (aim.under.empty() ? aim.over : aim.over + " ÷ " + aim.under) << " | " << shortText(today) << " | "
      << (aim.atLeast ? "≥ " : "≤ ") << shortText(aim.limit) << " | " << (isMet ? "met" : "**missed**") << " |\n";
}

void Work::print(std::ostream& out, const std::vector<std::string>& columns) const {
  if (costs_.empty())
    return;
  std::string figures = "| " + name_ + " | ";
  for (const auto& column : columns)
    figures += figure(column) + " | ";
  const std::string nothing = "| |" + std::string(columns.size(), '|') + " ";
  for (const Aim& aim : aims_)
    if (isMeasured(aim))
      printAim(out << std::exchange(figures, nothing), aim);
  if (figures != nothing)
    out << figures << " | | | |\n";
}

void Table::print(std::ostream& out) const {
  out << "\n| work |";
  for (const auto& column : columns_)
    out << ' ' << column << " |";
  out << " what | today | aim | |\n|---|" << [this] {
    std::string line;
    for (std::size_t column = 0; column < columns_.size() + 4; ++column)
      line += "---|";
    return line;
  }() << '\n';
  for (const Work& work : works_)
    work.print(out, columns_);
}

bool runRounds(int rounds) {
  Recorder recorder;
  for (int round = 1; round <= rounds; ++round) {
    std::cerr << "round " << round << " of " << rounds << '\n';
    benchmark::RunSpecifiedBenchmarks(&recorder);
  }
  bool isSound = true;
  for (const auto& [name, contender] : contenders()) {
    if (contender.failure.empty())
      continue;
    std::cerr << name << ": " << contender.failure << '\n';
    isSound = false;
  }
  return isSound;
}

} // namespace LagomareBench
