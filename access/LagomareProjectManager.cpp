#include "access/LagomareProjectManager.h"

#include "access/Answer.h"
#include "access/Interpreter.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <utility>

const std::string LagomareProjectManager::scriptFile = "script.bat";
const std::string LagomareProjectManager::fileResultQuery = "query-result.txt";
const std::string LagomareProjectManager::elementBdIdField1 = "NumPto";
const std::string LagomareProjectManager::elementBdIdField2 = "NumPonto";
LagomareProjectManager* LagomareProjectManager::lagomareProjectManager = nullptr;

LagomareProjectManager* LagomareProjectManager::getInstance(const std::string& databaseFilename) {
  if (lagomareProjectManager == nullptr)
    lagomareProjectManager = new LagomareProjectManager(databaseFilename);
  return lagomareProjectManager;
}

LagomareProjectManager* LagomareProjectManager::getInstance() {
  if (lagomareProjectManager == nullptr)
    throw std::runtime_error("LagomareProjectManager::getInstance(): database filename not initialized");
  return lagomareProjectManager;
}

void LagomareProjectManager::cleanInstance() {
  delete lagomareProjectManager;
  lagomareProjectManager = nullptr;
}

LagomareProjectManager::LagomareProjectManager(std::string databaseFile) : databaseFilename(std::move(databaseFile)) {}

LagomareProjectManager::~LagomareProjectManager() {
  if (source_ != nullptr) // the files of these names are not the channel's
    return;
  static_cast<void>(std::remove(scriptFile.c_str())); // it may never have been written
  static_cast<void>(std::remove(fileResultQuery.c_str()));
}

void LagomareProjectManager::setApiExecutable(const std::string& path) { apiExecutable = path; }

void LagomareProjectManager::buildScript(const std::string& sql, bool flag) const {
  std::ofstream script(scriptFile, std::ios::trunc);
  script << apiExecutable << " \"" << databaseFilename << "\" \"" << sql << "\" " << (flag ? '1' : '0') << '\n';
}

void LagomareProjectManager::setSource(std::shared_ptr<Lagomare::QuerySource> querySource) {
  source_ = std::move(querySource);
}

QueryResult LagomareProjectManager::query(const std::string& sql, bool flag) const {
  return Lagomare::parseRows(*ask(sql, flag));
}

Lagomare::ValueResult LagomareProjectManager::queryValues(const std::string& sql, bool flag) const {
  return Lagomare::parseValues(*ask(sql, flag));
}

std::unique_ptr<std::istream> LagomareProjectManager::ask(const std::string& sql, bool flag) const {
  if (source_ == nullptr)
    return runScript(sql, flag);
  auto answer = source_->ask(sql, flag);
  if (answer == nullptr || !answer->good()) // a file that cannot be opened would pass for an empty table
    throw std::runtime_error("LagomareProjectManager::query: the source gave no answer that can be read: " + sql);
  answer->exceptions(std::ios::badbit); // a stream by itself would take its buffer's exception for the end
  return answer;
}

std::unique_ptr<std::istream> LagomareProjectManager::runScript(const std::string& sql, bool flag) const {
  buildScript(sql, flag);
  Lagomare::runScript(scriptFile);
  return std::make_unique<std::ifstream>(fileResultQuery, std::ios::binary);
}
