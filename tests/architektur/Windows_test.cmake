# The tables in docs/windows.md name exactly the files that ask for the system.
#   cmake -D WURZEL=. -P Windows_test.cmake
set(FRAGEN "_WIN32|Q_OS_WIN|[( ]WIN32[) ]|[( ]UNIX[) ]")
file(GLOB_RECURSE DATEIEN RELATIVE ${WURZEL} ${WURZEL}/src/*.h ${WURZEL}/src/*.cpp
    ${WURZEL}/src/CMakeLists.txt ${WURZEL}/tools/*.cpp ${WURZEL}/tools/*.h
    ${WURZEL}/tools/CMakeLists.txt ${WURZEL}/tests/*.h ${WURZEL}/tests/*.cpp
    ${WURZEL}/tests/CMakeLists.txt ${WURZEL}/packaging/CMakeLists.txt)
list(APPEND DATEIEN CMakeLists.txt)
set(FRAGENDE)
foreach(DATEI IN LISTS DATEIEN)
    file(STRINGS ${WURZEL}/${DATEI} ZEILEN REGEX "^ *(#|if|else).*(${FRAGEN})" ENCODING UTF-8)
    if(ZEILEN)
        list(APPEND FRAGENDE ${DATEI})
    endif()
endforeach()
if(NOT FRAGENDE)
    message(FATAL_ERROR "no sources in ${WURZEL}")
endif()

set(GENANNTE)
file(STRINGS ${WURZEL}/docs/windows.md ZEILEN REGEX "^\\| `[^`]+` " ENCODING UTF-8)
foreach(ZEILE IN LISTS ZEILEN)
    string(REGEX REPLACE "^\\| `([^`]+)`.*" "\\1" DATEI "${ZEILE}")
    list(APPEND GENANNTE ${DATEI})
endforeach()

set(UNGENANNTE ${FRAGENDE})
list(REMOVE_ITEM UNGENANNTE ${GENANNTE})
set(UNBEGRUENDETE ${GENANNTE})
list(REMOVE_ITEM UNBEGRUENDETE ${FRAGENDE})
if(UNGENANNTE OR UNBEGRUENDETE)
    message(FATAL_ERROR "docs/windows.md lacks: ${UNGENANNTE}; names for nothing: ${UNBEGRUENDETE}")
endif()
