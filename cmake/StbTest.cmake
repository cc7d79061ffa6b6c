# SPDX-License-Identifier: MIT

# _stb_set_up_test(<name> <targets>...): what programs of both kinds below share. The tests of the controls spend
# more than half of their compile time in the same headers of Qt; whoever links Stb::Basic reuses them precompiled.
function(_stb_set_up_test name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE stbtest ${ARGN} Qt6::Test)
    # Qt::Test tells each program its folders, which no test asks for. They would make the command lines differ,
    # so that nothing could be shared, neither these headers nor what a compiler cache has of another checkout.
    target_compile_options(${name} PRIVATE -UQT_TESTCASE_BUILDDIR -UQT_TESTCASE_SOURCEDIR)
    if(TARGET stbtest_headers AND NOT name STREQUAL "stbtest_headers" AND "Stb::Basic" IN_LIST ARGN)
        target_precompile_headers(${name} REUSE_FROM stbtest_headers)
        # What CMake makes of moc's files is next to nothing; reading the headers for it is not.
        set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/mocs_compilation.cpp
            PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()
endfunction()

# stb_add_test(<name> SOURCES <files> [LIBRARIES <targets>] [LABELS <labels>])
# One test program named <name> (tst_...) and the CTest test that runs it. It gets the test kit; its main
# function (STB_TEST_MAIN) sets the environment. STBUI_TEST_DATA is passed on from the shell of the run.
function(stb_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;LABELS")
    add_executable(${name} ${arg_SOURCES})
    _stb_set_up_test(${name} ${arg_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300)
endfunction()

find_program(STBUI_XVFB_RUN xvfb-run DOC "Runs the tests of the GPU adaptation on a virtual display")
if(NOT STBUI_XVFB_RUN)
    message(STATUS "No xvfb-run: the tests of the GPU adaptation are built but not run")
endif()

# stb_add_gpu_test(<name> SOURCES <files> [LIBRARIES <targets>] [THREADED])
# A test program as above that runs on OpenGL, rasterised by the processor, in a window of a virtual X display
# (packages xvfb, xauth, libgl1-mesa-dri). Its label is "gpu". With THREADED a second CTest test,
# <name>_threaded, runs it with the render thread of its own that Qt uses by default.
function(stb_add_gpu_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "THREADED" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${arg_SOURCES})
    _stb_set_up_test(${name} ${arg_LIBRARIES})
    if(NOT STBUI_XVFB_RUN)
        return()
    endif()
    _stb_register_gpu_test(${name} ${name} basic)
    # Mesa's rasteriser is not built for the thread sanitizer, which then reports its threads.
    if(arg_THREADED AND NOT STBUI_SANITIZE MATCHES thread)
        _stb_register_gpu_test(${name}_threaded ${name} threaded)
    endif()
endfunction()

function(_stb_register_gpu_test test program render_loop)
    add_test(NAME ${test}
        COMMAND ${STBUI_XVFB_RUN} -a -s "-screen 0 1280x720x24" $<TARGET_FILE:${program}>)
    set(environment
        STBTEST_KEEP=QT_QPA_PLATFORM,QT_QUICK_BACKEND
        QT_QPA_PLATFORM=xcb QT_QUICK_BACKEND=rhi QSG_RHI_BACKEND=opengl QSG_RENDER_LOOP=${render_loop}
        LIBGL_ALWAYS_SOFTWARE=1)
    if(STBUI_SANITIZE MATCHES address)
        list(APPEND environment ASAN_OPTIONS=detect_leaks=0) # the drivers' own leaks have no names to suppress
    endif()
    # Two virtual displays that start at once may pick the same number.
    set_tests_properties(${test} PROPERTIES
        LABELS gpu TIMEOUT 300 RESOURCE_LOCK virtual_display ENVIRONMENT "${environment}")
endfunction()
