# How this project's tests are built and run: offscreen, with a home and a message bus of their own.

find_program(DBUS_RUN_SESSION dbus-run-session REQUIRED)

# lumaport_test(NAME LIBRARIES <target> ...): NAME.cpp as a Qt test of its own.
function(lumaport_test name)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "SOURCES;LIBRARIES")
  add_executable(${name} ${name}.cpp ${test_SOURCES})
  lumaport_target(${name})
  if(Qt6_VERSION VERSION_GREATER_EQUAL 6.8) # whose QTRY_ macros narrow a number in the line that uses them
    target_compile_options(${name} PRIVATE -Wno-conversion)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}")
  target_link_libraries(${name} PRIVATE Qt6::Test ${test_LIBRARIES})
  lumaport_register_test(${name})
endfunction()

function(lumaport_register_test name)
  set(home "${CMAKE_CURRENT_BINARY_DIR}/home/${name}")
  file(MAKE_DIRECTORY "${home}")
  add_test(NAME ${name} COMMAND "${DBUS_RUN_SESSION}" -- ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${name}> ${ARGN})
  set_tests_properties(${name} PROPERTIES TIMEOUT 600 ENVIRONMENT
    "HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;QT_QPA_PLATFORM=offscreen;QT_QUICK_BACKEND=software;LC_ALL=C.UTF-8;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/leaks.supp:print_suppressions=0;TSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/cmake/races.supp:ignore_noninstrumented_modules=1:print_suppressions=0")
endfunction()
