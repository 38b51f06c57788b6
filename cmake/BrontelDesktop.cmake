# What desktops and readers of manuals look for: all in the component of brontel-host.
set(desktop ${PROJECT_SOURCE_DIR}/packaging/desktop)
install(FILES ${desktop}/brontel-host.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT brontel-core)
install(FILES ${desktop}/brontel-host.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
  RENAME invalid.brontel.host.metainfo.xml COMPONENT brontel-core)
set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES ${desktop}/brontel-host.svg DESTINATION ${icons}/scalable/apps COMPONENT brontel-core)
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES ${desktop}/icons/${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME brontel-host.png
    COMPONENT brontel-core)
endforeach()
if(NOT BRONTEL_DEBIAN)
  install(FILES ${desktop}/brontel-host.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT brontel-core)
endif()
