# What is installed, in three components that are packages of the same names:
#   brontel-core            the host library, brontel-host and what belongs to it
#   brontel-plugin-itemdata the plug-in
#   brontel-core-dev        what building a plug-in takes
include(CMakePackageConfigHelpers)
include(${PROJECT_SOURCE_DIR}/host/PublicHeaders.cmake)

set(BRONTEL_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/brontel)
set(BRONTEL_INSTALL_PLUGINDIR ${CMAKE_INSTALL_LIBDIR}/brontel/plugins)
set(BRONTEL_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/Brontel)
set(BRONTEL_INSTALL_PKGCONFIGDIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# brontel-core
install(TARGETS brontel-host RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT brontel-core)
set_target_properties(BrontelCore PROPERTIES EXPORT_NAME Core)
target_compile_features(BrontelCore INTERFACE cxx_std_20)
install(TARGETS BrontelCore EXPORT BrontelTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT brontel-core NAMELINK_COMPONENT brontel-core-dev
  INCLUDES DESTINATION ${BRONTEL_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/app/xsd/invoice.xsd DESTINATION ${CMAKE_INSTALL_DATADIR}/brontel/xsd
  COMPONENT brontel-core)

# brontel-plugin-itemdata: the host loads every library of that folder, so nothing else may lie there.
install(TARGETS BrontelPluginItemData
  LIBRARY DESTINATION ${BRONTEL_INSTALL_PLUGINDIR} COMPONENT brontel-plugin-itemdata)
install(FILES ${PROJECT_SOURCE_DIR}/plugin/xsd/itemdata.xsd DESTINATION ${CMAKE_INSTALL_DATADIR}/brontel/xsd
  COMPONENT brontel-plugin-itemdata)

# brontel-core-dev
foreach(header IN LISTS BRONTEL_PUBLIC_HEADERS)
  cmake_path(GET header PARENT_PATH folder)
  install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${BRONTEL_INSTALL_INCLUDEDIR}/${folder}
    COMPONENT brontel-core-dev)
endforeach()
install(EXPORT BrontelTargets NAMESPACE Brontel:: DESTINATION ${BRONTEL_INSTALL_CMAKEDIR} COMPONENT brontel-core-dev)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/BrontelConfig.cmake.in
  ${PROJECT_BINARY_DIR}/BrontelConfig.cmake
  INSTALL_DESTINATION ${BRONTEL_INSTALL_CMAKEDIR}
  PATH_VARS BRONTEL_INSTALL_PLUGINDIR CMAKE_INSTALL_LOCALEDIR CMAKE_INSTALL_BINDIR
  NO_SET_AND_CHECK_MACRO)
# Like the library's SOVERSION: another minor version may be another interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/BrontelConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/BrontelConfig.cmake ${PROJECT_BINARY_DIR}/BrontelConfigVersion.cmake
  DESTINATION ${BRONTEL_INSTALL_CMAKEDIR} COMPONENT brontel-core-dev)
file(RELATIVE_PATH BRONTEL_PREFIX_FROM_PKGCONFIG
  ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" BRONTEL_PREFIX_FROM_PKGCONFIG ${BRONTEL_PREFIX_FROM_PKGCONFIG})
configure_file(${CMAKE_CURRENT_LIST_DIR}/brontel-core.pc.in ${PROJECT_BINARY_DIR}/brontel-core.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/brontel-core.pc DESTINATION ${BRONTEL_INSTALL_PKGCONFIGDIR}
  COMPONENT brontel-core-dev)
install(FILES ${PROJECT_SOURCE_DIR}/docs/writing-plugins.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/brontel-core-dev/docs
  COMPONENT brontel-core-dev)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/brontel-core-dev
  COMPONENT brontel-core-dev)
