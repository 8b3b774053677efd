# A folder's QML files and QML-visible types as one module inside its static library.

# Type information lies where the import paths of qmllint and of the type compiler look for it: <folder>/<module path>.
set(QT_QML_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml")
set(LUMAPORT_QML_PREFIX "/qt-project.org/imports") # where an engine looks without being told

# lumaport_qml_module(NAME URI <uri> [DEPENDENCIES <uri> ...] [QML_FILES ...] [SOURCES ...]): makes NAME a QML module. A
# program that links NAME gets the module's plugin imported by itself, which static linking would otherwise drop.
# DEPENDENCIES are the modules from which its C++ types inherit.
function(lumaport_qml_module name)
  cmake_parse_arguments(PARSE_ARGV 1 module "" "URI" "DEPENDENCIES;QML_FILES;SOURCES")
  # Under sanitizers the engine reads the files as they are: compiling what the type compiler writes takes most of a build
  # and is not what is looked at.
  set(cachegen)
  if(LUMAPORT_SANITIZE)
    set(cachegen NO_CACHEGEN)
  endif()
  qt_add_qml_module(${name} STATIC
    URI ${module_URI}
    VERSION 1.0
    RESOURCE_PREFIX "${LUMAPORT_QML_PREFIX}"
    IMPORT_PATH "${QT_QML_OUTPUT_DIRECTORY}"
    DEPENDENCIES ${module_DEPENDENCIES}
    ${cachegen}
    QML_FILES ${module_QML_FILES}
    SOURCES ${module_SOURCES})
  lumaport_target(${name})

  # What the type compiler writes is not ours to keep free of warnings.
  get_target_property(sources ${name} SOURCES)
  list(FILTER sources INCLUDE REGEX "/qmlcache/")
  if(sources)
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
  endif()

  target_link_libraries(${name} INTERFACE "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${name}plugin>")
endfunction()
