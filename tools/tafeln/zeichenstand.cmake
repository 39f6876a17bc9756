# Writes a header with one sum over all sources of the drawing code.
foreach(quelle IN LISTS QUELLEN)
    file(SHA256 ${quelle} summe)
    string(APPEND summen ${summe})
endforeach()
string(SHA256 stand "${summen}")
file(WRITE ${ZIEL} "#pragma once\n\ninline constexpr char zeichenstand[] = \"${stand}\";\n")
