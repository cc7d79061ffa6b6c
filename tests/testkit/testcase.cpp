// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qfont.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace stbtest {
namespace {

RandomOptions givenOptions;

} // namespace

void TestCase::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void setUpEnvironment()
{
    static const QTemporaryDir home; // nothing is read from, or left in, the user's folders
    const QByteArray homePath = home.path().toLocal8Bit();
    const QList<QByteArray> kept = qgetenv("STBTEST_KEEP").split(',');
    const auto set = [&kept](const char *name, const QByteArray &value) {
        if (!kept.contains(name))
            qputenv(name, value);
    };
    set("QT_QPA_PLATFORM", "offscreen");
    set("QT_QUICK_BACKEND", "software");
    set("LANG", "C.UTF-8");
    set("LC_ALL", "C.UTF-8");
    set("LANGUAGE", "");
    set("TZ", "UTC");
    set("FONTCONFIG_FILE", STBTEST_FONTCONFIG);
    set("QML_IMPORT_PATH", STBTEST_QML_IMPORT_PATH);
    set("XDG_CONFIG_HOME", homePath + "/config");
    set("XDG_CACHE_HOME", homePath + "/cache");
    set("XDG_DATA_HOME", homePath + "/data");
    set("XDG_RUNTIME_DIR", homePath);
    for (const char *name : { "QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_LOGGING_RULES", "QML2_IMPORT_PATH",
                              "STBUI_CONFIG", "QT_PLUGIN_PATH" }) {
        if (!kept.contains(name))
            qunsetenv(name);
    }
    tzset();
}

RandomOptions randomOptions()
{
    return givenOptions;
}

bool takeRandomOptions(int &argc, char **argv)
{
    givenOptions = RandomOptions();
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        const bool isSeed = qstrcmp(argv[i], "--seed") == 0;
        if (!isSeed && qstrcmp(argv[i], "--steps") != 0) {
            argv[kept++] = argv[i];
            continue;
        }
        bool ok = false;
        const uint number = i + 1 < argc ? QByteArray(argv[i + 1]).toUInt(&ok) : 0;
        if (!ok || (!isSeed && number > 10000000)) {
            std::fprintf(stderr, "%s needs a number\n", argv[i]);
            return false;
        }
        if (isSeed)
            givenOptions.seed = number;
        else
            givenOptions.steps = int(number);
        ++i;
    }
    argc = kept;
    argv[argc] = nullptr;
    return true;
}

std::unique_ptr<QGuiApplication> makeApplication(int &argc, char **argv)
{
    if (!takeRandomOptions(argc, argv))
        std::exit(2);
    auto app = std::make_unique<QGuiApplication>(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 12));
    return app;
}

} // namespace stbtest
