// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "gallery/data/foldedtext.h"

using gallery::foldedText;
using gallery::matchOf;
using gallery::searchWords;
using gallery::TextMatch;

Q_DECLARE_METATYPE(gallery::TextMatch)

/*! How texts are compared when somebody searches. */
class tst_FoldedText : public stbtest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void foldsWhatDoesNotMatter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("folded");
        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("case") << "The NATURE of Rivers"
                              << "the nature of rivers";
        QTest::newRow("accents") << "Café Zoë à l'Été"
                                 << "cafe zoe a l'ete";
        QTest::newRow("accents of their own") << "Cafe\u0301"
                                              << "cafe";
        QTest::newRow("umlauts") << "Öl für ÄRZTE"
                                 << "ol fur arzte";
        QTest::newRow("sharp s") << "Straße"
                                 << "strasse";
        QTest::newRow("capital sharp s") << "STRAẞE"
                                         << "strasse";
        QTest::newRow("Russian case") << "Новости Дня"
                                      << "новости дня";
        QTest::newRow("yo is ye") << "Ёлка и мёд"
                                  << "елка и мед";
        QTest::newRow("short i stays") << "Йод, мой край"
                                       << "йод, мой край";
        QTest::newRow("short i of two characters") << "мои\u0306"
                                                   << "мой";
        QTest::newRow("Arabic vowel signs") << "كِتَابٌ"
                                            << "كتاب";
        QTest::newRow("Arabic doubling") << "محمّد"
                                         << "محمد";
        QTest::newRow("Arabic hamza") << "أخبار إلى"
                                      << "اخبار الي";
        QTest::newRow("Arabic letters written one for the other") << "مدرسة مستشفى ٱلبيت"
                                                                  << "مدرسه مستشفي البيت";
        QTest::newRow("digits of other scripts") << "٢٤ ساعة, ०९"
                                                 << "24 ساعه, 09";
        QTest::newRow("letters that have no mark")
                << "Smørrebrød, Łódź, Æon, œuvre, Đà, ışık, Þór, Guðrún"
                << "smorrebrod, lodz, aeon, oeuvre, da, isik, thor, gudrun";
        QTest::newRow("apostrophes and dashes of print") << "Don’t, ‘n’ Spider‑Man – M—L"
                                                         << "don't, 'n' spider-man - m-l";
        QTest::newRow("stretched Arabic") << "الأخبـــار"
                                          << "الاخبار";
        QTest::newRow("ligature") << "ﬁlm"
                                  << "film";
        QTest::newRow("beyond the first plane") << "🎬 A"
                                                << "🎬 a";
    }
    void foldsWhatDoesNotMatter()
    {
        QFETCH(QString, text);
        QFETCH(QString, folded);
        QCOMPARE(foldedText(text), folded);
        QCOMPARE(foldedText(folded), folded);
    }

    void aSearchHasWordsWithoutBlanks()
    {
        QCOMPARE(searchWords("  The  SEA\t "), (QStringList { "the", "sea" }));
        QCOMPARE(searchWords(" \t "), QStringList());
    }

    void matches_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("query");
        QTest::addColumn<TextMatch>("match");
        QTest::newRow("beginning") << "The Nature of Rivers"
                                   << "the" << TextMatch::WordStart;
        QTest::newRow("beginning of another word") << "The Nature of Rivers"
                                                   << "riv" << TextMatch::WordStart;
        QTest::newRow("inside") << "The Nature of Rivers"
                                << "ver" << TextMatch::Inside;
        QTest::newRow("inside first, then a word") << "Driver and River"
                                                   << "river" << TextMatch::WordStart;
        QTest::newRow("behind a sign") << "(Un)seen"
                                       << "seen" << TextMatch::WordStart;
        QTest::newRow("behind a digit") << "9lives"
                                        << "lives" << TextMatch::Inside;
        QTest::newRow("not there") << "The Nature of Rivers"
                                   << "sea" << TextMatch::None;
        QTest::newRow("several words in any order") << "The Nature of Rivers"
                                                    << "riv nat" << TextMatch::WordStart;
        QTest::newRow("one of them inside") << "The Nature of Rivers"
                                            << "the ver" << TextMatch::Inside;
        QTest::newRow("one of them missing") << "The Nature of Rivers"
                                             << "the sea" << TextMatch::None;
        QTest::newRow("nothing asked") << "The Nature of Rivers"
                                       << " " << TextMatch::None;
        QTest::newRow("nothing there") << ""
                                       << "a" << TextMatch::None;
        QTest::newRow("an Arabic article") << "الكتاب"
                                           << "كتاب" << TextMatch::Inside;
        QTest::newRow("an unaccented letter finds the accented") << "Été"
                                                                 << "ete" << TextMatch::WordStart;
        QTest::newRow("and the other way round") << "Ete"
                                                 << "Été" << TextMatch::WordStart;
    }
    void matches()
    {
        QFETCH(QString, title);
        QFETCH(QString, query);
        QTEST(matchOf(foldedText(title), searchWords(query)), "match");
    }
};

STB_TEST_MAIN(tst_FoldedText)
#include "tst_foldedtext.moc"
