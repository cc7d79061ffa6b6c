// SPDX-License-Identifier: MIT
#ifndef GALLERY_APP_RUNCONFIGURATION_H
#define GALLERY_APP_RUNCONFIGURATION_H

#include <stbconfig/configurationmanager.h>

#include <QtCore/qhash.h>

namespace gallery {

/*!
    The configuration of this run: the values set here, and behind them the store that was in use before. Nothing
    is written to that store. From construction to destruction it is the process's configuration manager.
*/
class RunConfiguration : public stbconfig::ConfigurationManager
{
    Q_DISABLE_COPY_MOVE(RunConfiguration)
public:
    RunConfiguration();
    ~RunConfiguration() override;

    /*! For this run \a key of \a group has \a value. */
    void setValue(const QString &group, const QString &key, const QVariant &value);

    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override;

private:
    stbconfig::ConfigurationManager *m_store;
    QHash<QPair<QString, QString>, QVariant> m_values;
};

} // namespace gallery

#endif // GALLERY_APP_RUNCONFIGURATION_H
