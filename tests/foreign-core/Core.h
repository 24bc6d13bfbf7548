#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

// A host's core library, as small as the import lets it be: other classes than those of core/model behind the same
// names, and nothing const that need not be. Every header of model/ that the import includes stands for this one file.
// What is only asked by Figures.cpp is marked.

// Names of the host's own.
struct ElementMap {};
struct FieldError {};
struct Layout {};
struct Row {};
struct ValueColumn {};

enum ElementType : int {};
enum HydrologicalStateType : int {};
enum SerieType : int {};
enum Unit : int {};

template <typename T>
struct Enum {
  int id;
  std::string name;
};
struct EnumElementType : Enum<ElementType> {
  char code;
};
struct EnumPeriodicity : Enum<Unit> {};
struct MonthlyType : EnumPeriodicity {
  MonthlyType() : EnumPeriodicity{{1, "Mensal"}} {}
};
struct DefaultHydrologicalType : Enum<HydrologicalStateType> {
  DefaultHydrologicalType() : Enum{1, "Padrão"} {}
};

inline const std::set<ElementType> reservoirTypes{ElementType(0)};
inline const std::set<ElementType> reservoirAndDemandTypes{ElementType(0), ElementType(2), ElementType(3),
                                                           ElementType(4), ElementType(5), ElementType(6)};

/// Counts its days one by one.
class Date {
public:
  Date(unsigned year, unsigned char month, unsigned char day) : year_(year), month_(month), day_(day) {}
  static Date fromString(const std::string& text, const std::string& /*"%d/%m/%Y"*/) {
    const auto number = [&text](std::size_t at, std::size_t length) { return std::stoul(text.substr(at, length)); };
    return {static_cast<unsigned>(number(6, 4)), static_cast<unsigned char>(number(3, 2)),
            static_cast<unsigned char>(number(0, 2))};
  }
  unsigned getYear() { return year_; }
  unsigned getMonth() { return month_; }
  void setYear(unsigned year) { year_ = year; }
  void setDay(unsigned day, unsigned month, unsigned year) { *this = Date(year, month & 15U, day & 31U); }
  Date& operator--() {
    if (--day_ == 0) {
      if (--month_ == 0) {
        --year_;
        month_ = 12;
      }
      day_ = length();
    }
    return *this;
  }
  Date& operator+=(const unsigned& days) {
    for (unsigned day = 0; day < days; ++day)
      if (++day_ > length()) {
        day_ = 1;
        month_ = month_ % 12 + 1;
        year_ += month_ == 1 ? 1 : 0;
      }
    return *this;
  }
  bool operator<=(const Date& other) const {
    return std::tie(year_, month_, day_) <= std::tie(other.year_, other.month_, other.day_);
  }
  bool operator<(const Date& other) const { return !(other <= *this); }

private:
  unsigned length() const {
    const bool isLeap = year_ % 4 == 0 && (year_ % 100 != 0 || year_ % 400 == 0);
    return month_ == 2 ? (isLeap ? 29 : 28) : month_ == 4 || month_ == 6 || month_ == 9 || month_ == 11 ? 30 : 31;
  }

  unsigned year_, month_, day_;
};

class Interval {
public:
  Interval() : Interval(Date(2, 1, 1), Date(1, 1, 1), MonthlyType()) {}
  Interval(const Date& begin, const Date& end, const EnumPeriodicity& /*monthly*/) : begin_(begin), end_(end) {}
  Date getBegin() const { return begin_; }
  Date getEnd() const { return end_; }

private:
  Date begin_, end_;
};

struct Calendar {
  static unsigned incInterval(const Date& date, const Interval& /*monthly*/) {
    Date next = date;
    unsigned days = 0;
    do {
      next += 1;
      ++days;
    } while (next.getMonth() == Date(date).getMonth());
    return days;
  }
};

/// Keeps a value per date.
class Serie {
public:
  explicit Serie(int kind) : kind_{kind, ""} {}
  Enum<SerieType> getSerieType() { return kind_; }
  Interval getInterval() const { return interval_; } // for Figures.cpp
  void setInterval(const Interval& interval) { interval_ = interval; }
  double getValue(const Date& date) const { return values_.count(date) == 0 ? 0.0 : values_.at(date); }
  void setValue(const Date& date, double value) { values_[date] = value; }
  void fill(double value) { fill(value, interval_); }
  void fill(double value, const Interval& interval) {
    interval_ = interval;
    for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
      setValue(date, value);
  }

private:
  Enum<SerieType> kind_;
  Interval interval_;
  std::map<Date, double> values_;
};

