// SPDX-License-Identifier: MIT
#include "app/languages.h"

#include <QtCore/qpointer.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qtranslator.h>
#include <QtGui/qguiapplication.h>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace gallery {

namespace {

struct Language
{
    QLatin1StringView code;
    QLocale::Language language;
    QLocale::Territory territory;
};

// In the Emirates Arabic dates are written with the digits that the programmes' times have.
constexpr std::array languages {
    Language { "en"_L1, QLocale::English, QLocale::UnitedKingdom },
    Language { "ru"_L1, QLocale::Russian, QLocale::Russia },
    Language { "de"_L1, QLocale::German, QLocale::Germany },
    Language { "ar"_L1, QLocale::Arabic, QLocale::UnitedArabEmirates },
};

const Language *findLanguage(const QString &code)
{
    const auto found = std::find_if(languages.begin(), languages.end(),
                                    [&code](const Language &language) { return language.code == code; });
    return found == languages.end() ? nullptr : &*found;
}

} // namespace

QStringList languageCodes()
{
    QStringList codes;
    for (const Language &language : languages)
        codes.append(language.code);
    return codes;
}

QString bestLanguage(const QStringList &wanted)
{
    for (const QString &name : wanted) {
        static const QRegularExpression separator(u"[-_]"_s);
        const QString code = name.section(separator, 0, 0).toLower();
        if (findLanguage(code) != nullptr)
            return code;
    }
    return languages.front().code;
}

QLocale localeOf(const QString &code, const QLocale &system)
{
    const Language *language = findLanguage(code);
    if (language == nullptr || system.language() == language->language)
        return system;
    return QLocale(language->language, language->territory);
}

bool installLanguage(const QString &code)
{
    static QPointer<QTranslator> installed;
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(u":/i18n/stbui_"_s + code + u".qm"_s))
        return false;
    delete installed; // a translator removes itself
    installed = translator.release();
    installed->setParent(qApp);
    QCoreApplication::installTranslator(installed);
    const QLocale locale = localeOf(code, QLocale::system());
    QLocale::setDefault(locale);
    QGuiApplication::setLayoutDirection(locale.textDirection());
    return true;
}

} // namespace gallery
