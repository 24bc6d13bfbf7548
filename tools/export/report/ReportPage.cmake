# The report's page, made into a C++ source of the target lagomare-export.
set(d3_modules color dispatch ease timer interpolate selection drag transition zoom) # each after those it needs
set(page_scripts "")
set(page_licences "")

# report_file(VARIABLE FOLDER NAME PACKAGE): appends a file of a Debian package to the list of that name.
function(report_file list folder name package)
  string(MAKE_C_IDENTIFIER "LAGOMARE_${package}_${name}" variable)
  find_file(${variable} NAMES "${name}" PATHS "/usr/share/${folder}" "/usr/local/share/${folder}" NO_DEFAULT_PATH
    DOC "Part of the report's page, from the Debian package ${package}")
  mark_as_advanced(${variable})
  if(NOT ${variable})
    message(FATAL_ERROR "The report needs ${name} of the Debian package ${package} (or set ${variable})")
  endif()
  set(${list} ${${list}} "${${variable}}" PARENT_SCOPE)
endfunction()

foreach(module IN LISTS d3_modules)
  report_file(page_scripts nodejs/d3-${module}/dist d3-${module}.min.js node-d3-${module})
  report_file(page_licences doc/node-d3-${module} copyright node-d3-${module})
endforeach()
report_file(page_scripts javascript/dygraphs dygraph.min.js libjs-dygraphs)
report_file(page_licences doc/libjs-dygraphs copyright libjs-dygraphs)
report_file(page_styles javascript/dygraphs dygraph.min.css libjs-dygraphs)

set(page "${CMAKE_CURRENT_LIST_DIR}/page")
list(APPEND page_styles "${page}/report.css")
list(APPEND page_scripts "${page}/numbers.js" "${page}/network.js" "${page}/tables.js" "${page}/plots.js"
  "${page}/chosen.js" "${page}/report.js")
set(page_source "${CMAKE_CURRENT_BINARY_DIR}/ReportPage.cpp")

add_custom_command(OUTPUT "${page_source}"
  COMMAND "${CMAKE_COMMAND}" "-DTEMPLATE=${page}/report.html" "-DSTYLES=${page_styles}" "-DSCRIPTS=${page_scripts}"
    "-DLICENCES=${page_licences}" "-DVERSION=${PROJECT_VERSION}" "-DOUTPUT=${page_source}"
    -P "${CMAKE_CURRENT_LIST_DIR}/MakePage.cmake"
  DEPENDS "${CMAKE_CURRENT_LIST_DIR}/MakePage.cmake" "${page}/report.html" ${page_styles} ${page_scripts}
    ${page_licences}
  COMMENT "Making the report's page"
  VERBATIM)
target_sources(lagomare-export PRIVATE "${page_source}")
