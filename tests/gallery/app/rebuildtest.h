// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_REBUILDTEST_H
#define STBUI_TEST_REBUILDTEST_H

#include "screentest.h"

#include "app/keyrun.h"
#include "app/remotekeys.h"
#include "screens/themes.h"

#include <QtCore/qtimer.h>
#include <QtGui/qpainter.h>
#include <QtQml/qqmlengine.h>
#include <QtTest/qsignalspy.h>

/*! The base of tests in which the screens are made anew: what is shown then, in words and as a picture. */
class RebuildTest : public ScreenTest
{
protected:
    /*!
        Starts on the screen that \a options name and presses \a keys. Guide and catalogue are the gallery's own unless
        \a options name others; nothing moves.
    */
    void start(gallery::Options options, const QString &keys = {})
    {
        options.now = guides::at(20, 5);
        if (options.language.isEmpty())
            options.language = "en";
        m_application.reset();
        m_application = std::make_unique<gallery::Application>(options);
        for (const char *key : { "focusingEnabled", "layoutScrollingEnabled", "viewportScrollingEnabled",
                                 "fadeEffectEnabled", "slidingEnabled" })
            set("Animations", key, false);
        // What a test chooses is no wish of a user.
        m_application->configuration()->setReadOnly(true);
        QVERIFY2(m_application->start(), qPrintable(m_application->error()));
        QTRY_VERIFY(!m_application->isReading());
        QVERIFY(QTest::qWaitForWindowExposed(view()));
        settle();
        const gallery::RemoteKeys pressed = gallery::parseRemoteKeys(keys);
        QCOMPARE(pressed.unknown, QString());
        for (const Qt::Key key : pressed.keys) {
            ScreenTest::press(key);
            view()->grabWindow();
        }
        settle();
    }

    void set(const QString &group, const QString &key, const QVariant &value) const
    {
        m_application->configuration()->setForRun(group, key, value);
    }

    /*! Chooses the value \a title on the screen of settings, whatever is shown; false when there is none. */
    bool choose(const QString &title) const
    {
        gallery::SettingsController *settings = shell()->settings();
        for (int group = 0; group < settings->groups().size(); ++group) {
            settings->open(group);
            const QVariantList sections = settings->sections();
            for (const QVariant &section : sections) {
                const QVariantList rows = section.toMap().value("rows").toList();
                for (const QVariant &row : rows) {
                    if (row.toMap().value("title") != title)
                        continue;
                    settings->choose(row.toMap().value("row").toInt());
                    return true;
                }
            }
        }
        return false;
    }

    /*! Waits until all pictures are there and nothing is painted any more. */
    void settle() const
    {
        gallery::KeyRun rest({}, view(), [this] { return view()->pendingPictures() > 0; });
        QSignalSpy finished(&rest, &gallery::KeyRun::finished);
        rest.start();
        QVERIFY(finished.wait(20000));
    }

    void rebuild() const
    {
        QSignalSpy rebuilt(m_application.get(), &gallery::Application::rebuilt);
        m_application->rebuild();
        QTRY_COMPARE(rebuilt.count(), 1);
        QTRY_VERIFY(!m_application->isReading());
        settle();
    }

    /*!
        What is seen, without the circles that turn for ever while something is said to load: two pictures of them are
        the same only by chance.
    */
    QImage stillPicture() const
    {
        QImage image = view()->grabWindow();
        QPainter painter(&image);
        QList<QQuickItem *> turning;
        collectTurning(view()->rootObject(), turning);
        for (const QQuickItem *item : std::as_const(turning))
            painter.fillRect(sceneRect(item), Qt::black);
        return image;
    }

    /*! What ends by itself after a while has ended, and what would do so later does not. */
    void letNothingHappenByItself() const
    {
        shell()->detail()->finishOpening();
        shell()->series()->finishOpening();
        shell()->player()->findChild<QTimer *>("idle")->stop();
    }

