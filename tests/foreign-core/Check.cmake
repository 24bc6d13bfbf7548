# Checks that a host with a core of its own gets no header of the stand-alone core, whatever kind of target its core is, and
# that what its program prints of both examples is what the program OWN prints, which stands on the stand-alone core. Builds
# in BINARY; QUERY is the query executable; GENERATOR and COMPILER are those of the build.
cmake_minimum_required(VERSION 3.22)
set(here "${CMAKE_CURRENT_LIST_DIR}")

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

foreach(kind IN ITEMS ordinary system imported)
  run(${CMAKE_COMMAND} -S ${here} -B ${BINARY}/${kind} -G ${GENERATOR} -DKIND=${kind} -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DLAGOMARE_WERROR=ON)
  file(READ "${BINARY}/${kind}/compile_commands.json" commands)
  string(REGEX MATCHALL "-(I|isystem )(\\\\\"[^\"\\\\]+|[^ \"\\\\]+)" folders "${commands}") # in quotes if it has a blank
  list(TRANSFORM folders REPLACE "^-(I|isystem )(\\\\\")?" "")
  list(REMOVE_DUPLICATES folders)
  set(cores "")
  foreach(folder IN LISTS folders)
    if(EXISTS "${folder}/model")
      list(APPEND cores "${folder}")
    endif()
  endforeach()
  if(NOT cores STREQUAL "${BINARY}/${kind}/foreign")
    message(FATAL_ERROR "with a core target of the kind ${kind} these folders are searched for model/: ${cores}")
  endif()
endforeach()

# With one folder alone to find headers in, one kind stands for the others.
set(BINARY "${BINARY}/imported")
run(${CMAKE_COMMAND} --build ${BINARY})

file(CREATE_LINK "${QUERY}" "${BINARY}/query" SYMBOLIC)
foreach(dialect IN ITEMS 2010 2013)
  file(REMOVE "${BINARY}/${dialect}.db")
  execute_process(COMMAND sqlite3 -bail "${BINARY}/${dialect}.db" COMMAND_ERROR_IS_FATAL ANY
    INPUT_FILE "${here}/../../examples/sao-francisco-${dialect}.sql")
  foreach(core IN ITEMS own foreign)
    set(program "${BINARY}/figures")
    if(core STREQUAL "own")
      set(program "${OWN}")
    endif()
    execute_process(COMMAND "${program}" ${dialect} ./query ${dialect}.db WORKING_DIRECTORY "${BINARY}"
      OUTPUT_VARIABLE ${core} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  if(NOT own MATCHES "sucesso.*and back" OR NOT own STREQUAL foreign)
    message(FATAL_ERROR "with the stand-alone core:\n${own}\nwith the host's:\n${foreign}")
  endif()
endforeach()
