# cmake -D SOURCE=src -D OUTPUT=file -P ListScreens.cmake: the names of all screens, as their headers declare them, one a
# line and ready to be included into an array.
file(GLOB_RECURSE headers ${SOURCE}/frm*.h ${SOURCE}/mdi*.h ${SOURCE}/*Page.h ${SOURCE}/Manager*.h ${SOURCE}/RestoreForm.h ${SOURCE}/InvoicesForm.h ${SOURCE}/SupportForm.h)
set(names "")
foreach(header ${headers})
    file(STRINGS ${header} classes REGEX "^class (frm[A-Za-z0-9]+|mdi[A-Za-z0-9]+|Manager[A-Za-z0-9]+|[A-Za-z0-9]+Page|RestoreForm|InvoicesForm|SupportForm) : public ")
    foreach(class ${classes})
        string(REGEX REPLACE "^class ([A-Za-z0-9]+) .*" "u\"\\1\"," name "${class}")
        string(APPEND names "${name}\n")
    endforeach()
endforeach()
file(WRITE ${OUTPUT} "${names}")
