# Debian packages with CPack: what the components runtime, dev and examples install, each in a package of its own.
# tools/packages configures for this with the preset debian.
set(zelkit_soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

# No path of the build may be left in what is built, not even in the identifier of a library.
add_compile_options(-ffile-prefix-map=${PROJECT_BINARY_DIR}/= -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=)

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL runtime dev examples)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_NAME zelkit)
set(CPACK_PACKAGE_CONTACT "The zelkit developers <zelkit@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Fifteen widgets and dialogs for Qt 3 applications")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
  ${PROJECT_BINARY_DIR}/src ${PROJECT_BINARY_DIR}/toolkit ${PROJECT_BINARY_DIR}/murmel)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzelkit${zelkit_soversion})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS fonts-dejavu-core)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"Clickable labels and buttons, frames that report their mouse events, fields
that report leaving and Escape, a strip chart, and dialogs for a colour, a
colour group and a font. The toolkit underneath is part of this package.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libzelkit-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "libzelkit${zelkit_soversion} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEV_DESCRIPTION
"What programs are built with: headers, the compiler for signals and slots,
manual pages, and the files for CMake, pkg-config and qmake.")

set(CPACK_DEBIAN_EXAMPLES_PACKAGE_NAME zelkit-examples)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_SECTION x11)
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_DEPENDS "libzelkit${zelkit_soversion} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_EXAMPLES_DESCRIPTION
"A gallery of all classes, and small programs as sources.")

foreach(component RUNTIME DEV EXAMPLES)
  string(TOLOWER ${component} name)
  install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${component}_PACKAGE_NAME}
    RENAME copyright COMPONENT ${name})
endforeach()
include(CPack)
