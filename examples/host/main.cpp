#include "loader/ImportStatus.h"
#include "loader/LagomareProjectLoader.h"
#include "model/Element.h"
#include "model/Scenario.h"

#include <exception>
#include <iostream>

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::cerr << "usage: host QUERY-EXECUTABLE PROJECT (2013 dialect; paths without blanks)\n";
    return 2;
  }
  try {
    const auto result = LagomareProjectLoader::load2013(argv[1], argv[2], [](long done, long all) {
      std::cerr << "step " << done << " of " << all << '\n';
      return true; // false stops the import
    });
    std::cout << result.message << '\n';
    if (result.scenario)
      for (const auto& element : result.scenario->getElements())
        std::cout << element->getElementType()->name << ' ' << element->bdId << ": " << element->getName() << '\n';
    return result.status == importSucceeded.code ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "the project cannot be read: " << error.what() << '\n';
    return 1;
  }
}
