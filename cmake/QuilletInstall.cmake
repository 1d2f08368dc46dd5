# What is installed beside the program, under the name by which the desktop knows it.

include(GNUInstallDirs)

set(identifier org.quillet.Quillet)
set(share ${CMAKE_SOURCE_DIR}/share)

install(TARGETS quillet)
install(TARGETS quillet-open DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/quillet)
file(RELATIVE_PATH program_from_libexec
  ${CMAKE_INSTALL_FULL_LIBEXECDIR}/quillet ${CMAKE_INSTALL_FULL_BINDIR}/quillet)
target_compile_definitions(quillet-open PRIVATE QUILLET_PROGRAM="${program_from_libexec}")
install(FILES ${share}/${identifier}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(DIRECTORY ${share}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES "${share}/Release Notes.rtf" DESTINATION ${CMAKE_INSTALL_DATADIR}/quillet)
install(PROGRAMS ${share}/sample/make-sample-home
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quillet/examples)
install(FILES ${share}/quillet.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# The bus and the desktop start the program by its path, which only the installation knows.
install(CODE "
  set(CMAKE_INSTALL_FULL_BINDIR \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
  set(CMAKE_INSTALL_FULL_LIBEXECDIR \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBEXECDIR}\")
  foreach(file service desktop)
    configure_file(
      \"${share}/${identifier}.\${file}.in\" \"${CMAKE_BINARY_DIR}/${identifier}.\${file}\" @ONLY)
  endforeach()")
install(FILES ${CMAKE_BINARY_DIR}/${identifier}.service
  DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
install(FILES ${CMAKE_BINARY_DIR}/${identifier}.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