    /*! What the controllers tell, a line each; without \a texts only numbers, choices and the like. */
    QStringList state(bool texts = true) const
    {
        QStringList lines = propertiesOf(shell(), "shell", texts);
        gallery::HomeRows *rows = shell()->home()->rows();
        for (int i = 0; i < rows->count(); ++i)
            lines += propertiesOf(rows->at(i), QStringLiteral("row%1").arg(i), texts);
        return lines;
    }

    /*! The \a lines of a state that a change of theme or language leaves alone: the settings tell of it. */
    static QStringList withoutSettings(const QStringList &lines)
    {
        QStringList result;
        for (const QString &line : lines) {
            if (!line.startsWith("shell.settings.") && !line.startsWith("shell.about."))
                result.append(line);
        }
        return result;
    }

    /*!
        What has the keys, and where on the screen the current items of the lists are that are seen. (Where its content
        begins is a list's own affair, and so is the order of its items.)
    */
    QStringList places() const
    {
        QStringList lines;
        collectPlaces(view()->rootObject(), lines);
        lines.sort();
        lines.prepend(QStringLiteral("focus: ") + nameOf(view()->activeFocusItem()));
        return lines;
    }

    /*!
        Why \a image is not the picture \a expected, or nothing. A picture that was painted in parts may be a step or two away
        from one that was painted whole: scaled pictures are scaled anew for each part.
    */
    static QString difference(const QImage &image, const QImage &expected)
    {
        constexpr int allowed = 2;
        if (image.size() != expected.size())
            return QStringLiteral("another size");
        for (int row = 0; row < image.height(); ++row) {
            for (int column = 0; column < image.width(); ++column) {
                const QRgb a = image.pixel(column, row);
                const QRgb b = expected.pixel(column, row);
                if (std::abs(qRed(a) - qRed(b)) > allowed || std::abs(qGreen(a) - qGreen(b)) > allowed
                    || std::abs(qBlue(a) - qBlue(b)) > allowed)
                    return QStringLiteral("another pixel at %1, %2").arg(column).arg(row);
            }
        }
        return {};
    }

private:
    static QStringList propertiesOf(QObject *object, const QString &name, bool texts)
    {
        QStringList lines;
        const QMetaObject *meta = object->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            const QVariant value = property.read(object);
            const QString path = name + u'.' + QLatin1StringView(property.name());
            const bool isObject = property.metaType().flags().testFlag(QMetaType::PointerToQObject);
            if (isObject && value.value<QAbstractItemModel *>() == nullptr)
                lines += propertiesOf(value.value<QObject *>(), path, texts);
            else if (!isObject && (texts || !isText(value)))
                lines.append(path + ": " + wordsFor(value));
        }
        return lines;
    }

    static bool isText(const QVariant &value)
    {
        return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QStringList
               || value.typeId() == QMetaType::QUrl;
    }

    static QString wordsFor(const QVariant &value)
    {
        QString words;
        QDebug(&words) << value;
        return words;
    }

    static QString nameOf(const QQuickItem *item)
    {
        if (item == nullptr)
            return "nothing";
        // The rest of the class name counts the types of an engine.
        return QString::fromLatin1(item->metaObject()->className()).section("_QML", 0, 0) + u' '
               + item->objectName();
    }

    static void collectTurning(QQuickItem *item, QList<QQuickItem *> &turning)
    {
        if (!item->isVisible())
            return;
        if (item->inherits("stbgeneric::Throbber") || item->property("throbberVisible").toBool())
            turning.append(item);
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *child : children)
            collectTurning(child, turning);
    }

    static void collectPlaces(const QQuickItem *item, QStringList &lines)
    {
        if (!item->isVisible())
            return;
        if (const auto *current = item->property("currentItem").value<QQuickItem *>()) {
            const QRectF place = sceneRect(current);
            lines.append(QStringLiteral("%1: %2, %3").arg(nameOf(item)).arg(place.x()).arg(place.y()));
        }
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            collectPlaces(child, lines);
    }
};

#endif // STBUI_TEST_REBUILDTEST_H
