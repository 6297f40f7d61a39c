# The tests choose their own plug-ins of Qt: what else a desktop brings along (formats, themes, drivers) would change what they
# see. A file qt.conf beside the programs names the folder that holds them.
set(own_plugins "${CMAKE_BINARY_DIR}/qt-plugins")
get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
execute_process(COMMAND "${qmake}" -query QT_INSTALL_PLUGINS
  OUTPUT_VARIABLE installed_plugins OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE "${own_plugins}")
foreach(plugin IN ITEMS platforms/offscreen platforms/xcb sqldrivers/sqlite
    imageformats/gif imageformats/icns imageformats/ico imageformats/jpeg imageformats/mng imageformats/tga imageformats/tiff
    imageformats/wbmp imageformats/webp)
  string(REPLACE "/" "/libq" file "${plugin}.so")
  get_filename_component(folder "${own_plugins}/${file}" DIRECTORY)
  file(MAKE_DIRECTORY "${folder}")
  file(CREATE_LINK "${installed_plugins}/${file}" "${own_plugins}/${file}" SYMBOLIC)
endforeach()
file(WRITE "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/qt.conf" "[Paths]\nPlugins = ${own_plugins}\n")