class Element {
public:
  Element(int id, const char* name, std::vector<int> serieKinds)
      : kind_(std::make_shared<EnumElementType>(EnumElementType{{id, name}, ' '})) {
    for (const int kind : serieKinds)
      series_.push_back(std::make_shared<Serie>(kind));
  }
  virtual ~Element() = default;
  std::string getName() { return name_; }
  void setName(const std::string& name) { name_ = name; }
  std::shared_ptr<EnumElementType> getElementType() { return kind_; }
  std::vector<std::shared_ptr<Serie>> getVectorOfSeries(unsigned /*window*/) { return series_; }

  unsigned bdId = 0;

private:
  std::string name_;
  std::shared_ptr<EnumElementType> kind_;
  std::vector<std::shared_ptr<Serie>> series_;
};

class Node;

class Link : public Element {
public:
  using Element::Element;
  void setIsBidirectional(bool isBidirectional) { isBidirectional_ = isBidirectional; }
  bool getIsBidirectional() { return isBidirectional_; } // for Figures.cpp

  std::weak_ptr<Node> upstream, downstream;

private:
  bool isBidirectional_ = false;
};

class Node : public Element {
public:
  using Element::Element;
  double getX() { return x_; }
  double getY() { return y_; }
  void setX(double x) { x_ = x; }
  void setY(double y) { y_ = y; }
  void addUpstream(const std::shared_ptr<Link>&) {}
  virtual void addDownstream(const std::shared_ptr<Link>& link) { downstream_[link->bdId] = link; }
  void removeDownstream(unsigned id) { downstream_.erase(id); }
  std::vector<std::shared_ptr<Link>> getDownstreamLinks() const {
    std::vector<std::shared_ptr<Link>> links;
    for (const auto& entry : downstream_)
      links.push_back(entry.second);
    return links;
  }

private:
  double x_ = 0, y_ = 0;
  std::map<unsigned, std::shared_ptr<Link>> downstream_;
};

struct Junction : Node {
  Junction() : Node(7, "Junção", {2}) {}
};
struct Demand : Node {
  Demand(int id, const char* name) : Node(id, name, {5, 2}) {}
};

struct ReservoirInfo {
  double initialVolume = 0, minimumVolume = 0, maximumVolume = 0;
  std::vector<std::vector<double>> areaVolumeCurve;
  bool volumeFlag = true;
};
class Reservoir : public Node {
public:
  Reservoir() : Node(0, "Reservatório", {3, 2, 1, 0}) {}
  ReservoirInfo getReservoirInfo() { return info_; }
  void setReservoirInfo(const ReservoirInfo& info) { info_ = info; }

private:
  ReservoirInfo info_;
};

struct ElementFactory {
  static std::shared_ptr<Element> make(ElementType type) {
    switch (static_cast<int>(type)) {
    case 0:
      return std::make_shared<Reservoir>();
    case 2:
      return std::make_shared<Demand>(2, "Demanda humana");
    case 6:
      return std::make_shared<Demand>(6, "Dreno");
    case 7:
      return std::make_shared<Junction>();
    default:
      return std::make_shared<Link>(11, "Trecho natural", std::vector{42, 7});
    }
  }
};

struct Settings {
  virtual ~Settings() = default;
};
class PrioritySettings : public Settings {
public:
  int priority = 0;
  explicit PrioritySettings(unsigned states) {
    for (unsigned state = 0; state < states; ++state)
      series_.emplace_back(0U, std::make_shared<Serie>(-1));
  }
  std::vector<std::pair<unsigned, std::shared_ptr<Serie>>> getPrioritySeries() { return series_; }
  void setPriorityOfPairPrioritySerie(unsigned value, unsigned index) { series_.at(index).first = value; }

private:
  std::vector<std::pair<unsigned, std::shared_ptr<Serie>>> series_;
};
struct PriorityDemandSettings : PrioritySettings {
  using PrioritySettings::PrioritySettings;
};
class PriorityReservoirSettings : public PrioritySettings {
public:
  using PrioritySettings::PrioritySettings;
  void setIsHydrologicalStateSystem(bool counts) { counts_ = counts; }
  bool getIsHydrologicalStateSystem() { return counts_; } // for Figures.cpp

private:
  bool counts_ = false;
};
class SettingsManager {
public:
  std::shared_ptr<Settings> getSettings(unsigned id) const {
    return settings_.count(id) == 0 ? nullptr : settings_.at(id);
  }
  void set(unsigned id, std::shared_ptr<Settings> settings) { settings_[id] = std::move(settings); }

private:
  std::map<unsigned, std::shared_ptr<Settings>> settings_;
};

struct ExecutionMethod {
  virtual ~ExecutionMethod() = default;
};
struct ExecutionContinuous : ExecutionMethod {};

