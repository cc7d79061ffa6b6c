// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_SETTINGSSTORES_H
#define STBUI_TEST_SETTINGSSTORES_H

#include "screens/settingsstore.h"

#include <QtCore/qmap.h>
#include <QtCore/qstringlist.h>

/*! A store that begins with given values, for example { "UI/theme", "light" }, and tells what was written to it. */
class RecordingStore : public gallery::SettingsStore
{
public:
    explicit RecordingStore(const QMap<QString, QVariant> &stored = {})
        : values(stored)
    {
    }
    QVariant value(const QString &group, const QString &key, const QVariant &defaultValue) const override
    {
        return values.value(group + u'/' + key, defaultValue);
    }
    bool setValue(const QString &group, const QString &key, const QVariant &value) override
    {
        values.insert(group + u'/' + key, value);
        written.append(group + u'/' + key + u'=' + value.toString());
        return !full;
    }

    void clear()
    {
        values.clear();
        written.clear();
        full = false;
    }

    QMap<QString, QVariant> values;
    QStringList written;
    bool full = false; // nothing can be kept
};

#endif // STBUI_TEST_SETTINGSSTORES_H
