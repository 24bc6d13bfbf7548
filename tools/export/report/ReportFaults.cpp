#include "tools/export/report/HtmlText.h"
#include "tools/export/report/NetworkDrawing.h"
#include "tools/export/report/ReportParts.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fmt/format.h>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

constexpr std::size_t listed = 50; ///< faults of a code, at most

const char* meaningOf(Severity severity) {
  constexpr std::array<const char*, 3> meanings{"the project cannot be imported",
                                                "imported otherwise than it is meant, or not at all",
                                                "imported as it stands, and looks wrong"};
  return meanings.at(static_cast<std::size_t>(severity));
}

using Faults = std::vector<const Fault*>;

/// "rows-out-of-order" as "Rows out of order".
std::string titleOf(std::string code) {
  std::replace(code.begin(), code.end(), '-', ' ');
  if (!code.empty() && code.front() >= 'a' && code.front() <= 'z')
    code.front() = static_cast<char>(code.front() - 'a' + 'A');
  return code;
}

std::string placeOf(const Fault& fault) {
  std::string place = fault.table;
  if (fault.row)
    place += fmt::format(", row {}", *fault.row) + (fault.rows > 1 ? fmt::format(" and {} more", fault.rows - 1) : "");
  return place + (fault.column.empty() ? "" : ", column " + fault.column);
}

/// Tells which element of the scenario a fault means, for a link to it.
class Elements {
public:
  explicit Elements(const Network& network) {
    for (const auto& node : network.nodes)
      add(*node);
    for (const auto& link : network.links)
      add(*link);
  }

  /// Name and id; a link where exactly one element has them.
  [[nodiscard]] std::string textOf(const Fault& fault) const {
    const std::string id = fault.id ? std::to_string(*fault.id) : "";
    const std::string text =
        htmlText(fault.element.empty() || id.empty() ? fault.element + id : fault.element + " (" + id + ")");
    const auto found = keys_.find({fault.id.value_or(0), fault.element});
    return fault.id && found != keys_.end() && !found->second.empty()
               ? fmt::format(R"(<a href="#{}">{}</a>)", found->second, text)
               : text;
  }

private:
  void add(const Element& element) {
    const auto [place, isNew] = keys_.try_emplace({element.bdId, plainText(element.getName())}, keyOf(element));
    if (!isNew)
      place->second.clear();
  }

  std::map<std::pair<std::uint32_t, std::string>, std::string> keys_; ///< by id and name; empty: several have them
};

void writeFault(FileWriter& out, const Fault& fault, const Elements& elements, bool saysRemedy) {
  out.write(fmt::format("<tr><td>{}<td>{}<td>{}{}\n", htmlText(placeOf(fault)), elements.textOf(fault),
                        htmlText(fault.message), saysRemedy ? " " + htmlText(fault.remedy) : ""));
}

void writeGroup(FileWriter& out, const Faults& faults, const Elements& elements) {
  const Fault& first = *faults.front();
  const char* const severity = nameOf(first.severity); // also a class of the page's style
  const bool isOneRemedy =
      std::all_of(faults.begin(), faults.end(), [&first](const Fault* fault) { return fault->remedy == first.remedy; });
  out.write(fmt::format("<details class=\"fault {}\"><summary><b>{}</b> <span>{}</span></summary>\n", severity,
                        htmlText(titleOf(first.code)), counted(faults.size(), severity)));
  if (isOneRemedy && !first.remedy.empty())
    out.write("<p>To mend: " + htmlText(first.remedy) + "</p>\n");
  out.write(
      "<table><thead><tr><th scope=\"col\">Place<th scope=\"col\">Element<th scope=\"col\">What is wrong</thead>\n"
      "<tbody>");
  for (std::size_t index = 0; index < std::min(faults.size(), listed); ++index)
    writeFault(out, *faults[index], elements, !isOneRemedy);
  out.write("</tbody></table>\n");
  if (faults.size() > listed)
    out.write(fmt::format("<p>{} more: <code>lagomare check --all</code> lists them.</p>\n", faults.size() - listed));
  out.write("</details>\n");
}

/// Grouped by severity and code, the worst first, the codes in the order in which they come.
std::vector<Faults> groupsOf(const std::vector<Fault>& faults) {
  std::vector<Faults> groups;
  std::map<std::pair<Severity, std::string>, std::size_t> known;
  for (const Fault& fault : faults) {
    const auto [place, isNew] = known.try_emplace({fault.severity, fault.code}, groups.size());
    if (isNew)
      groups.emplace_back();
    groups[place->second].push_back(&fault);
  }
  std::stable_sort(groups.begin(), groups.end(), [](const Faults& one, const Faults& other) {
    return one.front()->severity < other.front()->severity;
  });
  return groups;
}

} // namespace

void writeReportFaults(FileWriter& out, const std::optional<std::vector<Fault>>& faults, const Network& network) {
  if (!faults)
    return out.write("<p class=\"verdict unknown\">The project was not checked for faults.</p>\n");
  if (faults->empty())
    return out.write("<p class=\"verdict good\">The check found no faults.</p>\n");
  std::string counts;
  for (const Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    const auto count = std::count_if(faults->begin(), faults->end(),
                                     [severity](const Fault& fault) { return fault.severity == severity; });
    if (count != 0)
      counts += fmt::format("<li class=\"{}\"><b>{}</b> <span>{}</span></li>\n", nameOf(severity),
                            counted(static_cast<std::size_t>(count), nameOf(severity)), meaningOf(severity));
  }
  out.write("<ul class=\"verdict\">\n" + counts + "</ul>\n<div class=\"faults\">\n");
  const Elements elements(network);
  for (const Faults& group : groupsOf(*faults))
    writeGroup(out, group, elements);
  out.write("</div>\n");
}

} // namespace LagomareTools
