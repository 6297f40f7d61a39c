# Makes the project that cases/<CASE>.cmake describes and compares what becomes of it with what the case expects.
#
# A case calls room(<name> [HEADER <file>] [INCLUDES <header>] <arguments of lumidex_room>) for each room in the order of
# declaration, and sets one of
#   ACCEPTED  ON: the project configures and builds
#   REFUSED   the text of the error that stops the configuration
#   UNBUILT   the text of the error that stops the compiler

set(ACCEPTED OFF)
set(REFUSED "")
set(UNBUILT "")
set(rooms "")

function(room name)
  cmake_parse_arguments(ROOM "" "HEADER;INCLUDES" "" ${ARGN})
  set(folder "${WORK}/source/${name}")
  set(source "int RoomOf${name}() { return 0; }\n")
  if(ROOM_INCLUDES)
    string(PREPEND source "#include <${ROOM_INCLUDES}>\n")
  endif()
  list(FIND ROOM_UNPARSED_ARGUMENTS PROGRAM program)
  if(NOT program EQUAL -1)
    string(APPEND source "int main() { return RoomOf${name}(); }\n")
  endif()
  file(WRITE "${folder}/Room.cpp" "${source}")
  if(ROOM_HEADER)
    file(WRITE "${folder}/include/${ROOM_HEADER}" "#pragma once\n")
  endif()
  list(JOIN ROOM_UNPARSED_ARGUMENTS " " arguments)
  file(WRITE "${folder}/CMakeLists.txt" "lumidex_room(${name} SOURCES Room.cpp ${arguments})\n")
  set(rooms "${rooms}add_subdirectory(${name})\n" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK}")
include("${CASES}/${CASE}.cmake")

file(WRITE "${WORK}/source/CMakeLists.txt" "\
cmake_minimum_required(VERSION 3.25)
project(Rooms VERSION 1.2.3 LANGUAGES CXX)
list(PREPEND CMAKE_MODULE_PATH \"${RULES}\")
include(GNUInstallDirs)
set(LUMIDEX_HEADERS_DIR \"\${CMAKE_INSTALL_INCLUDEDIR}/rooms\")
add_library(lumidex_compiler INTERFACE)
add_library(Qt5::Core INTERFACE IMPORTED GLOBAL)
add_library(Qt5::Widgets INTERFACE IMPORTED GLOBAL)
file(WRITE \"\${CMAKE_BINARY_DIR}/widgets/QWidget\" \"\")
target_include_directories(Qt5::Widgets INTERFACE \"\${CMAKE_BINARY_DIR}/widgets\")
include(LumidexRoom)
${rooms}")

execute_process(
  COMMAND ${CMAKE_COMMAND} -S "${WORK}/source" -B "${WORK}/build" -G "${GENERATOR}"
    "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" -Wno-dev
  RESULT_VARIABLE configured OUTPUT_VARIABLE output ERROR_VARIABLE output)
# CMake breaks the lines of its errors.
string(REGEX REPLACE "[ \n]+" " " flat "${output}")

if(REFUSED)
  if(configured EQUAL 0)
    message(FATAL_ERROR "${CASE}: the project must be refused with \"${REFUSED}\", but it is accepted")
  endif()
  string(FIND "${flat}" "${REFUSED}" place)
  if(place EQUAL -1)
    message(FATAL_ERROR "${CASE}: the project must be refused with \"${REFUSED}\", but CMake says\n${output}")
  endif()
  return()
endif()
if(NOT configured EQUAL 0)
  message(FATAL_ERROR "${CASE}: the project must be accepted, but CMake says\n${output}")
endif()

execute_process(COMMAND ${CMAKE_COMMAND} --build "${WORK}/build"
  RESULT_VARIABLE built OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(UNBUILT)
  string(FIND "${output}" "${UNBUILT}" place)
  if(built EQUAL 0 OR place EQUAL -1)
    message(FATAL_ERROR "${CASE}: compiling must fail with \"${UNBUILT}\", but the build says\n${output}")
  endif()
elseif(ACCEPTED)
  if(NOT built EQUAL 0)
    message(FATAL_ERROR "${CASE}: the project must be built, but the build says\n${output}")
  endif()
else()
  message(FATAL_ERROR "${CASE} expects nothing")
endif()
