// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_CHANNELS_H
#define STBUI_TEST_CHANNELS_H

#include "guides.h"

namespace channels {

struct Spec
{
    QString id;
    QString number = {};
    QString group = {};
    QString quality = {};
    bool locked = false;
    QUrl logo = {};
    int minutes = 30; // of each show; 0: there are none
    QString name = {}; // "Channel ID" if empty
};

/*! A guide of these channels, with shows called ID and their place in the day. */
inline gallery::Guide guide(const QList<Spec> &specs)
{
    gallery::GuideBuilder builder;
    for (const Spec &spec : specs) {
        gallery::Channel channel;
        channel.id = spec.id;
        channel.name = spec.name.isEmpty() ? "Channel " + spec.id : spec.name;
        channel.number = spec.number;
        channel.group = spec.group;
        channel.quality = spec.quality;
        channel.locked = spec.locked;
        channel.icon = spec.logo;
        builder.addChannel(channel);
        guides::addChannel(builder, spec.id,
                           spec.minutes > 0 ? guides::wholeDay(spec.id, spec.minutes) : QList<guides::Show>());
    }
    return builder.take();
}

/*! Numbers 1 to 7: "n1" and "n2" of the group News, "s1" to "s3" of Sport, "x" of none, the locked "k" of News. */
inline QList<Spec> seven()
{
    const QString news = QStringLiteral("News");
    const QString sport = QStringLiteral("Sport");
    return { { "n1", "1", news, "HD" },   { "s1", "2", sport }, { "n2", "3", news },
             { "s2", "4", sport, "4K" },  { "x", "12" },        { "s3", "40", sport },
             { "k", "7", news, {}, true } };
}

/*! \a count channels called "c0" and so on, numbered from 1, without groups. */
inline gallery::Guide many(int count, int minutes = 60)
{
    QList<Spec> specs;
    for (int i = 0; i < count; ++i)
        specs.append({ "c" + QString::number(i), QString::number(i + 1), {}, {}, false, {}, minutes });
    return guide(specs);
}

} // namespace channels

#endif // STBUI_TEST_CHANNELS_H
