// SPDX-License-Identifier: MIT
#include "screens/componenteditors.h"

#include <QtCore/qdatetime.h>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

using namespace editors;
using Editors = QList<ComponentEditor>;

// A tile that has a state from its beginning shows each later one.
Editors tileEditors(const QString &start, const QString &other)
{
    return { begun(late(state({ u"normal"_s, u"focused"_s })), u"normal"_s),
             picture(u"imageSource"_s, start, other), color(u"itemBackgroundColor"_s) };
}

Editors captionEditors(const QString &status)
{
    return { text(u"itemTitle"_s, u"The Ferry"_s), text(u"itemSubtitle"_s, u"Drama"_s),
             text(u"itemStatus"_s, status), flag(u"itemIsFavourite"_s) };
}

Editors epgEditors()
{
    return { length(u"width"_s, 760, 240, 840, 40),
             text(u"itemTitle"_s, u"The Nature of Rivers"_s),
             text(u"itemSubtitle"_s, u"Documentary, part 3"_s),
             texts(u"tvProgramStartTimeText"_s, u"20:05"_s, { u"8:05 PM"_s }),
             begun(flag(u"tvProgramIsLive"_s), true),
             flag(u"tvProgramIsFuture"_s),
             begun(flag(u"tvProgramPlayable"_s), true) };
}

ComponentPage tilePage(const QString &name, const QString &styleName, const Editors &editors, int below)
{
    return { .name = name,
             .module = u"Basic"_s,
             .settings = { styleLine(styleName) },
             .editors = editors,
             .overhang = { 12, 14, 12, 14 + below } };
}

ComponentPage epgDatePage()
{
    QList<ComponentChoice> days { {} };
    for (const int month : { 3, 9, 12 }) {
        days.append({ .qml = u"new Date(2026, %1, 8)"_s.arg(month - 1), .value = QDate(2026, month, 8) });
    }
    return { .name = u"EpgDate"_s,
             .module = u"Basic"_s,
             .settings = { styleLine(u"playerEpgDateStyle"_s) },
             .editors = { begun(choice(u"date"_s, {}, days), QDate(2026, 3, 8)), flag(u"isActive"_s, true),
                          length(u"width"_s, 160, 40, 320, 20), length(u"height"_s, 80, 40, 160, 20) } };
}

ComponentPage epgViewDelegateFocusedPage()
{
    return { .name = u"EpgViewDelegateFocused"_s,
             .module = u"Basic"_s,
             .settings = { styleLine(u"playerEpgDelegateStyle"_s) },
             .editors = epgEditors()
                        + Editors { picture(u"imageSource"_s, u"still_nature.jpg"_s, u"still_travel.jpg"_s),
                                    share(u"tvProgramProgress"_s, 0.4), flag(u"tvProgramHasReminder"_s),
                                    flag(u"tvProgramIsPast"_s) } };
}

ComponentPage episodesViewDelegatePage()
{
    const auto kind = [](const QString &name) { return ComponentChoice { u'"' + name + u'"', name }; };
    return { .name = u"EpisodesViewDelegate"_s,
             .module = u"Basic"_s,
             .settings = { styleLine(u"playerEpisodesItemStyle"_s) },
             .editors = { begun(choice(u"listItemType"_s, QString(),
                                       { { .qml = u"\"\""_s, .value = QString() },
                                         kind(u"defaultTile"_s),
                                         kind(u"unViewedTile"_s),
                                         kind(u"viewedTile"_s),
                                         kind(u"comingSoonTile"_s) }),
                                u"defaultTile"_s),
                          picture(u"imageSource"_s, u"station_1.jpg"_s, u"station_2.jpg"_s),
                          text(u"itemTitle"_s, u"1. The Platform"_s), text(u"itemSubtitle"_s),
                          texts(u"itemStatus"_s, u"12 March"_s, { u"25 min left"_s, u"Viewed"_s }),
                          begun(number(u"mediaPositionsProgressBarViewed"_s, 0, 0, 60, 5), 20.0),
                          begun(number(u"mediaPositionsProgressBarValue"_s, 0, 0, 60, 5), 45.0),
                          length(u"width"_s, 904, 320, 904, 8), length(u"height"_s, 180, 60, 180, 20) } };
}

