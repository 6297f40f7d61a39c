# A library names its interface version and gets every symbol that it needs from the libraries that it names.

execute_process(COMMAND "${READELF}" -d "${LIBRARY}" RESULT_VARIABLE result OUTPUT_VARIABLE dynamic
  COMMAND_ERROR_IS_FATAL ANY)
set(soname "lib${NAME}.so.${SOVERSION}")
string(FIND "${dynamic}" "Library soname: [${soname}]" place)
if(place EQUAL -1)
  message(SEND_ERROR "The SONAME of ${LIBRARY} must be ${soname}\n${dynamic}")
endif()

execute_process(COMMAND "${LDD}" -r "${LIBRARY}" RESULT_VARIABLE result OUTPUT_VARIABLE resolved
  ERROR_VARIABLE resolved)
if(NOT result EQUAL 0 OR resolved MATCHES "undefined symbol|not found")
  message(SEND_ERROR "${LIBRARY} lacks something\n${resolved}")
endif()
