# What can only be seen without the sanitizers: that dlclose really unloads, and what the shipped library looks like.
# brontel_plain_twin(NAME TARGET TYPE): in a sanitized build a second build of a target without them, in a folder of its
# own and under the same file name; otherwise the target itself. Sets NAME to the target to use. Objects of other
# targets that the target takes in come from their twins, which have to be made first.
function(brontel_plain_twin name target type)
  if(NOT BRONTEL_SANITIZE)
    set(${name} ${target} PARENT_SCOPE)
    return()
  endif()
  set(twin ${target}_plain)
  get_target_property(sources ${target} SOURCES)
  get_target_property(folder ${target} SOURCE_DIR)
  set(twinSources)
  foreach(source IN LISTS sources)
    if(source MATCHES "^\\$<TARGET_OBJECTS:(.*)>$")
      list(APPEND twinSources $<TARGET_OBJECTS:${CMAKE_MATCH_1}_plain>)
    else()
      cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${folder} NORMALIZE)
      list(APPEND twinSources ${source})
    endif()
  endforeach()
  add_library(${twin} ${type} EXCLUDE_FROM_ALL ${twinSources})
  target_link_libraries(${twin} PUBLIC brontel_warnings Fox::Fox)
  set_target_properties(${twin} PROPERTIES
    OUTPUT_NAME ${target}
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/plain
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/plain)
  foreach(property CXX_VISIBILITY_PRESET VISIBILITY_INLINES_HIDDEN VERSION SOVERSION)
    get_target_property(value ${target} ${property})
    if(value)
      set_target_properties(${twin} PROPERTIES ${property} ${value})
    endif()
  endforeach()
  set(${name} ${twin} PARENT_SCOPE)
endfunction()

brontel_plain_twin(PLAIN_VALUES fxext_values OBJECT)
brontel_plain_twin(PLAIN_WIDGETS fxext_widgets OBJECT)
brontel_plain_twin(PLAIN_OBJECTS itemdata_objects OBJECT)
brontel_plain_twin(PLAIN_CORE BrontelCore SHARED)
brontel_plain_twin(PLAIN_PLUGIN BrontelPluginItemData MODULE)
if(BRONTEL_SANITIZE)
  target_link_libraries(${PLAIN_CORE} PRIVATE SQLite::SQLite3 LibXml2::LibXml2 Intl::Intl ${CMAKE_DL_LIBS})
  target_link_libraries(${PLAIN_PLUGIN} PRIVATE ${PLAIN_CORE} Intl::Intl)
  get_target_property(pluginFolder BrontelPluginItemData SOURCE_DIR)
  target_link_options(${PLAIN_PLUGIN} PRIVATE
    LINKER:--version-script=${pluginFolder}/exports.map LINKER:-z,defs)
  set_target_properties(${PLAIN_PLUGIN} PROPERTIES LINK_DEPENDS ${pluginFolder}/exports.map)
endif()
