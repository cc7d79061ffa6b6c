# SPDX-License-Identifier: MIT
# The QML module Stbui.UI.Qml.Controls.Basic: its plugin, and Stb::Basic for C++ programs.

# The module's QML components, in the order of the qmldir. A component is listed as soon as its file
# exists, so that no entry points nowhere.
set(components
    BusyIndicator CheckBox CircleProgressBar Keyboard LineEdit MainMenuButton MainMenuEffect MediaBlock
    MediaGridView MediaListView PrimaryButton RadioButton ScrollBar StandardButton TabButton
    Experimental/PlayerButton)
set(qml_files)
foreach(component IN LISTS components)
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/qml/${component}.qml)
        list(APPEND qml_files qml/${component}.qml)
    endif()
endforeach()
if(qml_files)
    list(PREPEND qml_files QML_FILES)
endif()

set(module qmlbasiccontrolsextensionplugin)
qt_add_qml_module(${module}
    URI Stbui.UI.Qml.Controls.Basic
    VERSION 1.0
    PLUGIN_TARGET ${module}
    CLASS_NAME Stbui_UI_Qml_Controls_BasicPlugin
    RESOURCE_PREFIX /
    ${STBUI_QML_MODULE_OPTIONS}
    IMPORT_PATH ${StbPlatform_QML_DIR}
    DEPENDENCIES
        QtQml.Base
        QtQuick
        QtQuickTemplates2
        Stbui.UI.Qml.Design
        Stbui.UI.Qml.Controls.Generic
    SOURCES
        controls/buttons/stbbutton.cpp controls/buttons/stbbutton.h controls/buttons/stbbutton_p.h
        controls/buttons/stbbuttonlayout.cpp controls/buttons/stbbuttonlayout.h
        controls/buttons/stbbuttonwithcheckindicator.cpp controls/buttons/stbbuttonwithcheckindicator.h
        controls/buttons/stbbuttonwithcheckindicator_p.h
        controls/epg/stbepgdate.cpp controls/epg/stbepgdate.h controls/epg/stbepgdate_p.h
        controls/epg/stbepgdatelayout.cpp controls/epg/stbepgdatelayout.h
        controls/epg/stbepgviewdelegate.cpp controls/epg/stbepgviewdelegate.h controls/epg/stbepgviewdelegate_p.h
        controls/epg/stbepgviewdelegatefocused.cpp controls/epg/stbepgviewdelegatefocused.h
        controls/epg/stbepgviewdelegatefocused_p.h
        controls/epg/stbepgviewdelegatefocusedlayout.cpp controls/epg/stbepgviewdelegatefocusedlayout.h
        controls/epg/stbepgviewdelegatelayout.cpp controls/epg/stbepgviewdelegatelayout.h
        controls/epg/stbepisodesviewdelegate.cpp controls/epg/stbepisodesviewdelegate.h
        controls/epg/stbepisodesviewdelegate_p.h
        controls/epg/stbepisodesviewdelegatelayout.cpp controls/epg/stbepisodesviewdelegatelayout.h
        controls/epg/stbhorizontalepgviewdelegate.cpp controls/epg/stbhorizontalepgviewdelegate.h
        controls/epg/stbhorizontalepgviewdelegate_p.h
        controls/epg/stbhorizontalepgviewdelegatelayout.cpp controls/epg/stbhorizontalepgviewdelegatelayout.h
        controls/epg/stbtvchannelviewdelegate.cpp controls/epg/stbtvchannelviewdelegate.h
        controls/epg/stbtvchannelviewdelegate_p.h
        controls/epg/stbtvchannelviewdelegatelayout.cpp controls/epg/stbtvchannelviewdelegatelayout.h
        controls/propertysetters.h
        controls/stylereference.h
        controls/wholepixels.h
        controls/tiles/stbcontenttile.cpp controls/tiles/stbcontenttile.h controls/tiles/stbcontenttile_p.h
        controls/tiles/stbcontenttilelayout.cpp controls/tiles/stbcontenttilelayout.h
        controls/tiles/stbexpandabletile.cpp controls/tiles/stbexpandabletile.h
        controls/tiles/stbexpandabletile_p.h
        controls/tiles/stbvodtile.cpp controls/tiles/stbvodtile.h controls/tiles/stbvodtile_p.h
        controls/tiles/stbvodtilelayout.cpp controls/tiles/stbvodtilelayout.h
        plugin/qmlsettings.cpp plugin/qmlsettings.h
        plugin/versionguard.cpp plugin/versionguard.h
        scenegraph/childnodes.h
        scenegraph/iconnodebuilder.cpp scenegraph/iconnodebuilder.h
        scenegraph/nodehelpers.cpp scenegraph/nodehelpers.h
        scenegraph/picture.cpp scenegraph/picture.h
        scenegraph/qtcompat_p.h
        scenegraph/textnodebuilder.cpp scenegraph/textnodebuilder.h
        scenegraph/throbbernodebuilder.cpp scenegraph/throbbernodebuilder.h
    ${qml_files})
stb_quiet_compiled_qml(${module})
if(TARGET StbGenericPlugin) # the QML files are compiled with its type description
    add_dependencies(${module} StbGenericPlugin)
endif()

# qmltyperegistrar includes the headers of the element types by their bare names.
target_include_directories(${module} PRIVATE
    ${CMAKE_CURRENT_SOURCE_DIR} plugin controls/buttons controls/tiles controls/epg)
set(libraries
    Stb::Config Stb::Core Stb::Design
    Qt6::Core Qt6::Gui Qt6::Network Qt6::Qml Qt6::QmlModels Qt6::Quick Qt6::QuickTemplates2
    Qt6::CorePrivate Qt6::GuiPrivate Qt6::QmlPrivate Qt6::QuickPrivate)
target_link_libraries(${module} PRIVATE ${libraries})
# A MODULE library links happily with undefined symbols and would fail only when it is loaded.
if(NOT STBUI_SANITIZE)
    target_link_options(${module} PRIVATE -Wl,--no-undefined)
endif()

# The registration that the build generates goes through the guard of plugin/versionguard.h.
string(TOLOWER ${module} generated)
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${generated}_qmltyperegistrations.cpp PROPERTIES
    COMPILE_OPTIONS "-include;${CMAKE_CURRENT_SOURCE_DIR}/plugin/versionguard.h"
    COMPILE_DEFINITIONS QQmlModuleRegistration=stbui::GuardedModuleRegistration)

# The plugin's own objects, its generated registration included. A program that links them has the types
# registered before the engine looks, so the plugin file is never loaded beside them.
add_library(stb_basic INTERFACE)
add_library(Stb::Basic ALIAS stb_basic)
target_include_directories(stb_basic INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(stb_basic INTERFACE $<TARGET_OBJECTS:${module}> ${libraries})

stb_install_qml_module(${module} module)
