# SPDX-License-Identifier: MIT
# Installs the reference platform as the CMake package StbPlatform, as a vendor's own platform would be.
include(CMakePackageConfigHelpers)

install(TARGETS StbConfig StbCore StbDesign EXPORT StbPlatformTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT platform NAMELINK_COMPONENT platform)
foreach(folder IN ITEMS config/stbconfig core/stbcore design/design_system)
    install(DIRECTORY ${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT platform
        FILES_MATCHING PATTERN *.h PATTERN *_p.h EXCLUDE)
endforeach()

# The module's own type description names the style classes, so their meta-types go with the headers.
get_target_property(metatypes StbDesign INTERFACE_QT_META_TYPES_BUILD_FILE)
set(metatypes_installed ${CMAKE_INSTALL_LIBDIR}/metatypes/stbdesign_metatypes.json)
cmake_path(GET metatypes_installed PARENT_PATH metatypes_folder)
install(FILES ${metatypes} DESTINATION ${metatypes_folder} RENAME stbdesign_metatypes.json COMPONENT platform)
set(consumed $<BOOL:$<TARGET_PROPERTY:QT_CONSUMES_METATYPES>>)
target_sources(StbDesign INTERFACE
    $<INSTALL_INTERFACE:$<${consumed}:$<INSTALL_PREFIX>/${metatypes_installed}>>)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/StbPlatform)
install(EXPORT StbPlatformTargets NAMESPACE Stb:: DESTINATION ${package} COMPONENT platform)
configure_package_config_file(
    ${PROJECT_SOURCE_DIR}/cmake/StbPlatformConfig.cmake.in StbPlatformConfig.cmake
    INSTALL_DESTINATION ${package} PATH_VARS STBUI_INSTALL_QMLDIR)
write_basic_package_version_file(StbPlatformConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/StbPlatformConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/StbPlatformConfigVersion.cmake
    DESTINATION ${package} COMPONENT platform)
