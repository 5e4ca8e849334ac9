# What Windows shows of the program: icon, version record, manifest. And the plugins of a Qt that is
# linked into the program; offscreen is for tests and planlauf.
enable_language(RC)
find_program(ALTARDIENST_RSVG rsvg-convert REQUIRED)
find_program(ALTARDIENST_ICOTOOL icotool REQUIRED)

set(ALTARDIENST_SYMBOL ${PROJECT_BINARY_DIR}/bau/altardienst.ico)
set(ALTARDIENST_MANIFEST ${PROJECT_BINARY_DIR}/bau/altardienst.manifest)
configure_file(${CMAKE_CURRENT_LIST_DIR}/altardienst.manifest.in ${ALTARDIENST_MANIFEST} @ONLY)
configure_file(${CMAKE_CURRENT_LIST_DIR}/altardienst.rc.in
    ${PROJECT_BINARY_DIR}/bau/altardienst.rc @ONLY)

set(bilder)
foreach(breite 16 24 32 48 64 128 256)
    set(bild ${PROJECT_BINARY_DIR}/bau/altardienst-${breite}.png)
    add_custom_command(OUTPUT ${bild}
        COMMAND ${ALTARDIENST_RSVG} -w ${breite} -h ${breite} -o ${bild}
            ${PROJECT_SOURCE_DIR}/packaging/linux/altardienst.svg
        DEPENDS ${PROJECT_SOURCE_DIR}/packaging/linux/altardienst.svg)
    list(APPEND bilder ${bild})
endforeach()
add_custom_command(OUTPUT ${ALTARDIENST_SYMBOL}
    COMMAND ${ALTARDIENST_ICOTOOL} -c -o ${ALTARDIENST_SYMBOL} ${bilder} DEPENDS ${bilder})
add_custom_target(symbol_fuer_windows DEPENDS ${ALTARDIENST_SYMBOL})

function(windowsprogramm ziel)
    target_sources(${ziel} PRIVATE ${PROJECT_BINARY_DIR}/bau/altardienst.rc)
    add_dependencies(${ziel} symbol_fuer_windows)
    qt_import_plugins(${ziel} INCLUDE Qt6::QOffscreenIntegrationPlugin)
endfunction()
