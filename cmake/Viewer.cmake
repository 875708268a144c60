# Helpers shared by the CMakeLists.txt of every folder.

# viewer_library(NAME SOURCES ... LIBS ...): one folder, one static library. Includes are written from src/.
function(viewer_library name)
    cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
    add_library(${name} STATIC ${A_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${A_LIBS} PRIVATE viewer_warnings)
    viewer_use_precompiled(${name})
endfunction()

# viewer_test(NAME SOURCES ... LIBS ...): puts tests into the test program of this name, which several folders may share; each
# of its cases is a ctest case.
function(viewer_test name)
    cmake_parse_arguments(A "" "" "SOURCES;LIBS" ${ARGN})
    if(NOT TARGET ${name})
        add_executable(${name})
        target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/tests)
        target_link_libraries(${name} PRIVATE viewer_warnings GTest::gmock)
        viewer_use_precompiled(${name})
        gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300 ENVIRONMENT
                             "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1")
    endif()
    target_sources(${name} PRIVATE ${A_SOURCES})
    target_link_libraries(${name} PRIVATE ${A_LIBS})
endfunction()
