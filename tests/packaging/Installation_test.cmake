# Installs a build into an empty directory: everything is there, and the desktop entry names a
# program and an icon that exist. cmake -D BAU=<build directory> -D ZIEL=<directory> -P ...
file(REMOVE_RECURSE ${ZIEL})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BAU} --prefix ${ZIEL}
    OUTPUT_QUIET RESULT_VARIABLE ergebnis)
if(NOT ergebnis EQUAL 0)
    message(FATAL_ERROR "the installation failed")
endif()

function(erwarten datei)
    if(NOT EXISTS ${ZIEL}/${datei})
        message(SEND_ERROR "missing: ${datei}")
    endif()
endfunction()

foreach(gemeinde leer beispiel)
    foreach(datei Konfig.cfg Standard.dat Meßdiener.dat Messen.dat Gruppen.dat Helfer.dat
                  Etiketten.dat MeßdienerMesse.dat)
        erwarten(share/altardienst/${gemeinde}/${datei})
    endforeach()
endforeach()
erwarten(share/doc/altardienst/copyright)
erwarten(share/doc/altardienst/handbuch/README.md)
erwarten(share/doc/altardienst/bilder/haupt.png)
erwarten(share/metainfo/de.altardienst.altardienst.metainfo.xml)

set(eintrag ${ZIEL}/share/applications/altardienst.desktop)
file(STRINGS ${eintrag} programm REGEX "^Exec=")
string(REPLACE "Exec=" "" programm "${programm}")
erwarten(bin/${programm})
file(STRINGS ${eintrag} symbol REGEX "^Icon=")
string(REPLACE "Icon=" "" symbol "${symbol}")
erwarten(share/icons/hicolor/scalable/apps/${symbol}.svg)
erwarten(share/icons/hicolor/128x128/apps/${symbol}.png)
file(REMOVE_RECURSE ${ZIEL})
