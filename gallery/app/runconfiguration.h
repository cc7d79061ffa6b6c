// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_RUNCONFIGURATION_H
#define GALLERY_APP_RUNCONFIGURATION_H

#include "screens/settingsstore.h"

#include <stbconfig/configurationmanager.h>

#include <QtCore/qhash.h>

namespace gallery {

/*!
    The configuration of this run: the values set for it, and behind them the store that was in use before. What the
    viewer chooses is written to that store. From construction to destruction this is the process's configuration
    manager.
*/
class RunConfiguration
    : public stbconfig::ConfigurationManager
    , public SettingsStore
{
    Q_DISABLE_COPY_MOVE(RunConfiguration)
public:
    RunConfiguration();
    ~RunConfiguration() override;

    /*! For this run \a key of \a group has \a value; nothing is written. */
    void setForRun(const QString &group, const QString &key, const QVariant &value);
    /*! Whether setValue() keeps values for this run only. False by default. */
    bool isReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }

    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override;
    /*!
        Writes \a value to the reference store, where it takes the place of the run's own value. When there is another
        store or none, or this one is read-only, the value is the run's.
    */
    bool setValue(const QString &group, const QString &key, const QVariant &value) override;

private:
    stbconfig::ConfigurationManager *m_store;
    QHash<QPair<QString, QString>, QVariant> m_values;
    bool m_readOnly = false;
};

} // namespace gallery

#endif // GALLERY_APP_RUNCONFIGURATION_H
