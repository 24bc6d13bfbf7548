#pragma once

#include <benchmark/benchmark.h>
#include <deque>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace LagomareBench {

/// How the cost of one item is shown: a cost in seconds times the scale.
struct Unit {
  const char* name;
  double scale;
};
constexpr Unit nanoseconds{"ns", 1e9};
constexpr Unit milliseconds{"ms", 1e3};
constexpr Unit wholeSeconds{"s", 1.0};
constexpr Unit megabytes{"MB", 1e-6};
constexpr Unit plainCount{"", 1.0};

/// Bounds for a ratio of two contenders' costs or, where there is no second one, for the first one's cost itself.
struct Aim {
  std::string over;
  std::string under; ///< may be empty
  bool atLeast;      ///< else at most
  double limit;
};

/// One row of the table: the same work done by several contenders.
class Work {
public:
  Work(std::string name, Unit unit) : name_(std::move(name)), unit_(unit) {}

  /// A contender that does the work once, on so many items, and says what that cost.
  void add(const std::string& contender, double items, std::function<double()> cost);
  /// A contender whose processor time is measured here, over as many calls as that takes.
  void addLoop(const std::string& contender, double items, std::function<void()> work);
  /// What must hold before anything is timed; throws where it does not.
  void setCheck(std::function<void()> check) { check_ = std::move(check); }
  Work& aimAtLeast(const std::string& over, const std::string& under, double limit) {
    aims_.push_back({over, under, true, limit});
    return *this;
  }
  Work& aimAtMost(const std::string& over, const std::string& under, double limit) {
    aims_.push_back({over, under, false, limit});
    return *this;
  }

  /// The cost of one item in one round: seconds, or whatever the unit's scale is made for.
  void record(const std::string& contender, double cost) { costs_[contender].push_back(cost); }

  /// A line for each aim, or one where there is none; nothing where nothing was measured.
  void print(std::ostream& out, const std::vector<std::string>& columns) const;

private:
  void runChecked(benchmark::State& state, const std::string& name, const std::function<void()>& body);
  [[nodiscard]] bool isMeasured(const Aim& aim) const;
  [[nodiscard]] double value(const Aim& aim) const;
  void printAim(std::ostream& out, const Aim& aim) const;
  [[nodiscard]] std::string figure(const std::string& contender) const;

  std::string name_;
  Unit unit_;
  std::function<void()> check_;
  std::vector<Aim> aims_;
  std::map<std::string, std::vector<double>> costs_; ///< by contender, one per round
};

/// Works whose contenders bear the same names, which head the columns.
class Table {
public:
  explicit Table(std::vector<std::string> columns) : columns_(std::move(columns)) {}

  Work& add(const std::string& name, Unit unit) { return works_.emplace_back(name, unit); }
  /// As Markdown.
  void print(std::ostream& out) const;

private:
  std::vector<std::string> columns_;
  std::deque<Work> works_; ///< a deque: the contenders refer to their works
};

/// Runs what was added, each contender once per round in turn; what failed is told on standard error, and false.
[[nodiscard]] bool runRounds(int rounds);

} // namespace LagomareBench
