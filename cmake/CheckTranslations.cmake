# A catalog is current when lupdate, run on a copy of it over the sources, changes nothing,
# and complete when no message is left unfinished. Run by ctest:
#   cmake -DLUPDATE=... -DTS=file.ts -DSOURCES=dir -DINCLUDES=dir;... -DOPTIONS=... -DWORK=dir
#         -P this file
foreach(var LUPDATE TS SOURCES WORK)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "CheckTranslations: ${var} is not set")
    endif()
endforeach()

get_filename_component(name "${TS}" NAME)
set(copy "${WORK}/${name}")
file(MAKE_DIRECTORY "${WORK}")
file(COPY_FILE "${TS}" "${copy}")
set(includes "")
foreach(dir ${SOURCES} ${INCLUDES})
    list(APPEND includes "-I${dir}")
endforeach()
execute_process(COMMAND "${LUPDATE}" ${OPTIONS} -extensions cpp,h,ui ${includes} ${SOURCES}
    -ts "${copy}" RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "lupdate failed on ${name}")
endif()

set(refresh "run `cmake --build build --target update_translations`, translate what is new")
file(READ "${TS}" tracked)
file(READ "${copy}" refreshed)
if(NOT tracked STREQUAL refreshed)
    message(FATAL_ERROR "${TS} does not match the texts of the sources: ${refresh}")
endif()
string(FIND "${tracked}" "type=\"unfinished\"" unfinished)
if(unfinished GREATER -1)
    message(FATAL_ERROR "${TS} has texts without a translation: ${refresh}")
endif()
