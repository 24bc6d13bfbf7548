# What find_package(telu-lagomare-project) and pkg-config find.
include(CMakePackageConfigHelpers)

install(TARGETS telu-qt telu-lagomare-project EXPORT telu-lagomare-project-targets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY core/model access loader elements DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/telu-lagomare-project"
  FILES_MATCHING PATTERN "*.h")
install(FILES "${PROJECT_BINARY_DIR}/include/telu_qt_export.h" "${PROJECT_BINARY_DIR}/include/lagomare_export.h"
  DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/telu-lagomare-project")

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/telu-lagomare-project")
install(EXPORT telu-lagomare-project-targets NAMESPACE telu-lagomare-project:: DESTINATION "${package_dir}")
configure_package_config_file(cmake/telu-lagomare-projectConfig.cmake.in
  "${PROJECT_BINARY_DIR}/telu-lagomare-projectConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/telu-lagomare-projectConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/telu-lagomare-projectConfig.cmake"
  "${PROJECT_BINARY_DIR}/telu-lagomare-projectConfigVersion.cmake"
  DESTINATION "${package_dir}")

# The installed tree can be moved.
file(RELATIVE_PATH PKGCONFIG_PREFIX
  "${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
if(NOT BUILD_SHARED_LIBS)
  set(PKGCONFIG_STATIC_CFLAGS "-DTELU_QT_STATIC_DEFINE -DLAGOMARE_STATIC_DEFINE")
endif()
configure_file(cmake/telu-lagomare-project.pc.in "${PROJECT_BINARY_DIR}/telu-lagomare-project.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/telu-lagomare-project.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
