# Writes one add_test() per function of a built Qt Test program (run with -functions).
execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${TEST_EXECUTABLE} -functions
    OUTPUT_VARIABLE listing
    RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${TEST_EXECUTABLE} -functions failed with ${status}")
endif()
string(REPLACE "\n" ";" lines "${listing}")
set(content "")
foreach(line IN LISTS lines)
    string(STRIP "${line}" function)
    string(REGEX REPLACE "\\(\\)$" "" function "${function}")
    if(function STREQUAL "")
        continue()
    endif()
    set(name "${TEST_PREFIX}.${function}")
    string(APPEND content
        "add_test([=[${name}]=] [==[${TEST_EXECUTABLE}]==] [==[${function}]==])\n"
        "set_tests_properties([=[${name}]=] PROPERTIES LABELS ${TEST_LABEL} "
        "ENVIRONMENT QT_QPA_PLATFORM=offscreen WORKING_DIRECTORY [==[${TEST_WORKING_DIR}]==])\n")
endforeach()
file(WRITE "${CTEST_FILE}" "${content}")
