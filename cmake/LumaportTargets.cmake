# What every target of this project has in common.

# lumaport_target(NAME): warnings, sanitizers, hardening; its own folder as the include folder of whoever links it, so
# that code reaches no header of a target that it does not link.
function(lumaport_target name)
  get_target_property(type ${name} TYPE)
  if(type STREQUAL "STATIC_LIBRARY")
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  endif()
  target_compile_options(${name} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wformat=2 -Wimplicit-fallthrough -Wno-missing-field-initializers)
  if(LUMAPORT_WARNINGS_AS_ERRORS)
    target_compile_options(${name} PRIVATE -Werror)
  endif()
  target_compile_definitions(${name} PRIVATE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
  if(NOT LUMAPORT_PLAIN_LITERALS)
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII)
  endif()
  lumaport_hardening(${name})
  if(LUMAPORT_SANITIZE)
    lumaport_sanitize(${name} ${LUMAPORT_SANITIZE})
  endif()
endfunction()

function(lumaport_hardening name)
  target_compile_options(${name} PRIVATE -fstack-protector-strong)
  target_link_options(${name} PRIVATE -Wl,-z,relro,-z,now)
  set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  if(CMAKE_BUILD_TYPE STREQUAL "RelWithDebInfo")
    target_compile_definitions(${name} PRIVATE _FORTIFY_SOURCE=2 _GLIBCXX_ASSERTIONS)
  endif()
endfunction()

function(lumaport_sanitize name sanitizers)
  target_compile_options(${name} PRIVATE -fsanitize=${sanitizers} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(${name} PUBLIC -fsanitize=${sanitizers})
endfunction()
