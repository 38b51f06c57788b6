# The three packages for Debian and Ubuntu, one for each component; packaging/make-packages builds them. What Debian wants
# beside the program lies in packaging/debian.
if(NOT BRONTEL_DEBIAN)
  return()
endif()
find_program(GZIP_EXECUTABLE gzip REQUIRED)
set(debian ${PROJECT_SOURCE_DIR}/packaging/debian)
set(compressed ${PROJECT_BINARY_DIR}/debian)

# compress(SOURCE NAME): NAME.gz from SOURCE, always the same bytes.
function(compress source name)
  add_custom_command(OUTPUT ${compressed}/${name}.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${compressed}
    COMMAND ${CMAKE_COMMAND} -E copy ${source} ${compressed}/${name}
    COMMAND ${GZIP_EXECUTABLE} -9nf ${compressed}/${name}
    DEPENDS ${source}
    VERBATIM)
endfunction()

compress(${debian}/changelog changelog.Debian)
compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md changelog)
compress(${PROJECT_SOURCE_DIR}/packaging/desktop/brontel-host.1 brontel-host.1)
add_custom_target(debian_files ALL
  DEPENDS ${compressed}/changelog.Debian.gz ${compressed}/changelog.gz ${compressed}/brontel-host.1.gz)
install(FILES ${compressed}/brontel-host.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT brontel-core)

set(CPACK_COMPONENTS_ALL brontel-core brontel-plugin-itemdata brontel-core-dev)
foreach(package IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${package} key)
  install(FILES ${debian}/copyright ${compressed}/changelog.Debian.gz ${compressed}/changelog.gz
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${package})
  install(FILES ${debian}/${package}.lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${package} COMPONENT ${package})
  file(READ ${debian}/${package}.description CPACK_DEBIAN_${key}_DESCRIPTION)
  string(STRIP "${CPACK_DEBIAN_${key}_DESCRIPTION}" CPACK_DEBIAN_${key}_DESCRIPTION)
  set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${key}_PACKAGE_SECTION misc)
endforeach()

# CPack would put the project's before each package's own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Brontel maintainers <maintainers@brontel.invalid>")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Whatever the builder's umask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

# The libraries that programs need, by the packages that they are in; the library that the packages bring themselves is
# looked for where it was built.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(own "brontel-core (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")
set(CPACK_DEBIAN_BRONTEL-CORE_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_BRONTEL-CORE_PACKAGE_RECOMMENDS brontel-plugin-itemdata)
configure_file(${debian}/shlibs.in ${compressed}/shlibs @ONLY)
set(CPACK_DEBIAN_BRONTEL-CORE_PACKAGE_CONTROL_EXTRA "${compressed}/shlibs;${debian}/triggers")
set(CPACK_DEBIAN_BRONTEL-PLUGIN-ITEMDATA_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_BRONTEL-PLUGIN-ITEMDATA_PACKAGE_DEPENDS ${own})
set(CPACK_DEBIAN_BRONTEL-CORE-DEV_PACKAGE_DEPENDS "${own}, libfox-1.6-dev")
set(CPACK_DEBIAN_BRONTEL-CORE-DEV_PACKAGE_SECTION devel)
include(CPack)
