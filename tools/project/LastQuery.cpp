#include "tools/project/LastQuery.h"

#include "access/LagomareProjectManager.h"
#include "access/LineReader.h"
#include "model/StringUtils.h"
#include "tools/project/QueryLauncher.h"
#include "tools/system/Failure.h"
#include "tools/system/ReadFile.h"
#include "tools/system/Text.h"

#include <fstream>
#include <map>

namespace LagomareTools {

namespace {

/// The columns of the tables that are read with "select *".
const std::map<std::string, std::vector<std::string>> wholeTables{
    {"DefGerais", {"TipoSimul", "OptCalc", "NumEstHidr", "Duracao", "AnoIni", "MesIni"}},
    {"FrontEH", {"EstHidr", "Valor"}},
    {"Pontos", {"NumNo", "Nome", "Tipo", "X", "Y"}},
    {"Links", {"NumLnk", "Nome", "NoIni", "NoFim", "Tipo"}},
    {"LinksDados", {"Lnk", "Cmin", "Custo", "Coef"}},
    {"Res", {"Res", "VolMax", "VolMin", "VolIni"}},
    {"ResSubsist", {"Res", "Subsist"}},
    {"ResAVN", {"Res", "Area", "Volume", "Nivel"}},
    {"LgmFrontEH", {"EstHidr", "Valor"}},
    {"LgmResCAV", {"NumPto", "Cota", "Area", "Volume"}}};

/// The text between two others; empty where they do not follow each other.
std::string between(const std::string& text, const std::string& before, const std::string& after) {
  const std::size_t found = text.find(before);
  if (found == std::string::npos)
    return "";
  const std::size_t begin = found + before.size();
  const std::size_t end = text.find(after, begin);
  return end == std::string::npos ? "" : text.substr(begin, end - begin);
}

/// The script's one line is: executable "database" "sql" flag, with plain names in it.
std::string sqlOfScript() { return between(readFile(LagomareProjectManager::scriptFile), "\" \"", "\""); }

/// The names of a list of columns; FORMAT(name, pattern) is a date of that name.
std::vector<std::string> namesIn(std::string list) {
  std::vector<std::string> names;
  for (list += ", "; !list.empty();) {
    const std::string call = "FORMAT(";
    const bool isDate = list.compare(0, call.size(), call) == 0;
    const std::size_t begin = isDate ? call.size() : 0;
    names.push_back(list.substr(begin, list.find(',') - begin));
    list.erase(0, list.find(isDate ? "), " : ", ") + (isDate ? 3 : 2));
  }
  return names;
}

std::string replaceAll(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

std::string notAnswered(const Inputs& inputs) {
  const std::string complaint = lastQueryComplaint();
  return "the query executable " + inputs.executable.string() + " did not answer" +
         (complaint.empty() ? "" : ": " + excerpt(complaint));
}

} // namespace

LastQuery lastQuery() {
  LastQuery query;
  query.sql = sqlOfScript();
  query.table = between(query.sql + ' ', " from ", " ");
  const std::string list = between(query.sql, "select ", " from ");
  const auto known = wholeTables.find(query.table);
  if (list == "*" && known != wholeTables.end())
    query.columns = known->second;
  else if (list != "*" && !list.empty())
    query.columns = namesIn(list);
  return query;
}

std::string refusalOfLastQuery(const Inputs& inputs, const std::string& plainDatabase) {
  const std::string answer = firstLineOfAnswer();
  const std::string beginning = "error:";
  if (answer.compare(0, beginning.size(), beginning) != 0)
    return "";
  std::string reason = answer.substr(beginning.size());
  reason.erase(reason.find_last_not_of(". \r") + 1);
  reason.erase(0, reason.find_first_not_of(' '));
  if (reason.find(LagomareProjectManager::fileResultQuery) != std::string::npos)
    reason += " (the one here is under TMPDIR)";
  return replaceAll(reason == noAnswer ? notAnswered(inputs) : reason, plainDatabase, inputs.projectName);
}

std::string firstLineOfAnswer() {
  std::ifstream answer(LagomareProjectManager::fileResultQuery, std::ios::binary);
  std::string line;
  std::getline(answer, line);
  return line;
}

std::size_t findRow(std::optional<std::uint32_t> id, std::size_t column, const std::string& text) {
  std::ifstream answer(LagomareProjectManager::fileResultQuery, std::ios::binary);
  Lagomare::LineReader lines(answer);
  std::size_t number = 0;
  for (std::string_view line; lines.next(line);) {
    const std::vector<std::string> fields = StringUtils::split(std::string(line), ' ');
    if (id && fields.front() != std::to_string(*id))
      continue;
    ++number;
    if (column < fields.size() && fields[column] == text)
      return number;
  }
  return 0;
}

void requireLaunched() {
  if (numOfLaunches() != LagomareProjectManager::getNumOfQueries())
    throw Failure("a query could not be started, or its launcher was killed; look for a full disk under TMPDIR, for "
                  "what removes files there, and for limits of memory and of the number of processes");
}

} // namespace LagomareTools
