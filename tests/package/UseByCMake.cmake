include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK}")
run("Configuring" ${CMAKE_COMMAND} -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}"
  "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
  "-DCMAKE_PREFIX_PATH=${TREE}")
run("Building" ${CMAKE_COMMAND} --build "${WORK}/build")
run_program("The program" "${WORK}/build/consumer")
expect_printed("1 album with 20 photos")
