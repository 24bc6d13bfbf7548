# The import library. It stands on telu-qt and the standard library alone.
add_library(telu-lagomare-project
  access/Answer.cpp
  access/Interpreter.cpp
  access/FieldError.cpp
  access/Fields.cpp
  access/LagomareProjectManager.cpp
  access/LineReader.cpp
  access/Numbers.cpp
  access/QueryResult.cpp
  access/QuerySource.cpp
  access/ValueColumn.cpp
  elements/common/Demands.cpp
  elements/common/Elements.cpp
  elements/common/Links.cpp
  elements/common/Nodes.cpp
  elements/common/Reservoirs.cpp
  elements/common/Series.cpp
  elements/common/States.cpp
  elements/common/Steps.cpp
  elements/2010/DemandProjectManager.cpp
  elements/2010/ElementBdIdFactory.cpp
  elements/2010/ElementProjectManager.cpp
  elements/2010/ElementProjectManagerFactory.cpp
  elements/2010/JunctionProjectManager.cpp
  elements/2010/LinkProjectManager.cpp
  elements/2010/NodeProjectManager.cpp
  elements/2010/ReservoirProjectManager.cpp
  elements/2010/SerieProjectManager.cpp
  elements/2013/DemandProjectManager.cpp
  elements/2013/ElementBdIdFactory.cpp
  elements/2013/ElementProjectManager.cpp
  elements/2013/ElementProjectManagerFactory.cpp
  elements/2013/JunctionProjectManager.cpp
  elements/2013/LinkProjectManager.cpp
  elements/2013/NodeProjectManager.cpp
  elements/2013/ReservoirProjectManager.cpp
  elements/2013/SerieProjectManager.cpp
  loader/2010/SceneryProjectManager.cpp
  loader/2013/SceneryProjectManager.cpp
  loader/common/ScenarioParts.cpp
  loader/common/SizeGuard.cpp
  loader/BidirectionalLinks.cpp
  loader/LagomareProjectLoader.cpp
)
generate_export_header(telu-lagomare-project
  BASE_NAME LAGOMARE
  EXPORT_FILE_NAME "${PROJECT_BINARY_DIR}/include/lagomare_export.h")
target_include_directories(telu-lagomare-project PUBLIC
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR};${PROJECT_BINARY_DIR}/include>"
  "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/telu-lagomare-project>")
target_link_libraries(telu-lagomare-project
  PUBLIC telu-qt
  PRIVATE $<BUILD_INTERFACE:lagomare-compiler>)
set_target_properties(telu-lagomare-project PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
target_compile_features(telu-lagomare-project PUBLIC cxx_std_17)
