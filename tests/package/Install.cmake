include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${TREE}" "${WORK}")
run("Installing" ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${WORK}/first")
file(RENAME "${WORK}/first" "${TREE}")
