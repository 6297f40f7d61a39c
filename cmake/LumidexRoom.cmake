# Rooms: one function declares a room, what it uses and what it links, and refuses a use that points upward.

include(GenerateExportHeader)

# Who stands above whom: a room may use rooms of a lower floor. On the floors of the lists below it may also use those
# that were declared before it, so that no circle can form; parts of LumidexUtil share one floor and never use each other.
set(LUMIDEX_FLOORS
  core=0
  lumidex=1
  app=2 quillet=2 tavolin=2 strandel_read=2 strandel=2 usage=2 qtutility=2 alerts=2
  LumidexUtil=3
  host_base=10 host_settings=11
  host_catalogue=20 host_pixels=20
  host_shots=30
  host_scan=40 host_search=40 host_model=40 host_journal=40
  host_albums=50 host_similar=50 host_rename=50 host_edit=50 host_tags=50 host_import=50
  host_trash=60
  host_history=70 host_report=70
  samples=75
  cli_terminal=80 cli_session=81 cli_views=82 cli_commands=83 cli_program=84
  gui=80)
set(LUMIDEX_ORDERED_FLOORS 2)
# The only rooms that may link Qt Widgets. The others may use them all the same: then what these hand on leaves Qt Widgets
# out, and their headers show only what is there without (QT_WIDGETS_LIB).
set(LUMIDEX_WIDGET_ROOMS qtutility alerts widgets Presenter LumidexUtil gui)

