# A room is a folder below src/ and one static library. Its headers are included as "room/Header.h"; tools/check_rules
# fails on an include of a room that isn't listed under ROOMS here.

add_library(norvanes_options INTERFACE)
target_compile_options(norvanes_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
# GCC 12 takes joined texts for overlapping memory once it optimises: https://gcc.gnu.org/bugzilla/show_bug.cgi?id=105651
target_compile_options(norvanes_options INTERFACE $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict>)
if(NORVANES_WERROR)
  target_compile_options(norvanes_options INTERFACE -Werror)
endif()
if(NORVANES_SANITIZE)
  target_compile_options(norvanes_options INTERFACE -fsanitize=${NORVANES_SANITIZE} -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(norvanes_options INTERFACE -fsanitize=${NORVANES_SANITIZE})
endif()

# norvanes_room(name SOURCES ... ROOMS ... [LINKS ...]), called in the room's folder
function(norvanes_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;ROOMS;LINKS" ${ARGN})
  add_library(norvanes_${name} STATIC ${ROOM_SOURCES})
  target_include_directories(norvanes_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  list(TRANSFORM ROOM_ROOMS PREPEND norvanes_)
  target_link_libraries(norvanes_${name} PUBLIC ${ROOM_ROOMS} PRIVATE norvanes_options)
  if(ROOM_LINKS)
    target_link_libraries(norvanes_${name} PUBLIC ${ROOM_LINKS})
  endif()
endfunction()

# norvanes_test(name SOURCES ... ROOMS ... [LINKS ...] [ENVIRONMENT ...] [OWN_MAIN]): one test executable for a room,
# every case known to ctest by its name. OWN_MAIN: main() is among the sources.
function(norvanes_test name)
  cmake_parse_arguments(TEST "OWN_MAIN" "" "SOURCES;ROOMS;LINKS;ENVIRONMENT" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  list(TRANSFORM TEST_ROOMS PREPEND norvanes_)
  target_link_libraries(test_${name} PRIVATE ${TEST_ROOMS} ${TEST_LINKS} norvanes_options GTest::gmock GTest::gtest)
  if(NOT TEST_OWN_MAIN)
    target_link_libraries(test_${name} PRIVATE GTest::gtest_main)
  endif()
  target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  gtest_discover_tests(test_${name} TEST_PREFIX ${name}. DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 300 ENVIRONMENT "${TEST_ENVIRONMENT}")
endfunction()

# norvanes_window_test(name ...): as norvanes_test, for tests of the real windows, main() among the sources. Each case runs
# offscreen, and all of them once more on a virtual X display, where focus and activation are the ones a user meets.
# Without xvfb-run that second run shows as skipped.
function(norvanes_window_test name)
  norvanes_test(${name} ${ARGN} OWN_MAIN ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  find_program(NORVANES_XVFB_RUN xvfb-run)
  if(NOT NORVANES_XVFB_RUN)
    message(STATUS "xvfb-run not found: the tests on a virtual display are skipped")
    add_test(NAME ${name}.x11 COMMAND ${CMAKE_COMMAND} -E echo "xvfb-run not found")
    set_tests_properties(${name}.x11 PROPERTIES SKIP_REGULAR_EXPRESSION "xvfb-run not found")
    return()
  endif()
  set(leaks LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/foreign_leaks.txt:print_suppressions=0)
  add_test(NAME ${name}.x11 COMMAND ${NORVANES_XVFB_RUN} --auto-servernum --server-args "-screen 0 1600x1200x24"
                                    $<TARGET_FILE:test_${name}>)
  set_tests_properties(${name}.x11 PROPERTIES TIMEOUT 900 RESOURCE_LOCK display
                                               ENVIRONMENT "QT_QPA_PLATFORM=xcb;${leaks}")
endfunction()
include(GoogleTest)
