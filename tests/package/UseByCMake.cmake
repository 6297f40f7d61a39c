include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK}")
if(TOOLCHAIN)
  # Prefixes are passed over there that are not the other system's.
  set(cross "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DLumidexUtil_DIR=${TREE}/lib/cmake/LumidexUtil")
endif()
run("Configuring" ${CMAKE_COMMAND} -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}"
  "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
  "-DCMAKE_PREFIX_PATH=${TREE}" ${cross})
run("Building" ${CMAKE_COMMAND} --build "${WORK}/build")
if(EMULATOR)
  # Windows looks for libraries beside the program.
  file(GLOB libraries "${TREE}/bin/*.dll")
  file(COPY ${libraries} DESTINATION "${WORK}/build")
endif()
run_program("The program" ${EMULATOR} "${WORK}/build/consumer${SUFFIX}")
expect_printed("1 album with 20 photos")
