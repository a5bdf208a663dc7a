# What `cmake --install` lays down, in three parts (library, development, program), and the Debian packages of them.
include(CMakePackageConfigHelpers)

set(PASTA_DO_PACOTE ${CMAKE_INSTALL_LIBDIR}/cmake/TarvoESocialCampos)
set(PASTA_DOS_CABECALHOS ${CMAKE_INSTALL_INCLUDEDIR}/tarvo-esocial-campos)

install(TARGETS tarvo_esocial_campos_dinamica EXPORT TarvoESocialCampos
  LIBRARY COMPONENT biblioteca NAMELINK_COMPONENT desenvolvimento)
install(TARGETS tarvo_esocial_campos EXPORT TarvoESocialCampos ARCHIVE COMPONENT desenvolvimento)
install(DIRECTORY src/ DESTINATION ${PASTA_DOS_CABECALHOS} COMPONENT desenvolvimento
  FILES_MATCHING PATTERN "*.h" PATTERN "c" EXCLUDE PATTERN "firebird" EXCLUDE)
install(FILES src/c/tarvo_esocial.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT desenvolvimento)

install(EXPORT TarvoESocialCampos NAMESPACE Tarvo:: DESTINATION ${PASTA_DO_PACOTE} COMPONENT desenvolvimento)
configure_package_config_file(cmake/instalacao/TarvoESocialCamposConfig.cmake.in TarvoESocialCamposConfig.cmake
  INSTALL_DESTINATION ${PASTA_DO_PACOTE} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(TarvoESocialCamposConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/TarvoESocialCamposConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/TarvoESocialCamposConfigVersion.cmake
  DESTINATION ${PASTA_DO_PACOTE} COMPONENT desenvolvimento)

# From its own place, so that the tree may be moved.
file(RELATIVE_PATH PREFIXO_DO_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/instalacao/tarvo-esocial-campos.pc.in tarvo-esocial-campos.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tarvo-esocial-campos.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT desenvolvimento)

install(TARGETS esocial-campos RUNTIME COMPONENT programa)
configure_file(cmake/instalacao/esocial-campos.1.in esocial-campos.1 @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/esocial-campos.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
  COMPONENT programa)
install(FILES cmake/instalacao/esocial-campos.bash RENAME esocial-campos
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT programa)
install(DIRECTORY docs/eventos DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tarvo-esocial-campos COMPONENT desenvolvimento)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "Tarvo")
set(CPACK_PACKAGE_CONTACT "Tarvo <esocial@tarvo.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Dados dos eventos do eSocial, do banco da folha de pagamento")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL biblioteca desenvolvimento programa)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_BIBLIOTECA_PACKAGE_NAME
  libtarvo-esocial-campos${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(CPACK_DEBIAN_BIBLIOTECA_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_BIBLIOTECA_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_BINARY_DIR}/triggers)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_DESENVOLVIMENTO_PACKAGE_NAME libtarvo-esocial-campos-dev)
set(CPACK_DEBIAN_DESENVOLVIMENTO_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DESENVOLVIMENTO_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DESENVOLVIMENTO_PACKAGE_DEPENDS
  "${CPACK_DEBIAN_BIBLIOTECA_PACKAGE_NAME} (= ${PROJECT_VERSION}), firebird-dev, libpugixml-dev")
set(CPACK_DEBIAN_PROGRAMA_PACKAGE_NAME esocial-campos)
set(CPACK_DEBIAN_PROGRAMA_PACKAGE_SECTION utils)
# Without the engine of the client's version the program reaches servers, but opens no file.
set(CPACK_DEBIAN_PROGRAMA_PACKAGE_RECOMMENDS "firebird4.0-server-core | firebird3.0-server-core")
set(CPACK_DEBIAN_BIBLIOTECA_PACKAGE_RECOMMENDS ${CPACK_DEBIAN_PROGRAMA_PACKAGE_RECOMMENDS})
set(CPACK_COMPONENT_BIBLIOTECA_DESCRIPTION "Biblioteca que carrega os eventos do eSocial (S-1000 a S-3000).")
set(CPACK_COMPONENT_DESENVOLVIMENTO_DESCRIPTION "Cabeçalhos, biblioteca estática e referência dos eventos.")
set(CPACK_COMPONENT_PROGRAMA_DESCRIPTION "Programa que carrega os eventos e os mostra em JSON.")
include(CPack)
