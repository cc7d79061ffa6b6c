// SPDX-License-Identifier: MIT
#include "app/remotekeys.h"

#include <QtCore/qregularexpression.h>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

struct NamedKey
{
    QLatin1StringView name;
    Qt::Key key;
};

constexpr std::array namedKeys {
    NamedKey { "Up"_L1, Qt::Key_Up },
    NamedKey { "Down"_L1, Qt::Key_Down },
    NamedKey { "Left"_L1, Qt::Key_Left },
    NamedKey { "Right"_L1, Qt::Key_Right },
    NamedKey { "PageUp"_L1, Qt::Key_PageUp },
    NamedKey { "PageDown"_L1, Qt::Key_PageDown },
    NamedKey { "Home"_L1, Qt::Key_Home },
    NamedKey { "End"_L1, Qt::Key_End },
    NamedKey { "Return"_L1, Qt::Key_Return },
    NamedKey { "Enter"_L1, Qt::Key_Enter },
    NamedKey { "Select"_L1, Qt::Key_Select },
    NamedKey { "Back"_L1, Qt::Key_Back },
    NamedKey { "Escape"_L1, Qt::Key_Escape },
    NamedKey { "Backspace"_L1, Qt::Key_Backspace },
    NamedKey { "Menu"_L1, Qt::Key_Menu },
    NamedKey { "Info"_L1, Qt::Key_Info },
    NamedKey { "Red"_L1, Qt::Key_Red },
    NamedKey { "Green"_L1, Qt::Key_Green },
    NamedKey { "Yellow"_L1, Qt::Key_Yellow },
    NamedKey { "Blue"_L1, Qt::Key_Blue },
    NamedKey { "F1"_L1, Qt::Key_F1 },
    NamedKey { "F2"_L1, Qt::Key_F2 },
    NamedKey { "F3"_L1, Qt::Key_F3 },
    NamedKey { "F4"_L1, Qt::Key_F4 },
    NamedKey { "F5"_L1, Qt::Key_F5 },
    NamedKey { "HomePage"_L1, Qt::Key_HomePage },
    NamedKey { "Guide"_L1, Qt::Key_Guide },
    NamedKey { "Search"_L1, Qt::Key_Search },
    NamedKey { "ChannelUp"_L1, Qt::Key_ChannelUp },
    NamedKey { "ChannelDown"_L1, Qt::Key_ChannelDown },
    NamedKey { "Play"_L1, Qt::Key_Play },
    NamedKey { "Pause"_L1, Qt::Key_MediaPause },
    NamedKey { "PlayPause"_L1, Qt::Key_MediaTogglePlayPause },
    NamedKey { "Next"_L1, Qt::Key_MediaNext },
    NamedKey { "Previous"_L1, Qt::Key_MediaPrevious },
    NamedKey { "0"_L1, Qt::Key_0 },
    NamedKey { "1"_L1, Qt::Key_1 },
    NamedKey { "2"_L1, Qt::Key_2 },
    NamedKey { "3"_L1, Qt::Key_3 },
    NamedKey { "4"_L1, Qt::Key_4 },
    NamedKey { "5"_L1, Qt::Key_5 },
    NamedKey { "6"_L1, Qt::Key_6 },
    NamedKey { "7"_L1, Qt::Key_7 },
    NamedKey { "8"_L1, Qt::Key_8 },
    NamedKey { "9"_L1, Qt::Key_9 },
};

} // namespace

QStringList remoteKeyNames()
{
    QStringList names;
    std::transform(namedKeys.begin(), namedKeys.end(), std::back_inserter(names),
                   [](const NamedKey &named) { return QString(named.name); });
    return names;
}

RemoteKeys parseRemoteKeys(const QString &text)
{
    static const QRegularExpression separators(u"[\\s,]+"_s);
    RemoteKeys result;
    const QStringList words = text.split(separators, Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const auto named = std::find_if(namedKeys.begin(), namedKeys.end(),
                                        [&word](const NamedKey &candidate) {
                                            return word.compare(candidate.name, Qt::CaseInsensitive) == 0;
                                        });
        if (named == namedKeys.end()) {
            result.unknown = word;
            return result;
        }
        result.keys.append(named->key);
    }
    return result;
}

} // namespace gallery
