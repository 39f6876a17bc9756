# Makes the data: the database, the pictures, the plates, the manual.
file(GLOB FLOX_REC CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/pflanzen/*.rec)
# Families first: plants name them.
list(REMOVE_ITEM FLOX_REC ${CMAKE_CURRENT_SOURCE_DIR}/pflanzen/familien.rec)
list(PREPEND FLOX_REC ${CMAKE_CURRENT_SOURCE_DIR}/pflanzen/familien.rec)
file(GLOB FLOX_FORMEN CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/formen/*.rec)
add_custom_command(
    OUTPUT ${FLOX_DB}
    COMMAND ${FLOX_WERKZEUG} $<TARGET_FILE:pflanzendaten> ${FLOX_DB}.neu ${FLOX_REC}
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${FLOX_DB}.neu ${FLOX_DB}
    DEPENDS pflanzendaten ${FLOX_REC} ${FLOX_FORMEN}
    COMMENT "Plant database"
    VERBATIM)

file(GLOB_RECURSE FLOX_SVG CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/icons/*.svg)
# Qt reads GIF but does not write it.
find_program(FLOX_CONVERT convert REQUIRED)
add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/icons.stamp
    COMMAND ${FLOX_WERKZEUG} $<TARGET_FILE:bildermacher> ${CMAKE_CURRENT_SOURCE_DIR}/icons ${FLOX_ICONS}
    COMMAND ${FLOX_CONVERT} ${FLOX_ICONS}/keinbild.png ${FLOX_ICONS}/keinbild.gif
    COMMAND ${CMAKE_COMMAND} -E rm ${FLOX_ICONS}/keinbild.png
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/icons.stamp
    DEPENDS bildermacher ${FLOX_SVG}
    COMMENT "Pictures"
    VERBATIM)

set(FLOX_TAFELN "" CACHE STRING "Draw only the plates whose file name begins so")
# Plates of the plants, a folder at a time; the tool draws anew only what has changed and removes what has no plant.
foreach(ordner ${FLOX_TAFELORDNER})
    add_custom_command(
        OUTPUT ${CMAKE_BINARY_DIR}/tafeln-${ordner}.stamp
        COMMAND ${FLOX_WERKZEUG} $<TARGET_FILE:tafelmacher> ${FLOX_DB} ${FLOX_PROGRAMM} ${ordner} ${CMAKE_BINARY_DIR}/tafeln-${ordner}.stand ${FLOX_TAFELN}
        COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/tafeln-${ordner}.stamp
        DEPENDS tafelmacher ${FLOX_DB} ${FLOX_REC} ${FLOX_FORMEN}
        COMMENT "Plates: ${ordner}"
        VERBATIM)
endforeach()

# The manual, a target of its own: its pictures are taken from the finished windows, which change with every source of the program.
find_package(Qt6 REQUIRED COMPONENTS ToolsTools)
set(FLOX_HILFE ${CMAKE_BINARY_DIR}/hilfe)
file(GLOB FLOX_HILFETEXTE CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/hilfe/*)
add_custom_command(
    OUTPUT ${CMAKE_BINARY_DIR}/hilfebilder.stamp
    COMMAND ${FLOX_WERKZEUG} $<TARGET_FILE:hilfebilder> ${FLOX_PROGRAMM} ${FLOX_DB} ${FLOX_HILFE}/bilder
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/hilfebilder.stamp
    DEPENDS hilfebilder ${FLOX_DB} ${CMAKE_BINARY_DIR}/icons.stamp ${FLOX_TAFELSTAND}
    COMMENT "Pictures of the manual"
    VERBATIM)
# The tool writes the time into its files; the same sources shall make the same bytes.
set(FLOX_ZEITLOS ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=1 TZ=UTC)
add_custom_command(
    OUTPUT ${FLOX_HILFEDATEIEN}
    COMMAND ${FLOX_WERKZEUG} $<TARGET_FILE:hilfeseiten> ${CMAKE_CURRENT_SOURCE_DIR}/hilfe ${FLOX_HILFE} ${FLOX_DB}
    COMMAND ${FLOX_ZEITLOS} $<TARGET_FILE:Qt6::qhelpgenerator> ${FLOX_HILFE}/flox-hilfe.qhp -s -o ${FLOX_PROGRAMM}/flox-hilfe.qch
    COMMAND ${CMAKE_COMMAND} -E copy ${FLOX_HILFE}/flox-hilfe.qhcp ${FLOX_PROGRAMM}/flox-hilfe.qhcp
    COMMAND ${FLOX_ZEITLOS} $<TARGET_FILE:Qt6::qhelpgenerator> ${FLOX_PROGRAMM}/flox-hilfe.qhcp -s -o ${FLOX_PROGRAMM}/flox-hilfe.qhc
    COMMAND ${CMAKE_COMMAND} -E rm ${FLOX_PROGRAMM}/flox-hilfe.qhcp
    DEPENDS hilfeseiten ${CMAKE_BINARY_DIR}/hilfebilder.stamp ${FLOX_HILFETEXTE}
    COMMENT "Manual"
    VERBATIM)
