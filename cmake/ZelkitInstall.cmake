# What `cmake --install` adds beside the libraries, headers and programs: the CMake package, the pkg-config files,
# the feature for qmake and the description for Qt Designer. All of them find what they need from where they lie, so
# an installed tree may be moved.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/zelkit)
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(install_files ${CMAKE_CURRENT_LIST_DIR}/../install)
set(configured ${PROJECT_BINARY_DIR}/install)

# CMake: find_package(zelkit 0.18)
install(EXPORT zelkit NAMESPACE zelkit:: FILE zelkitTargets.cmake DESTINATION ${package_folder} COMPONENT dev)
configure_package_config_file(${install_files}/zelkitConfig.cmake.in ${configured}/zelkitConfig.cmake
  INSTALL_DESTINATION ${package_folder} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${configured}/zelkitConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${configured}/zelkitConfig.cmake ${configured}/zelkitConfigVersion.cmake
  ${CMAKE_CURRENT_LIST_DIR}/ZelkitMoc.cmake ${CMAKE_CURRENT_LIST_DIR}/ZelkitQt3.cmake
  DESTINATION ${package_folder} COMPONENT dev)

# pkg-config and qmake
file(RELATIVE_PATH ZELKIT_PC_PREFIX /prefix/${pkgconfig_folder} /prefix)
string(REGEX REPLACE "/$" "" ZELKIT_PC_PREFIX ${ZELKIT_PC_PREFIX})
if(ZELKIT_TOOLKIT_USED STREQUAL bundled)
  set(ZELKIT_PC_TOOLKIT zeltk)
  set(ZELKIT_PC_MOC "\${prefix}/${CMAKE_INSTALL_BINDIR}/zeltk-moc")
  set(ZELKIT_PRF_CONFIG moc)
  configure_file(${install_files}/zeltk.pc.in ${configured}/zeltk.pc @ONLY)
  install(FILES ${configured}/zeltk.pc DESTINATION ${pkgconfig_folder} COMPONENT dev)
else()
  if("${QT_LIBRARIES}" MATCHES "qt-mt")
    set(ZELKIT_PC_TOOLKIT qt-mt)
  else()
    set(ZELKIT_PC_TOOLKIT qt)
  endif()
  set(ZELKIT_PC_MOC ${QT_MOC_EXECUTABLE})
  set(ZELKIT_PRF_CONFIG "qt moc")
endif()
configure_file(${install_files}/zelkit.pc.in ${configured}/zelkit.pc @ONLY)
configure_file(${install_files}/zelkit.prf.in ${configured}/zelkit.prf @ONLY)
install(FILES ${configured}/zelkit.pc DESTINATION ${pkgconfig_folder} COMPONENT dev)
install(FILES ${install_files}/zelkit.cw DESTINATION ${CMAKE_INSTALL_DATADIR}/zelkit COMPONENT dev)
install(FILES ${configured}/zelkit.prf DESTINATION ${CMAKE_INSTALL_DATADIR}/zelkit/features COMPONENT dev)
