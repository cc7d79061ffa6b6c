// SPDX-License-Identifier: MIT
#include "galleryprocess.h"
#include "testkit/testcase.h"

#include "gallery/data/guidereader.h"

#include <QtCore/qbuffer.h>
#include <QtCore/qtemporarydir.h>

/*! What is wrong with a guide file is told, line by line. */
class tst_GuideProblems : public stbtest::TestCase
{
    Q_OBJECT

    static gallery::GuideReport read(QByteArray text)
    {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        return gallery::readGuide(&buffer, QStringLiteral("odd.xml"));
    }

    static QByteArray withoutStart(int count)
    {
        return QByteArray("<programme channel=\"a\" start=\"soon\"/>\n").repeated(count);
    }

private Q_SLOTS:
    void aGoodGuideHasNoMessages()
    {
        QCOMPARE(read("<tv><channel id=\"a\"/></tv>").messages("odd.xml"), QStringList());
        QCOMPARE(gallery::GuideReport().messages({}), QStringList());
    }

    void eachProblemIsALine()
    {
        const QStringList lines = read("<tv>\n" + withoutStart(2) + "</tv>").messages("my.xml");
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].startsWith("my.xml: line 2, column "), qPrintable(lines[0]));
        QVERIFY2(lines[0].contains("\"soon\""), qPrintable(lines[0]));
        QVERIFY2(lines[1].startsWith("my.xml: line 3, column "), qPrintable(lines[1]));
    }

    void ofManyOnlyTheNumberIsTold()
    {
        const QStringList lines = read("<tv>" + withoutStart(27) + "</tv>").messages("my.xml");
        QCOMPARE(lines.size(), gallery::GuideReport::maximumProblems + 1);
        QCOMPARE(lines.last(), "my.xml: and 7 more problems");
    }

    void whereTheFileBreaksOffComesLast()
    {
        const QStringList lines = read("<tv>\n" + withoutStart(1) + "<channel id=\"a\"/>\n<progr")
                                          .messages("odd.xml");
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[1].startsWith("odd.xml: ") && lines[1].contains("line 4"), qPrintable(lines[1]));
    }

    void theProgramPrintsThem()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("odd.xml");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<tv>\n<channel id=\"a\"/>\n" + withoutStart(2) + "</tv>");
        file.close();
        const GalleryRun run = runGallery(
                { "--guide", path, "--screen", "guide", "--now", "2026-03-04T20:05:00Z", "--theme", "default",
                  "--resolution", "hd", "--language", "en", "--screenshots", folder.filePath("shots") });
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errors.count('\n'), 2);
        QVERIFY2(run.errors.contains("odd.xml: line 3, column "), qPrintable(run.errors));
        QVERIFY2(run.errors.contains("odd.xml: line 4, column "), qPrintable(run.errors));
    }
};

STB_TEST_MAIN(tst_GuideProblems)
#include "tst_guideproblems.moc"
