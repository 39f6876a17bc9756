# Writes the commit of the sources into a header; run at every build, and nothing is compiled anew where it is the same.
cmake_minimum_required(VERSION 3.22)
execute_process(COMMAND git -C ${QUELLE} describe --always --dirty --abbrev=12 --exclude=*
    OUTPUT_VARIABLE stand OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE fehler)
if(fehler OR NOT stand)
    set(stand "ohne Angabe")
endif()
file(CONFIGURE OUTPUT ${ZIEL} CONTENT "#define FLOX_STAND \"@stand@\"\n" @ONLY)
