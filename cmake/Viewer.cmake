# Helpers shared by the CMakeLists.txt of every folder.

# viewer_library(NAME SOURCES ... LIBS ...): one folder, one static library. Includes are written from src/.
function(viewer_library name)
    cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} STATIC ${A_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${A_LIBS} PRIVATE viewer_warnings)
endfunction()

# viewer_test(NAME SOURCES ... LIBS ...): one test program; each of its cases is a ctest case.
function(viewer_test name)
    cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${A_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${A_LIBS} viewer_warnings GTest::gmock)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300 ENVIRONMENT
                         "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1")
endfunction()
