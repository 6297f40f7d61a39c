include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK}")
if(PACKAGE)
  set(printed "${PACKAGE}")
else()
  run("Asking for flags" ${CMAKE_COMMAND} -E env "PKG_CONFIG_PATH=${PC_DIR}" "${PKG_CONFIG}" --cflags LumidexUtil)
endif()
# Qt's own headers are not ours to warn about.
string(REGEX REPLACE "-I([^ ]*qt5)" "-isystem \\1" printed "${printed}")
separate_arguments(package UNIX_COMMAND "${printed}")
separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS}")

file(GLOB_RECURSE headers RELATIVE "${HEADERS}" "${HEADERS}/*.h")
list(LENGTH headers count)
if(count EQUAL 0)
  message(FATAL_ERROR "No header is installed in ${HEADERS}")
endif()
foreach(header IN LISTS headers)
  # Twice: a header must bear that.
  file(WRITE "${WORK}/alone.cpp" "#include <${header}>\n#include <${header}>\n")
  execute_process(
    COMMAND "${CXX_COMPILER}" ${flags} ${package} -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror -fsyntax-only
      "${WORK}/alone.cpp"
    RESULT_VARIABLE result ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(SEND_ERROR "<${header}> does not compile alone\n${errors}")
  endif()
endforeach()
message(STATUS "${count} headers")
