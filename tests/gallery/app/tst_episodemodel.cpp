// SPDX-License-Identifier: MIT
#include "catalogues.h"
#include "testkit/testcase.h"

#include "app/languages.h"
#include "screens/episodemodel.h"

#include <QtCore/qlocale.h>
#include <QtTest/qsignalspy.h>

using gallery::EpisodeModel;

/*! What the cells of a season are filled with. */
class tst_EpisodeModel : public stbtest::TestCase
{
    Q_OBJECT

    const QDate m_today { 2026, 3, 4 };

    /*! The episodes of the second season: viewed, begun, new, to come, and three new ones. */
    static QList<gallery::MediaItem> season()
    {
        QList<gallery::MediaItem> items;
        for (int i = 4; i < 11; ++i)
            items.append(gallery::catalogueItem(catalogues::seasons(), i));
        return items;
    }

    static QStringList column(const EpisodeModel &model, EpisodeModel::Role role)
    {
        QStringList texts;
        for (int row = 0; row < std::min(4, model.count()); ++row)
            texts.append(model.index(row).data(role).toString());
        return texts;
    }

private Q_SLOTS:
    void cleanup() { QVERIFY(gallery::installLanguage("en")); }

    void everyKindOfEpisodeHasItsCell()
    {
        EpisodeModel model;
        model.setEpisodes(season(), m_today);
        QCOMPARE(column(model, EpisodeModel::CellTypeRole),
                 (QStringList { "viewedTile", "defaultTile", "unViewedTile", "comingSoonTile" }));
    }

    void theStatusTellsWhatTheCellIsFor()
    {
        EpisodeModel model;
        model.setEpisodes(season(), m_today);
        QCOMPARE(column(model, EpisodeModel::StatusRole),
                 (QStringList { "Viewed", "40 min left", "50 min", "12 March" }));
    }

    void aNewEpisodesNoteGoesBeforeItsLength()
    {
        QList<gallery::MediaItem> items = season();
        items[0].position = 0;
        items[0].note = "New";
        items[1].position = 0;
        items[1].duration = 0;
        EpisodeModel model;
        model.setEpisodes(items, m_today);
        QCOMPARE(column(model, EpisodeModel::StatusRole).mid(0, 2), (QStringList { "New", QString() }));
    }

    void theNumberStandsBeforeTheTitle()
    {
        QList<gallery::MediaItem> items = season();
        items[1].episode = 0;
        EpisodeModel model;
        model.setEpisodes(items, m_today);
        QCOMPARE(column(model, EpisodeModel::TitleRole).mid(0, 2), (QStringList { "1. S2E1", "S2E2" }));
    }

    void theOtherRolesHaveTheirValues()
    {
        QList<gallery::MediaItem> items = season();
        items[1].still = QUrl("qrc:/a");
        EpisodeModel model;
        model.setEpisodes(items, m_today);
        const QModelIndex index = model.index(1);
        QCOMPARE(index.data(EpisodeModel::DescriptionRole), "All of S2E2");
        QCOMPARE(index.data(EpisodeModel::StillRole), QUrl("qrc:/a"));
        QCOMPARE(index.data(EpisodeModel::PositionRole), 600.0);
        QCOMPARE(index.data(EpisodeModel::DurationRole), 3000.0);
        QVERIFY(!index.data(Qt::UserRole + 100).isValid());
        QCOMPARE(model.roleNames().size(), 7);
    }

    void anEpisodeComesOutAtTheBeginningOfItsDay()
    {
        EpisodeModel model;
        model.setEpisodes(season(), QDate(2026, 3, 11));
        QVERIFY(model.isToCome(3));
        model.setEpisodes(season(), QDate(2026, 3, 12));
        QVERIFY(!model.isToCome(3));
        QCOMPARE(model.index(3).data(EpisodeModel::CellTypeRole), "unViewedTile");
    }

    void theDayOfAnEpisodeIsTwoWordsInEveryLanguage_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : gallery::languageCodes())
            QTest::newRow(qPrintable(language)) << language;
    }
    void theDayOfAnEpisodeIsTwoWordsInEveryLanguage()
    {
        QFETCH(QString, language);
        QVERIFY(gallery::installLanguage(language));
        for (int month = 1; month <= 12; ++month) {
            QList<gallery::MediaItem> items = season();
            items[3].release = QDate(2027, month, 21);
            EpisodeModel model;
            model.setEpisodes(items, m_today);
            const QString status = model.index(3).data(EpisodeModel::StatusRole).toString();
            QCOMPARE(status.split(u' ').size(), 2);
            QVERIFY(!status.split(u' ').contains(QString()));
        }
    }

    void aMonthOfTwoWordsStaysInOneLine()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Lebanon));
        QList<gallery::MediaItem> items = season();
        items[3].release = QDate(2027, 1, 21);
        EpisodeModel model;
        model.setEpisodes(items, m_today);
        const QString status = model.index(3).data(EpisodeModel::StatusRole).toString();
        QLocale::setDefault(before);
        QCOMPARE(status.split(u' ').size(), 2);
        QVERIFY(status.contains(QChar::Nbsp));
    }

    // A cell is filled once: a row that changed in place would still show what it was.
    void whatACellShowsNeverChangesInPlace()
    {
        EpisodeModel model;
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        QList<gallery::MediaItem> items = season();
        model.setEpisodes(items, m_today);
        QCOMPARE(resets.count(), 1);
        items[1].position += 1;
        model.setEpisodes(items, m_today);
        QCOMPARE(resets.count(), 2);
        model.setEpisodes(items, QDate(2026, 3, 12));
        QCOMPARE(resets.count(), 3);
        QCOMPARE(changes.count(), 0);
    }

    void whatStaysTheSameResetsNothing()
    {
        EpisodeModel model;
        model.setEpisodes(season(), m_today);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.setEpisodes(season(), m_today);
        model.setEpisodes(season(), m_today.addDays(1));
        QCOMPARE(resets.count(), 0);
    }
};

STB_TEST_MAIN(tst_EpisodeModel)
#include "tst_episodemodel.moc"
