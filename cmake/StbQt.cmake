# SPDX-License-Identifier: MIT
# Qt 6.4 to 6.11: packages, policies and the place of the QML modules in the build tree.

set(QT_NO_PRIVATE_MODULE_WARNING ON) # Qt 6.10 and later warn about any use of private headers
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Network Qml QmlModels Quick QuickTemplates2)
if(STBUI_BUILD_TESTS OR STBUI_BUILD_BENCHMARKS)
    find_package(Qt6 REQUIRED COMPONENTS Test)
endif()
if(STBUI_BUILD_GALLERY)
    find_package(Qt6 REQUIRED COMPONENTS LinguistTools)
endif()
# Up to Qt 6.9 the private targets come with the public package, later they are packages of their own.
foreach(module IN ITEMS Core Gui Qml Quick)
    if(NOT TARGET Qt6::${module}Private)
        find_package(Qt6 REQUIRED COMPONENTS ${module}Private)
    endif()
endforeach()

qt_standard_project_setup()
foreach(policy IN ITEMS QTP0001 QTP0002 QTP0003 QTP0005)
    if(QT_KNOWN_POLICY_${policy}) # if(POLICY ...) does not know Qt's policies
        qt_policy(SET ${policy} NEW)
    endif()
endforeach()

# A ready import path: qml -I build/<preset>/qml loads every module of this project.
set(QT_QML_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml)
set(STBUI_INSTALL_QMLDIR ${CMAKE_INSTALL_LIBDIR}/qt6/qml CACHE STRING
    "Where the QML modules are installed, relative to the prefix")

# Arguments of qt_add_qml_module that exist in some versions only.
set(STBUI_QML_MODULE_OPTIONS)
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.8)
    list(APPEND STBUI_QML_MODULE_OPTIONS NO_GENERATE_EXTRA_QMLDIRS)
endif()

# stb_quiet_compiled_qml(<target>): the C++ code that Qt makes of the target's QML files shadows its own parameters.
function(stb_quiet_compiled_qml target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/")
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -Wno-shadow)
endfunction()

# stb_install_qml_module(<target> <component>): plugin, qmldir, type description and QML files of a module.
function(stb_install_qml_module target component)
    set(query TARGET_PATH path PLUGIN_TARGET plugin QMLDIR qmldir TYPEINFO typeinfo)
    get_target_property(qml_files ${target} QT_QML_MODULE_QML_FILES)
    if(qml_files) # asked for the files of a module that has none, Qt 6.4 stops
        list(APPEND query QML_FILES files QML_FILES_DEPLOY_PATHS deploy_paths)
    endif()
    qt_query_qml_module(${target} ${query})
    set(destination ${STBUI_INSTALL_QMLDIR}/${path})
    install(TARGETS ${plugin} LIBRARY DESTINATION ${destination} COMPONENT ${component})
    install(FILES ${qmldir} ${typeinfo} DESTINATION ${destination} COMPONENT ${component})
    foreach(file deploy_path IN ZIP_LISTS files deploy_paths)
        cmake_path(GET deploy_path PARENT_PATH folder)
        install(FILES ${file} DESTINATION ${destination}/${folder} COMPONENT ${component})
    endforeach()
endfunction()
