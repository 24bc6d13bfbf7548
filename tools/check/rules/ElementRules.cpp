#include "access/Numbers.h"
#include "tools/check/rules/Conversions.h"
#include "tools/check/rules/Rules.h"
#include "tools/check/rules/ValueRules.h"
#include "tools/check/tables/TwoWayPairs.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace LagomareTools {

namespace {

std::optional<Kind> kindOf(TableRows& rows) {
  const LegacyTable& table = rows.table();
  const std::size_t column = table.columnOf(Type::code);
  if (column == table.columns.size())
    return table.owners.front();
  const auto text = rows.at(column).value_or("");
  const auto known =
      std::find_if(kindCodes.begin(), kindCodes.end(), [text](const KindCode& code) { return text == code.text; });
  if (known != kindCodes.end())
    return known->kind;
  rows.add(
      Code::unknownKind, rows.place(column), [&] { return quoted(text) + " is no kind of node"; },
      std::hash<std::string_view>()(text));
  return std::nullopt;
}

/// What a message calls an element: "the reservoir in row 3 of Pontos (Sobradinho)".
std::string described(const ElementRow& element) {
  return std::string("the ") + nameOf(element.kind) + " in row " + std::to_string(element.row) + " of " +
         element.table + (element.name.empty() ? "" : " (" + element.name + ')');
}

void reportRepeated(TableRows& rows, const ElementRow& first) {
  rows.add(Code::repeatedId, rows.place(), [&] { return described(first) + " has the same id, and its row counts"; });
}

void reportWrapped(TableRows& rows, std::uint32_t id) {
  if (rows.at(idColumn)->find('-') < Lagomare::lengthOfUnsigned(*rows.at(idColumn)) && id != 0)
    rows.add(Code::idWrapped, rows.place(idColumn),
             [&] { return quoted(*rows.at(idColumn)) + " comes in as " + std::to_string(id); });
}

std::optional<double> numberOf(TableRows& rows, Meaning meaning) {
  const std::size_t column = rows.table().columnOf(meaning);
  return column < rows.table().columns.size() ? readNumber(rows, column) : std::nullopt;
}

/// Where the table of the nodes holds the volumes too.
void readReservoir(TableRows& rows, std::uint32_t id, Elements& elements) {
  const std::size_t flag = rows.table().columnOf(Meaning::systemFlag);
  if (flag == rows.table().columns.size())
    return;
  if (const auto volumes = readVolumes(rows))
    elements.volumes.emplace(id, *volumes);
  static_cast<void>(readWhole(rows, flag));
}

void readNode(TableRows& rows, Elements& elements) {
  const auto kind = kindOf(rows);
  const auto id = kind ? readId(rows) : std::nullopt;
  if (!id)
    return;
  const std::string name = plainText(rows.at(rows.table().columnOf(Type::text)).value_or(""));
  NodeRow node{{*kind, rows.table().name, rows.number(), name}, std::nullopt, std::nullopt};
  const auto [known, isNew] = elements.nodes.try_emplace(*id, node);
  rows.setOwner(id, known->second.name);
  if (!isNew && known->second.kind == *kind)
    return reportRepeated(rows, known->second);
  if (!isNew)
    return rows.add(Code::idOfTwoNodes, rows.place(), [&, &other = known->second] {
      return std::string("a ") + nameOf(*kind) + " has the id of " + described(other);
    });
  rows.take();
  reportWrapped(rows, *id);
  known->second.utmX = numberOf(rows, Meaning::easting);
  known->second.utmY = numberOf(rows, Meaning::northing);
  readReservoir(rows, *id, elements);
}

void readLink(TableRows& rows, std::map<std::uint32_t, LinkRow>& links) {
  const auto id = readId(rows);
  if (!id)
    return;
  const LegacyTable& table = rows.table();
  LinkRow link{{Kind::link, table.name, rows.number(), plainText(rows.at(table.columnOf(Type::text)).value_or(""))}};
  const auto [known, isNew] = links.try_emplace(*id, link);
  rows.setOwner(id, known->second.name);
  if (!isNew)
    return reportRepeated(rows, known->second);
  rows.take();
  reportWrapped(rows, *id);
  known->second.upstream = readWhole(rows, table.columnOf(Meaning::upstream));
  known->second.downstream = readWhole(rows, table.columnOf(Meaning::downstream));
  if (const auto loss = numberOf(rows, Meaning::loss))
    checkValue(rows, table.columnOf(Meaning::loss), *loss);
}

void reportUnknownEnds(TableRows& rows, const Elements& elements) {
  const auto check = [&](const auto& entry, Meaning meaning, const std::optional<std::uint32_t>& end) {
    if (!end || elements.nodes.count(*end) != 0)
      return;
    const std::string text = std::to_string(*end);
    Place place = placeOf(entry.second, entry.first);
    place.column = rows.table().columns[rows.table().columnOf(meaning)].name;
    place.value = text;
    rows.add(Code::linkEndUnknown, place, [&text] { return "there is no node " + text; });
  };
  for (const auto& entry : elements.links) {
    check(entry, Meaning::upstream, entry.second.upstream);
    check(entry, Meaning::downstream, entry.second.downstream);
  }
}

void reportPartners(TableRows& rows, Elements& elements) {
  for (const auto& [id, kept] : findTwoWayPartners(elements)) {
    LinkRow& link = elements.links.at(id);
    link.isPartner = true;
    rows.drop();
    rows.add(Code::twoWayPartner, placeOf(link, id), [&, keptId = kept] {
      return "it comes in as the other direction of link " + std::to_string(keptId) + " (" +
             elements.links.at(keptId).name + "), whose name, limit and loss stay";
    });
  }
}

} // namespace

void checkNodes(Inspection& inspection, const LegacyTable& table) {
  TableRows rows(inspection, table);
  while (rows.next())
    readNode(rows, inspection.elements);
  inspection.elements.areNodesKnown = inspection.elements.areNodesKnown && rows.isRead();
}

void checkLinks(Inspection& inspection, const LegacyTable& table) {
  TableRows rows(inspection, table);
  while (rows.next())
    readLink(rows, inspection.elements.links);
  inspection.elements.areLinksKnown = rows.isRead();
  if (!rows.isRead())
    return;
  if (inspection.elements.areNodesKnown)
    reportUnknownEnds(rows, inspection.elements);
  reportPartners(rows, inspection.elements);
}

} // namespace LagomareTools
