# run(<what> <command> ...): fails with all that was printed unless the command ends well; sets `printed` to it.
function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors
    OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result})\n${output}\n${errors}")
  endif()
  set(printed "${output}" PARENT_SCOPE)
endfunction()

# Runs a program with folders of its own instead of the user's.
function(run_program what)
  file(MAKE_DIRECTORY "${WORK}/home")
  run("${what}" ${CMAKE_COMMAND} -E env "HOME=${WORK}/home" "XDG_CONFIG_HOME=${WORK}/home" "XDG_CACHE_HOME=${WORK}/home"
    "XDG_DATA_HOME=${WORK}/home" LC_ALL=C.UTF-8 TZ=UTC ${ARGN})
  set(printed "${printed}" PARENT_SCOPE)
endfunction()

function(expect_printed expected)
  if(NOT printed STREQUAL expected)
    message(FATAL_ERROR "\"${expected}\" is expected, but \"${printed}\" is printed")
  endif()
endfunction()
