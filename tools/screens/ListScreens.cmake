# cmake -D SOURCE=src -D OUTPUT=file -P ListScreens.cmake: the names of all screens, as their headers declare them, one a
# line and ready to be included into an array.
file(GLOB_RECURSE headers ${SOURCE}/frm*.h ${SOURCE}/mdi*.h)
set(names "")
foreach(header ${headers})
    file(STRINGS ${header} classes REGEX "^class (frm|mdi)[A-Za-z0-9]+ : public ")
    foreach(class ${classes})
        string(REGEX REPLACE "^class ([A-Za-z0-9]+) .*" "u\"\\1\"," name "${class}")
        string(APPEND names "${name}\n")
    endforeach()
endforeach()
file(WRITE ${OUTPUT} "${names}")
