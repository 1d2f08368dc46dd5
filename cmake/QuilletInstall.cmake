# What is installed beside the program, under the name by which the desktop knows it.

include(GNUInstallDirs)

set(identifier org.quillet.Quillet)
set(share ${CMAKE_SOURCE_DIR}/share)

install(TARGETS quillet)
install(FILES ${share}/${identifier}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${share}/${identifier}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${share}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES "${share}/Release Notes.rtf" DESTINATION ${CMAKE_INSTALL_DATADIR}/quillet)
install(PROGRAMS ${share}/sample/make-sample-home
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quillet/examples)
install(FILES ${share}/quillet.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The bus starts the program by its path, which only the installation knows.
install(CODE "
  set(CMAKE_INSTALL_FULL_BINDIR \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
  configure_file(
    \"${share}/${identifier}.service.in\" \"${CMAKE_BINARY_DIR}/${identifier}.service\" @ONLY)")
install(FILES ${CMAKE_BINARY_DIR}/${identifier}.service
  DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
