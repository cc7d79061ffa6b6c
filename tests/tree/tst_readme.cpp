// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qset.h>
#include <QtGui/qimage.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <memory>

namespace {

QByteArray exampleOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QRegularExpression block(QStringLiteral("^```qml\\n(.*?)^```$"),
                                   QRegularExpression::MultilineOption
                                           | QRegularExpression::DotMatchesEverythingOption);
    return block.match(QString::fromUtf8(file.readAll())).captured(1).toUtf8();
}

} // namespace

class tst_Readme : public stbtest::TestCase
{
    Q_OBJECT
private Q_SLOTS:
    void theExampleIsShortEnoughToPaste();
    void theExampleDrawsARow();
};

void tst_Readme::theExampleIsShortEnoughToPaste()
{
    const QByteArray example = exampleOf(QStringLiteral(README));
    QVERIFY(example.contains("EpgViewDelegate"));
    QVERIFY2(example.count('\n') <= 16, qPrintable(QString::number(example.count('\n'))));
}

void tst_Readme::theExampleDrawsARow()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(exampleOf(QStringLiteral(README)), QUrl(QStringLiteral("file:///example.qml")));
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    auto *item = qobject_cast<QQuickItem *>(object.get());
    QVERIFY(item);
    QVERIFY(item->width() > 0 && item->height() > 0);

    QQuickWindow window;
    window.resize(qRound(item->width()), qRound(item->height()));
    item->setParentItem(window.contentItem());
    const QImage picture = window.grabWindow();
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    QVERIFY2(colors.size() > 8, "antialiased text has more shades than that");
    item->setParentItem(nullptr);
}

STB_TEST_MAIN(tst_Readme)
#include "tst_readme.moc"
