# What `cmake --install` puts in place and how `cpack -G DEB` packs it: the
# programs, the data, the desktop integration (entry, file type, AppStream,
# icons), the manual pages and the licence and data credits.
include(GNUInstallDirs)

set(VEDRANO_WEB "https://vedrano.example.org" CACHE STRING
    "Project's web address, for the AppStream metainfo (its screenshot is captura.png there)")
set(VEDRANO_ID es.vedrano.Vedrano)
set(VEDRANO_LICENCIA "GPL-2.0-or-later AND CC-BY-SA-4.0 AND GPL-3.0-or-later")

install(TARGETS vedrano-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET vedrano)
  install(TARGETS vedrano RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(DIRECTORY Datos/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vedrano/Datos
        FILES_MATCHING PATTERN "*.DAT")
install(DIRECTORY Archivo/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vedrano/Archivo
        FILES_MATCHING PATTERN "*.ls1")

set(PAQ ${CMAKE_CURRENT_SOURCE_DIR}/paquete)
configure_file(${PAQ}/${VEDRANO_ID}.metainfo.xml.in ${CMAKE_CURRENT_BINARY_DIR}/${VEDRANO_ID}.metainfo.xml @ONLY)
install(FILES ${PAQ}/${VEDRANO_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${VEDRANO_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${PAQ}/vedrano-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME vedrano.xml)
install(FILES ${PAQ}/vedrano.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
        RENAME ${VEDRANO_ID}.svg)
foreach(n 16 24 32 48 64 128 256)
  install(FILES ${PAQ}/iconos/${n}x${n}.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${n}x${n}/apps
          RENAME ${VEDRANO_ID}.png)
endforeach()

# Manual pages and the changelog go compressed, as Debian wants them.
find_program(GZIP gzip REQUIRED)
set(COMPRIMIDOS)
foreach(f vedrano.1 vedrano-cli.1 changelog)
  add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${f}.gz
                     COMMAND ${GZIP} -9n -c ${PAQ}/${f} > ${CMAKE_CURRENT_BINARY_DIR}/${f}.gz
                     DEPENDS ${PAQ}/${f})
  list(APPEND COMPRIMIDOS ${CMAKE_CURRENT_BINARY_DIR}/${f}.gz)
endforeach()
add_custom_target(comprimidos ALL DEPENDS ${COMPRIMIDOS})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/vedrano.1.gz ${CMAKE_CURRENT_BINARY_DIR}/vedrano-cli.1.gz
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz ${PAQ}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME LICENCIA)
install(FILES Datos/LEEME.md DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME datos.md)
install(FILES tools/fuentes/LEEME.md DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME fuentes-datos.md)

# The Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vedrano)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Autores de VEDRANO <vedrano@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "planetario de escritorio en español")
set(CPACK_PACKAGE_DESCRIPTION
    "VEDRANO dibuja el cielo visto desde cualquier lugar de la Tierra en cualquier\n"
    "instante entre el año 4713 a. C. y el 7999 d. C.: estrellas, constelaciones,\n"
    "objetos Messier y de cielo profundo, el Sol, la Luna y los planetas. Toda su\n"
    "interfaz está en español. Incluye vedrano-cli, con la calculadora\n"
    "astronómica y el dibujo del cielo sin ventana.")
string(REPLACE ";" "" CPACK_PACKAGE_DESCRIPTION "${CPACK_PACKAGE_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${VEDRANO_WEB})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
# Beside the libraries dpkg-shlibdeps finds: the font of the interface, and
# Qt's own translations for its dialogs.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-urw-base35")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