class HydrologicalStateConfiguration {
public:
  Enum<HydrologicalStateType> getCurrentHydrologicalStateType() { return type_; }
  void setCurrentHydrologicalStateType(Enum<HydrologicalStateType> type) { type_ = std::move(type); }
  void setXValues(const std::vector<double>& boundaries) { states_ = static_cast<unsigned>(boundaries.size()) + 1; }
  unsigned getNumOfStates() { return states_; }

private:
  Enum<HydrologicalStateType> type_{0, "Sem"};
  unsigned states_ = 0;
};

class Scenario {
public:
  Scenario(const std::shared_ptr<ExecutionMethod>&, unsigned /*id*/, const Interval& interval,
           const std::string& /*name*/)
      : interval_(interval) {}
  virtual ~Scenario() = default;
  Interval getInterval() const { return interval_; }
  SettingsManager& getSettingsManager() { return settings_; }
  virtual void addLink(const std::shared_ptr<Link>& link, unsigned /*window*/) { links[link->bdId] = link; }
  virtual void addNode(const std::shared_ptr<Node>& node, unsigned /*window*/, unsigned id) { nodes[id] = node; }
  std::shared_ptr<Element> getElement(unsigned id) const {
    const auto node = nodes.find(id);
    const auto link = links.find(id);
    if (node != nodes.end())
      return node->second;
    return link == links.end() ? nullptr : link->second;
  }
  std::vector<std::shared_ptr<Element>> getElements() const {
    std::vector<std::shared_ptr<Element>> elements;
    for (const auto& entry : links)
      elements.push_back(entry.second);
    for (const auto& entry : nodes)
      elements.push_back(entry.second);
    return elements;
  }

  std::map<unsigned, std::shared_ptr<Link>> links;
  std::map<unsigned, std::shared_ptr<Node>> nodes;

private:
  Interval interval_;
  SettingsManager settings_;
};
class PriorityScenario : public Scenario {
public:
  using Scenario::Scenario;
  std::shared_ptr<HydrologicalStateConfiguration> getHydrologicalStateConfiguration() { return states_; }
  void addNode(const std::shared_ptr<Node>& node, unsigned window, unsigned id) override {
    Scenario::addNode(node, window, id);
    if (std::dynamic_pointer_cast<Reservoir>(node))
      getSettingsManager().set(id, std::make_shared<PriorityReservoirSettings>(states_->getNumOfStates()));
    else if (std::dynamic_pointer_cast<Demand>(node))
      getSettingsManager().set(id, std::make_shared<PriorityDemandSettings>(states_->getNumOfStates()));
  }

private:
  std::shared_ptr<HydrologicalStateConfiguration> states_ = std::make_shared<HydrologicalStateConfiguration>();
};
struct ScenarioManager {
  inline static unsigned instance = 1;
};

struct ElementsFilter {
  static std::vector<std::shared_ptr<Element>> filterByType(const std::vector<std::shared_ptr<Element>>& elements,
                                                            const std::set<ElementType>& types) {
    std::vector<std::shared_ptr<Element>> found;
    for (const auto& element : elements)
      if (types.count(ElementType(element->getElementType()->id)) != 0)
        found.push_back(element);
    return found;
  }
};
/// Changes a link in its place.
struct CoreServiceManager {
  static void deleteElementNoDatabase(std::shared_ptr<Scenario> scenario, std::shared_ptr<Element> element) {
    scenario->links.erase(element->bdId);
    std::dynamic_pointer_cast<Link>(element)->upstream.lock()->removeDownstream(element->bdId);
  }
  static void changeLinkTypeNoDatabase(std::shared_ptr<Link> link, ElementType type, std::shared_ptr<Scenario>) {
    link->getElementType()->id = type;
    link->getElementType()->name = "Trecho artificial";
  }
};

class TeluCoreProgressBar {
public:
  struct ProgressCancelException : std::exception {};
  TeluCoreProgressBar(unsigned start, unsigned end, std::function<bool(long, long)> callback)
      : done_(start), end_(end), callback_(std::move(callback)) {}
  bool update() { return !callback_ || callback_(++done_, end_); }

private:
  long done_, end_;
  std::function<bool(long, long)> callback_;
};

struct StringUtils {
  static std::vector<std::string> split(const std::string& text, const char& separator) {
    std::vector<std::string> fields(1);
    for (const char c : text)
      if (c == separator)
        fields.emplace_back();
      else
        fields.back() += c;
    return fields;
  }
};
struct NumericalUtils {
  static double subtractDoubles(const double& a, const double& b, const double& tolerance) {
    return a - b < tolerance && b - a < tolerance ? 0.0 : a - b;
  }
};
/// No conversion: positions are not compared.
struct TeluUtmDegreeConversion {
  static std::pair<double, double> utmToDegree(double x, double y) { return {x, y}; }
};
