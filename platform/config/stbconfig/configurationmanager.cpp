// SPDX-License-Identifier: MIT
#include "stbconfig/configurationmanager.h"

namespace stbconfig {

namespace {
ConfigurationManager *currentManager = nullptr;
}

ConfigurationManager::~ConfigurationManager() = default;

ConfigurationManager *qmlConfigManager()
{
    return currentManager;
}

void setQmlConfigManager(ConfigurationManager *manager)
{
    currentManager = manager;
}

} // namespace stbconfig
