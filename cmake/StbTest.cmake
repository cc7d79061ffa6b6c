# SPDX-License-Identifier: MIT

# stb_add_test(<name> SOURCES <files> [LIBRARIES <targets>] [LABELS <labels>])
# One test program named <name> (tst_...) and the CTest test that runs it. It gets the test kit; its main
# function (STB_TEST_MAIN) sets the environment. STBUI_TEST_DATA is passed on from the shell of the run.
function(stb_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;LABELS")
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE stbtest ${arg_LIBRARIES} Qt6::Test)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300)
endfunction()