ComponentPage horizontalEpgViewDelegatePage()
{
    return { .name = u"HorizontalEpgViewDelegate"_s,
             .module = u"Basic"_s,
             .settings = { styleLine(u"playerHorizontalEpgViewStyle"_s) },
             .editors = { picture(u"imageSource"_s, u"still_nature.jpg"_s, u"still_travel.jpg"_s),
                          text(u"itemTitle"_s, u"The Nature of Rivers"_s),
                          texts(u"tvProgramExactDate"_s, u"Today, 20:05 – 20:45"_s, { u"8 March"_s }),
                          text(u"tvProgramDescription"_s, u"Documentary, part 3"_s),
                          length(u"width"_s, 564, 240, 640, 4), length(u"height"_s, 144, 108, 200, 4) } };
}

ComponentPage tvChannelViewDelegatePage()
{
    return { .name = u"TvChannelViewDelegate"_s,
             .module = u"Basic"_s,
             .settings = { styleLine(u"playerTvChannelItemStyle"_s) },
             .editors = { texts(u"imageSource"_s, u"qrc:/resources/pictures/logo_nature.png"_s,
                                { u"qrc:/resources/pictures/logo_news.png"_s }),
                          text(u"channelListChannelName"_s, u"Nature"_s),
                          texts(u"channelListChannelNumber"_s, u"7"_s, { u"1024"_s }),
                          texts(u"channelListChannelQuality"_s, u"HD"_s, { u"UHD"_s }),
                          text(u"channelListProgramName"_s, u"The Nature of Rivers"_s),
                          share(u"channelListProgramProgress"_s, 0.4),
                          begun(flag(u"channelListChannelLive"_s), true),
                          flag(u"channelListLockIconVisible"_s), color(u"channelNameColor"_s),
                          length(u"width"_s, 640, 320, 840, 40), length(u"height"_s, 96, 96, 160, 8) } };
}

ComponentPage vodTilePage()
{
    return tilePage(u"VodTile"_s, u"vodTileStyle"_s,
                    tileEditors(u"ferry.jpg"_s, u"peaks.jpg"_s) + captionEditors(u"Rented"_s)
                            + Editors { texts(u"ratingText"_s, u"12+"_s, { u"0+"_s }),
                                        begun(picture(u"rightholderImageSource"_s, u"mark_wave.png"_s,
                                                      u"mark_leaf.png"_s),
                                              QString()),
                                        begun(number(u"mediaPositionsTimepoint"_s, 0, 0, 120, 10), 40.0),
                                        begun(number(u"moviePosterDuration"_s, 0, 0, 120, 10), 100.0) },
                    90);
}

} // namespace

QList<ComponentPage> componentItemPages()
{
    return { tilePage(u"ContentTile"_s, u"contentTileStyle"_s,
                      tileEditors(u"ferry_wide.jpg"_s, u"peaks_wide.jpg"_s) + captionEditors(u"New"_s), 90),
             epgDatePage(),
             { .name = u"EpgViewDelegate"_s,
               .module = u"Basic"_s,
               .settings = { styleLine(u"playerEpgDelegateStyle"_s) },
               .editors = epgEditors() },
             epgViewDelegateFocusedPage(),
             episodesViewDelegatePage(),
             tilePage(u"ExpandableTile"_s, u"expandableTileStyle"_s,
                      tileEditors(u"ferry_wide.jpg"_s, u"peaks_wide.jpg"_s), 0),
             horizontalEpgViewDelegatePage(),
             tvChannelViewDelegatePage(),
             vodTilePage() };
}

} // namespace gallery
