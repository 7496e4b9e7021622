# Read by CPack for each kind of package: a .deb spreads its files over the system, the others hold one folder.
if(CPACK_GENERATOR STREQUAL DEB)
    set(CPACK_COMPONENTS_ALL system)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
