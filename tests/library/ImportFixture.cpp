#include "ImportFixture.h"

#include "access/LagomareProjectManager.h"
#include "model/Calendar.h"

#include <sqlite3.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

const std::string database = "project.db";
const std::string recorder = "./recorder";
const std::string record = "queries.log";

void makeDatabase(const std::string& sql) {
  fs::remove(database);
  sqlite3* connection = nullptr;
  sqlite3_open(database.c_str(), &connection);
  sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr);
  const std::string fault = sqlite3_errcode(connection) == SQLITE_OK ? "" : sqlite3_errmsg(connection);
  sqlite3_close(connection);
  if (!fault.empty())
    throw std::runtime_error("the test's SQL: " + fault);
}

} // namespace

WorkingDirectoryTest::WorkingDirectoryTest() {
  std::string name = (fs::temp_directory_path() / "lagomare-test-XXXXXX").string();
  directory_ = mkdtemp(name.data());
  fs::current_path(directory_);
}

WorkingDirectoryTest::~WorkingDirectoryTest() {
  LagomareProjectManager::cleanInstance();
  fs::current_path(outside_);
  fs::remove_all(directory_);
}

void WorkingDirectoryTest::write(const std::string& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

std::string WorkingDirectoryTest::read(const std::string& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

SceneryProjectManagerRet ImportTest::import(const Dialect& dialect, const std::string& commonSql,
                                            const Progress& progress, const std::string& dialectSql) {
  makeDatabase(std::string("begin;") + commonTables + commonSql + ";" + dialect.tables + dialectSql + "; commit;");
  write(record, "");
  write(recorder,
        "#!/bin/sh\nprintf '%s|%s\\n' \"$2\" \"$3\" >>" + record + "\nexec '" LAGOMARE_QUERY_EXECUTABLE "' \"$@\"\n");
  fs::permissions(recorder, fs::perms::owner_all);
  return dialect.load(recorder, database, progress);
}

std::shared_ptr<Scenario> ImportTest::load(const Dialect& dialect, const std::string& commonSql,
                                           const std::string& dialectSql) {
  auto result = import(dialect, commonSql, {}, dialectSql);
  return result.scenario ? result.scenario : throw std::runtime_error(result.message);
}

std::vector<std::string> ImportTest::queries() {
  std::vector<std::string> queries;
  std::istringstream log(read(record));
  for (std::string line; std::getline(log, line);)
    queries.push_back(line);
  return queries;
}

std::vector<double> valuesOf(const Serie& serie) {
  std::vector<double> values;
  const Interval& interval = serie.getInterval();
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    values.push_back(serie.getValue(date));
  return values;
}

std::vector<double> valuesOf(const Element& element, SerieType type) {
  return valuesOf(*element.getSeriesInput()->find(type));
}
