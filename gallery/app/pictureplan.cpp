// SPDX-License-Identifier: MIT
#include "app/pictureplan.h"

#include "app/languages.h"
#include "screens/themes.h"

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

// Where \a given is empty all of \a choices, else what stands for "as it is given".
QStringList varied(const QString &given, const QStringList &choices)
{
    return given.isEmpty() ? choices : QStringList { QString() };
}

QString pathOf(const Picture &picture, const QString &folder)
{
    QStringList parts { folder, picture.theme, picture.resolution, picture.language,
                        picture.screen + u".png"_s };
    parts.removeAll(QString());
    return parts.join(u'/');
}

} // namespace

QList<Picture> picturePlan(const Options &options)
{
    QList<Picture> plan;
    if (options.screenshotsFolder.isEmpty())
        return plan;
    const QStringList languages = varied(options.language, languageCodes());
    const QStringList themes = varied(options.theme, themeNames());
    const QStringList resolutions = varied(options.resolution, resolutionNames());
    const QStringList screens = options.screen.isEmpty() ? screenNames() : QStringList { options.screen };
    for (const QString &language : languages) {
        for (const QString &theme : themes) {
            for (const QString &resolution : resolutions) {
                for (const QString &screen : screens) {
                    Picture picture { language, theme, resolution, screen, {} };
                    picture.path = pathOf(picture, options.screenshotsFolder);
                    plan.append(picture);
                }
            }
        }
    }
    return plan;
}

} // namespace gallery
