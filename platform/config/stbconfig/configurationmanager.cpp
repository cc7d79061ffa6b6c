// SPDX-License-Identifier: MIT
#include "stbconfig/configurationmanager.h"

#include "stbconfig/iniconfigurationmanager.h"

#include <optional>

namespace stbconfig {

namespace {
std::optional<ConfigurationManager *> chosenManager; // empty: the choice is the reference store
}

ConfigurationManager::~ConfigurationManager() = default;

ConfigurationManager *qmlConfigManager()
{
    if (!chosenManager) {
        static IniConfigurationManager referenceStore(IniConfigurationManager::defaultFileName());
        return &referenceStore;
    }
    return *chosenManager;
}

void setQmlConfigManager(ConfigurationManager *manager)
{
    chosenManager = manager;
}

} // namespace stbconfig
