# Translations: every translations/lumidex_<locale>.ts becomes a catalogue inside of the program.

# Tools of the machine that builds: what they make is the same for every system. Where several Qt versions are installed,
# the plain names may lead to another one.
find_program(LUMIDEX_LRELEASE NAMES lrelease-qt5 lrelease HINTS /usr/lib/qt5/bin REQUIRED
  DOC "Makes catalogues of translations")
mark_as_advanced(LUMIDEX_LRELEASE)

# lumidex_translations(<target>)
# Gives the target the resources ":/translations/lumidex_<locale>.qm". They are named "translations" for Q_INIT_RESOURCE.
function(lumidex_translations target)
  file(GLOB texts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/lumidex_*.ts")
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations")
  set(catalogues)
  set(entries)
  foreach(text IN LISTS texts)
    cmake_path(GET text STEM name)
    # Unfinished texts are left out by neither: the tests tell of them. Nor are those that are as in English, since
    # another language may be in force below.
    add_custom_command(OUTPUT "${folder}/${name}.qm"
      COMMAND ${CMAKE_COMMAND} -E make_directory "${folder}"
      COMMAND "${LUMIDEX_LRELEASE}" -silent "${text}" -qm "${folder}/${name}.qm"
      DEPENDS "${text}" VERBATIM)
    list(APPEND catalogues "${folder}/${name}.qm")
    string(APPEND entries "    <file alias=\"${name}.qm\">${folder}/${name}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT "${folder}/translations.qrc"
    CONTENT "<RCC>\n  <qresource prefix=\"/translations\">\n@entries@  </qresource>\n</RCC>\n" @ONLY)
  add_custom_command(OUTPUT "${folder}/qrc_translations.cpp"
    COMMAND Qt5::rcc --name translations --output "${folder}/qrc_translations.cpp" "${folder}/translations.qrc"
    DEPENDS ${catalogues} "${folder}/translations.qrc" VERBATIM)
  target_sources(${target} PRIVATE "${folder}/qrc_translations.cpp")
endfunction()
