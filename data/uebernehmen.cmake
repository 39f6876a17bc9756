# Takes the data that another build of the same sources has made.
cmake_path(RELATIVE_PATH FLOX_PROGRAMM BASE_DIRECTORY ${CMAKE_BINARY_DIR} OUTPUT_VARIABLE programm)
foreach(datei ${FLOX_DB} ${CMAKE_BINARY_DIR}/icons.stamp ${FLOX_TAFELSTAND} ${FLOX_HILFEDATEIEN})
    cmake_path(RELATIVE_PATH datei BASE_DIRECTORY ${CMAKE_BINARY_DIR} OUTPUT_VARIABLE name)
    set(ordner)
    if(name STREQUAL "icons.stamp")
        set(ordner ${programm}/icons)
    elseif(name MATCHES "^tafeln-(.*)\\.stamp$")
        set(ordner ${programm}/${CMAKE_MATCH_1})
    endif()
    set(befehle)
    if(ordner)
        set(befehle COMMAND ${CMAKE_COMMAND} -E rm -rf ${CMAKE_BINARY_DIR}/${ordner}
            COMMAND ${CMAKE_COMMAND} -E copy_directory ${FLOX_DATEN_VON}/${ordner} ${CMAKE_BINARY_DIR}/${ordner})
    endif()
    add_custom_command(OUTPUT ${datei} ${befehle} COMMAND ${CMAKE_COMMAND} -E copy ${FLOX_DATEN_VON}/${name} ${datei}
        DEPENDS ${FLOX_DATEN_VON}/${name} VERBATIM)
endforeach()
