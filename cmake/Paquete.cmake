# The Debian package: `cpack -G DEB` in the build folder writes productos_<version>_<arch>.deb.
# The program and its tools go to /usr/bin; the help pages and the default picture, written by
# the demo's own generator at build time, to /usr/share/productos; a menu entry and its icon to
# the desktop's folders.
include(GNUInstallDirs)

set(recursos ${CMAKE_BINARY_DIR}/recursos-paquete)
add_custom_command(
  OUTPUT ${recursos}/ayuda/A_Productos.html ${recursos}/fotos/defecto.gif
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${recursos}
  COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen $<TARGET_FILE:productos-demo> ${recursos}
  DEPENDS productos-demo
  COMMENT "Writing the help pages and the default picture for the package")
add_custom_target(recursos_paquete ALL
  DEPENDS ${recursos}/ayuda/A_Productos.html ${recursos}/fotos/defecto.gif)

install(TARGETS productos productos-demo productos-esquema RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(PROGRAMS packaging/productos-abrir DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${recursos}/ayuda DESTINATION ${CMAKE_INSTALL_DATADIR}/productos)
install(FILES ${recursos}/fotos/defecto.gif DESTINATION ${CMAKE_INSTALL_DATADIR}/productos)
install(FILES packaging/productos.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/productos.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

set(CPACK_PACKAGE_NAME productos)
set(CPACK_PACKAGE_VERSION 1.0.0)
set(CPACK_PACKAGE_VENDOR "Productos")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Products maintenance of a bar and restaurant till")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Productos <productos@localhost>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
# The shared libraries are found by dpkg-shlibdeps; the database drivers and the Spanish texts
# of the standard dialogs are plugins and data that it cannot see.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6sql6-sqlite, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libqt6sql6-odbc, libqt6sql6-psql, libsqliteodbc")
include(CPack)