function(lumidex_floor room result)
  foreach(entry IN LISTS LUMIDEX_FLOORS)
    if(entry MATCHES "^${room}=([0-9]+)$")
      set(${result} "${CMAKE_MATCH_1}" PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(FATAL_ERROR "Room '${room}' has no floor in LUMIDEX_FLOORS")
endfunction()

# lumidex_room(<name>
#   KIND SHARED|STATIC|PART|PROGRAM    PART: an object library that is linked into the room named by PART_OF
#   [PART_OF <room>] [OUTPUT <file name>]
#   [SOURCES ...]                      paths relative to the room's folder
#   [SYSTEM ...]                       names of sources that each system has its own of: X_unix.cpp or X_windows.cpp
#   [USES ...]                         rooms that the room's public headers name
#   [USES_PRIVATELY ...]               rooms that only its sources name
#   [LINKS ...] [LINKS_PRIVATELY ...]  libraries from outside, likewise
#   [PARTS ...])                       the PART rooms linked into this one
# The target is lumidex_<name>; its public headers live under include/, which is its include root. A SHARED room gets
# the header <include root name>/Export.h with the macro ZENVORA_<NAME>_EXPORT.
function(lumidex_room name)
  cmake_parse_arguments(R "" "KIND;PART_OF;OUTPUT" "SOURCES;SYSTEM;USES;USES_PRIVATELY;LINKS;LINKS_PRIVATELY;PARTS" ${ARGN})
  if(R_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "Room '${name}': unknown arguments ${R_UNPARSED_ARGUMENTS}")
  endif()

  set(system unix)
  if(WIN32)
    set(system windows)
  endif()
  foreach(body IN LISTS R_SYSTEM)
    list(APPEND R_SOURCES ${body}_${system}.cpp)
  endforeach()

  set(place "${name}")
  if(R_PART_OF)
    set(place "${R_PART_OF}")
  endif()
  lumidex_floor(${place} floor)
  foreach(used IN LISTS R_USES R_USES_PRIVATELY)
    lumidex_floor(${used} used_floor)
    if(used_floor GREATER floor)
      message(FATAL_ERROR "Room '${name}' may not use '${used}': it stands above (floor ${used_floor} > ${floor})")
    elseif(used_floor EQUAL floor AND NOT floor IN_LIST LUMIDEX_ORDERED_FLOORS)
      message(FATAL_ERROR "Room '${name}' may not use '${used}': rooms of floor ${floor} do not know each other")
    elseif(NOT TARGET lumidex_${used})
      message(FATAL_ERROR "Room '${name}' may not use '${used}': it is not declared before it")
    endif()
    get_target_property(handed_on lumidex_${used} INTERFACE_LINK_LIBRARIES)
    list(APPEND R_HANDED_ON ${handed_on})
  endforeach()
  set(linked ${R_LINKS} ${R_LINKS_PRIVATELY} ${R_HANDED_ON})
  if("Qt5::Widgets" IN_LIST linked AND NOT name IN_LIST LUMIDEX_WIDGET_ROOMS)
    message(FATAL_ERROR "Room '${name}' may not link Qt Widgets: it holds logic")
  endif()

  set(target lumidex_${name})
  if(R_KIND STREQUAL "PART")
    add_library(${target} OBJECT ${R_SOURCES})
    # The export macro of the library that the part becomes part of.
    target_compile_definitions(${target} PRIVATE lumidex_${R_PART_OF}_EXPORTS)
    # Where a part has a floor, others of its library may use it: they see its folder.
    target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}" PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/../include"
      "${CMAKE_CURRENT_BINARY_DIR}/../include")
  elseif(R_KIND STREQUAL "PROGRAM")
    add_executable(${target} ${R_SOURCES})
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  elseif(R_KIND MATCHES "^(SHARED|STATIC)$")
    add_library(${target} ${R_KIND} ${R_SOURCES})
    target_include_directories(${target}
      PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>"
      PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  else()
    message(FATAL_ERROR "Room '${name}': KIND must be SHARED, STATIC, PART or PROGRAM")
  endif()
  if(R_OUTPUT)
    set_target_properties(${target} PROPERTIES OUTPUT_NAME "${R_OUTPUT}")
  endif()

  if(R_KIND STREQUAL "SHARED")
    string(TOUPPER "${name}" upper)
    if(name STREQUAL "LumidexUtil")
      set(macro LUMIDEXUTIL_EXPORT)
      set(header LumidexUtil/Export.h)
    else()
      set(macro ZENVORA_${upper}_EXPORT)
      set(header zenvora/${name}/Export.h)
    endif()
    generate_export_header(${target} BASE_NAME "${upper}" EXPORT_MACRO_NAME ${macro}
      EXPORT_FILE_NAME "${CMAKE_CURRENT_BINARY_DIR}/include/${header}")
    target_include_directories(${target}
      PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}/include>" "$<INSTALL_INTERFACE:${LUMIDEX_HEADERS_DIR}>")
    # Windows' names have no "lib" in front.
    if(WIN32)
      set_target_properties(${target} PROPERTIES PREFIX "")
    endif()
    set_target_properties(${target} PROPERTIES
      VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR} EXPORT_NAME ${name})
    add_library(LumidexUtil::${name} ALIAS ${target})
    install(TARGETS ${target} EXPORT LumidexUtilTargets
      LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
      RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    install(DIRECTORY include/ "${CMAKE_CURRENT_BINARY_DIR}/include/" DESTINATION ${LUMIDEX_HEADERS_DIR}
      FILES_MATCHING PATTERN "*.h")
  endif()

  if(NOT name IN_LIST LUMIDEX_WIDGET_ROOMS)
    set_target_properties(${target} PROPERTIES LUMIDEX_LOGIC ON)
  elseif("Qt5::Widgets" IN_LIST R_LINKS AND R_KIND MATCHES "^(SHARED|STATIC)$")
    list(REMOVE_ITEM R_LINKS Qt5::Widgets)
    target_link_libraries(${target} PRIVATE Qt5::Widgets
      INTERFACE "$<$<NOT:$<BOOL:$<TARGET_PROPERTY:LUMIDEX_LOGIC>>>:Qt5::Widgets>")
  endif()

  set(visible PUBLIC)
  if(R_KIND MATCHES "^(PART|PROGRAM)$")
    set(visible PRIVATE)
  endif()
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:lumidex_compiler>)
  target_link_libraries(${target} ${visible} ${R_LINKS} PRIVATE ${R_LINKS_PRIVATELY})
  foreach(used IN LISTS R_USES)
    target_link_libraries(${target} ${visible} lumidex_${used})
  endforeach()
  foreach(used IN LISTS R_USES_PRIVATELY)
    target_link_libraries(${target} PRIVATE lumidex_${used})
  endforeach()
  foreach(part IN LISTS R_PARTS)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:lumidex_${part}>)
  endforeach()
  set_property(GLOBAL APPEND PROPERTY LUMIDEX_ROOMS ${name})
endfunction()
