if(WINDOWS)
  set(libraries bin/LumidexUtil.dll bin/ZenvoraCore.dll bin/ZenvoraLumidex.dll ${LIBDIR}/libLumidexUtil.dll.a
    ${LIBDIR}/libZenvoraCore.dll.a)
else()
  set(libraries ${LIBDIR}/libLumidexUtil.so ${LIBDIR}/libZenvoraCore.so ${LIBDIR}/libZenvoraLumidex.so)
endif()
foreach(file IN ITEMS ${libraries}
    ${LIBDIR}/cmake/LumidexUtil/LumidexUtilConfig.cmake ${LIBDIR}/cmake/LumidexUtil/LumidexUtilConfigVersion.cmake
    ${LIBDIR}/cmake/LumidexUtil/LumidexUtilTargets.cmake ${LIBDIR}/pkgconfig/LumidexUtil.pc
    ${HEADERS}/LumidexUtil/Export.h ${HEADERS}/LumidexUtil/HolidayAlbums.h ${HEADERS}/LumidexUtil/Wording.h
    ${HEADERS}/LumidexUtil/CheckFilesReadable.h ${HEADERS}/LumidexUtil/CheckFilesToCopyBeforeAdd.h
    ${HEADERS}/LumidexUtil/CheckFormatsWritable.h ${HEADERS}/LumidexUtil/CheckSaveAvailable.h
    ${HEADERS}/LumidexUtil/ElidedLabel.h ${HEADERS}/LumidexUtil/UIControllerUser.h
    ${HEADERS}/zenvora/core/ioPath.h ${HEADERS}/zenvora/lumidex/DataModel.h
    ${DATADIR}/lumidex/HolidayEvents.json ${DOCDIR}/LICENSE)
  if(NOT EXISTS "${TREE}/${file}")
    message(SEND_ERROR "${file} is not installed")
  endif()
endforeach()

file(GLOB_RECURSE texts "${TREE}/${LIBDIR}/*.cmake" "${TREE}/${LIBDIR}/*.pc")
foreach(text IN LISTS texts)
  file(READ "${text}" content)
  foreach(folder IN ITEMS "${TREE}" "${BUILD}")
    string(FIND "${content}" "${folder}" place)
    if(NOT place EQUAL -1)
      message(SEND_ERROR "${text} names ${folder}: it cannot be moved")
    endif()
  endforeach()
endforeach()

file(GLOB libraries "${TREE}/${LIBDIR}/*.so")
foreach(library IN LISTS libraries)
  execute_process(COMMAND "${READELF}" -d "${library}" OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCH "(RUNPATH|RPATH)[^\n]*[[]([^\n]*)[]]" found "${dynamic}")
  string(REPLACE ":" ";" folders "${CMAKE_MATCH_2}")
  foreach(folder IN LISTS folders)
    if(NOT folder MATCHES "^[$]ORIGIN")
      message(SEND_ERROR "${library} looks for libraries in ${folder}: it cannot be moved")
    endif()
  endforeach()
endforeach()
