# Makes targets of what find_package(Qt3) found: zelkit::qt3 (headers, definitions and libraries) and zelkit::moc.
add_library(zelkit::qt3 INTERFACE IMPORTED GLOBAL)
set_target_properties(zelkit::qt3 PROPERTIES
  INTERFACE_INCLUDE_DIRECTORIES "${QT_INCLUDE_DIR}"
  INTERFACE_COMPILE_OPTIONS "${QT_DEFINITIONS}"
  INTERFACE_LINK_LIBRARIES "${QT_LIBRARIES}")
add_executable(zelkit::moc IMPORTED GLOBAL)
set_target_properties(zelkit::moc PROPERTIES IMPORTED_LOCATION "${QT_MOC_EXECUTABLE}")
