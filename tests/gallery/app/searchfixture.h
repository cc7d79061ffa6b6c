// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_SEARCHFIXTURE_H
#define STBUI_TEST_SEARCHFIXTURE_H

#include "catalogues.h"
#include "guides.h"

#include "gallery/data/clock.h"
#include "screens/marks.h"
#include "screens/searchcontroller.h"

#include <QtTest/qtest.h>

/*! The search at 20:05 of the test guides' day: the five channels, the small catalogue, 3 x 2 results in sight. */
struct SearchFixture
{
    gallery::Clock clock;
    gallery::Marks favourites;
    gallery::SearchController search { &clock, &favourites };

    SearchFixture()
    {
        clock.setFixed(guides::at(20, 5));
        search.setGuide(guides::five());
        search.setCatalogue(catalogues::small());
        search.setColumns(3);
        search.setLines(2);
    }
    QStringList titles()
    {
        QStringList result;
        for (int row = 0; row < search.results()->rowCount(); ++row)
            result.append(search.results()->index(row, 0).data().toString());
        return result;
    }
    QString chosen() const { return search.item() == nullptr ? QString() : search.item()->title; }
    void press(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            QVERIFY(search.press(key));
    }
    /*! Nine films: three lines of three. */
    void findFilms()
    {
        search.setGuide({});
        search.setText("f");
        QCOMPARE(titles().size(), 9);
    }
};

#endif // STBUI_TEST_SEARCHFIXTURE_H
