# Warnings, hardening and sanitizers for everything that is built here.

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

file(RELATIVE_PATH way_to_sources "${CMAKE_BINARY_DIR}" "${PROJECT_SOURCE_DIR}")
string(REGEX REPLACE "/$" "" way_to_sources "${way_to_sources}")

add_library(lumidex_compiler INTERFACE)
target_compile_features(lumidex_compiler INTERFACE cxx_std_17)
target_compile_definitions(lumidex_compiler INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS
  BOOST_ALLOW_DEPRECATED_HEADERS)
target_compile_options(lumidex_compiler INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough -Werror
  # Log lines and throw sites name sources relative to the tree, whatever folder it was built in; those of the library
  # relative to the library. The last map that fits wins. A compiler cache may name sources relative to the build folder.
  "-fmacro-prefix-map=${way_to_sources}/="
  "-fmacro-prefix-map=${way_to_sources}/LumidexUtil/="
  "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
  "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/LumidexUtil/=")
if(WIN32)
  # Wide calls only; nothing of the system's header that takes names from the language.
  target_compile_definitions(lumidex_compiler INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00
    # The system's header has a macro ERROR.
    GLOG_NO_ABBREVIATED_SEVERITIES)
else()
  target_compile_options(lumidex_compiler INTERFACE -fstack-protector-strong)
  target_link_options(lumidex_compiler INTERFACE -Wl,-z,relro,-z,now)
  # Only programs have what libFuzzer and the sanitizers of clang bring along.
  if(NOT LUMIDEX_FUZZ)
    target_link_options(lumidex_compiler INTERFACE -Wl,--no-undefined)
  endif()
endif()

if(LUMIDEX_FUZZ)
  # Warnings are a matter of the compiler that everything is built with.
  target_compile_options(lumidex_compiler INTERFACE -Wno-error)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(LUMIDEX_SANITIZE)
  add_compile_options(-fsanitize=${LUMIDEX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${LUMIDEX_SANITIZE})
endif()
