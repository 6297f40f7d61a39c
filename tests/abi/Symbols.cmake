# Compares what LIBRARY exports with LIST, or writes LIST when LUMIDEX_ABI_RENEW is set.
#
# Every symbol that the library defines itself, whatever its name, and the weak ones of its own namespace. Other weak ones are
# instantiations of foreign templates: which of them are exported depends on the optimiser.

# symbols(<variable> <option> ...): the names of nm's lines, in the order of the library's table.
function(symbols variable)
  execute_process(COMMAND "${NM}" -D -p --defined-only ${ARGN} "${LIBRARY}" OUTPUT_VARIABLE output
    COMMAND_ERROR_IS_FATAL ANY)
  # Brackets and semicolons would join and split list elements.
  string(REPLACE "[" "<:" output "${output}")
  string(REPLACE "]" ":>" output "${output}")
  string(REPLACE ";" "," output "${output}")
  string(REGEX REPLACE "\n$" "" output "${output}")
  string(REPLACE "\n" ";" lines "${output}")
  list(TRANSFORM lines REPLACE "^[0-9a-f]+ " "")
  set(${variable} "${lines}" PARENT_SCOPE)
endfunction()

function(compare_with_list)
  list(REMOVE_DUPLICATES exported)
  list(SORT exported)
  if(NOT exported)
    message(FATAL_ERROR "${LIBRARY} exports nothing of its own")
  endif()

  if(DEFINED ENV{LUMIDEX_ABI_RENEW})
    list(JOIN exported "\n" text)
    file(WRITE "${LIST}" "${text}\n")
    list(LENGTH exported count)
    message(STATUS "${count} symbols written to ${LIST}")
    return()
  endif()

  file(STRINGS "${LIST}" listed)
  set(gone ${listed})
  list(REMOVE_ITEM gone ${exported})
  set(new ${exported})
  list(REMOVE_ITEM new ${listed})
  if(gone OR new)
    list(TRANSFORM gone PREPEND "\n  - ")
    list(TRANSFORM new PREPEND "\n  + ")
    string(CONCAT difference ${gone} ${new})
    message(FATAL_ERROR "\
The exported symbols differ from ${LIST} (- listed and gone, + exported and not listed):${difference}
If that is meant, renew the list (and raise the version for every -):
  $ENV{LUMIDEX_ABI_TARGET}")
  endif()
endfunction()

# A DLL has a table of what it exports, and nothing gets into it by itself.
if(WINDOWS)
  execute_process(COMMAND "${OBJDUMP}" -p "${LIBRARY}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCH "Ordinal/Name Pointer.*" table "${output}")
  # Other tables follow.
  string(REGEX REPLACE "\n\n.*" "" table "${table}")
  string(REGEX MATCHALL "\\[ *[0-9]+\\] [^\n ]+" exported "${table}")
  list(TRANSFORM exported REPLACE "^.* " "")
  compare_with_list()
  return()
endif()

# Chosen by the linker's names: those of people may begin with a return type.
symbols(mangled)
symbols(readable -C)
set(exported "")
foreach(name symbol IN ZIP_LISTS mangled readable)
  if(name MATCHES "^[WVu] " AND NOT name MATCHES "^. _Z(T[VIST]|GV|T[hv][n0-9_]+)?NK?7Zenvora")
    continue()
  endif()
  # The address sanitizer's own marks, and those of the linker, which come with some libraries that are linked.
  if(NOT name MATCHES "^. (__(odr_)?asan|(__bss_start|_edata|_end)$)")
    string(REGEX REPLACE "^. " "" symbol "${symbol}")
    list(APPEND exported "${symbol}")
  endif()
endforeach()
compare_with_list()
