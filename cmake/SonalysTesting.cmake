# Test registration: every test case becomes its own CTest test carrying its folder's label, so that
# `ctest -L store` runs exactly the store's tests.

# sonalys_add_gtest(<target> LABEL <label> SOURCES <files...> LIBS <libraries...>)
function(sonalys_add_gtest target)
    cmake_parse_arguments(ARG "" "LABEL" "SOURCES;LIBS" ${ARGN})
    add_executable(${target} ${ARG_SOURCES})
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} sonalys_test_support GTest::gtest GTest::gtest_main)
    gtest_discover_tests(${target}
        TEST_PREFIX "${ARG_LABEL}."
        PROPERTIES LABELS ${ARG_LABEL}
        DISCOVERY_TIMEOUT 60)
endfunction()

# sonalys_add_qtest(<target> LABEL <label> SOURCES <files...> LIBS <libraries...>)
# Qt Test cases run on the offscreen platform; each test function is registered on its own, found by asking
# the built program for its functions right after it is linked.
function(sonalys_add_qtest target)
    cmake_parse_arguments(ARG "" "LABEL" "SOURCES;LIBS" ${ARGN})
    add_executable(${target} ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} sonalys_test_support Qt6::Test)
    set(ctest_file "${CMAKE_CURRENT_BINARY_DIR}/${target}_tests.cmake")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND}
            -D TEST_EXECUTABLE=$<TARGET_FILE:${target}>
            -D TEST_PREFIX=${ARG_LABEL}.${target}
            -D TEST_LABEL=${ARG_LABEL}
            -D TEST_WORKING_DIR=${CMAKE_CURRENT_BINARY_DIR}
            -D CTEST_FILE=${ctest_file}
            -P ${PROJECT_SOURCE_DIR}/cmake/QtTestAddTests.cmake
        VERBATIM)
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${ctest_file})
endfunction()
