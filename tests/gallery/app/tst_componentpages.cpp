// SPDX-License-Identifier: MIT
#include "testkit/testcase.h"

#include "screens/componentpages.h"

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qset.h>
#include <QtCore/qurl.h>
#include <QtGui/qcolor.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQml/qqmlproperty.h>
#include <QtQuick/qquickitem.h>

using gallery::ComponentEditor;
using gallery::ComponentPage;
using Kind = ComponentEditor::Kind;

/*! The table of controls, held against the controls as they are, and the QML that is made from it. */
class tst_ComponentPages : public stbtest::TestCase
{
    Q_OBJECT

    QQmlEngine m_engine;

    std::unique_ptr<QObject> create(const QString &qml)
    {
        QQmlComponent component(&m_engine);
        component.setData(qml.toUtf8(), {});
        std::unique_ptr<QObject> object(component.create());
        if (object == nullptr)
            QTest::qFail(qPrintable(qml + ": " + component.errorString()), __FILE__, __LINE__);
        return object;
    }

    QString moduleFile(const QString &module, const QString &file) const
    {
        const QStringList folders = m_engine.importPathList();
        for (const QString &folder : folders) {
            const QString path = folder + "/Stbui/UI/Qml/Controls/" + module + "/" + file;
            if (QFile::exists(path))
                return path;
        }
        return {};
    }

    QStringList namesIn(const QString &module, const QString &file, const QString &pattern) const
    {
        QFile text(moduleFile(module, file));
        if (!text.open(QIODevice::ReadOnly))
            return {};
        QStringList names;
        const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
        auto match = expression.globalMatch(QString::fromUtf8(text.readAll()));
        while (match.hasNext())
            names.append(match.next().captured(1));
        return names;
    }

    static QStringList pageNames(const QString &module)
    {
        QStringList names;
        for (const ComponentPage &page : gallery::componentPages()) {
            if (page.module == module)
                names.append(page.name);
        }
        return names;
    }

    QColor themeColor(const QString &expression)
    {
        const auto holder = create("import QtQml; import Stbui.UI.Qml.Design; QtObject { property var value: "
                                   + expression + " }");
        return holder ? holder->property("value").value<QColor>() : QColor();
    }

    static QString lineWithoutEditors(ComponentPage page)
    {
        page.editors.clear();
        return page.qml({}, 1);
    }

    /*! Why \a read is not what \a editor gave as \a value, or nothing when it is. */
    QString difference(const ComponentEditor &editor, const QVariant &read, const QVariant &value)
    {
        bool same = false;
        switch (editor.kind) {
        case Kind::Flag:
            same = read.toBool() == value.toBool();
            break;
        case Kind::Number:
            same = qAbs(read.toDouble() - value.toDouble()) < 1e-6;
            break;
        case Kind::Color:
            same = read.value<QColor>() == themeColor(value.toString());
            break;
        case Kind::Text:
            same = read.toString() == value.toString();
            break;
        case Kind::Choice:
            same = value.typeId() == QMetaType::Int ? read.toInt() == value.toInt()
                                                    : read.toString() == value.toString();
            break;
        }
        return same ? QString() : editor.name + " is " + read.toString() + ", not " + value.toString();
    }

    static void addPages()
    {
        QTest::addColumn<int>("row");
        const auto &pages = gallery::componentPages();
        for (int row = 0; row < pages.size(); ++row)
            QTest::addRow("%s", qPrintable(pages.at(row).name)) << row;
    }
    static const ComponentPage &page()
    {
        QFETCH(int, row);
        return gallery::componentPages().at(row);
    }

    /*! Compiles the line and finds all its values in what it makes. */
    QString problemOfLine(const ComponentPage &page, const QList<QVariant> &values)
    {
        const QString line = page.qml(values, 1);
        if (line.contains('\n'))
            return line + ": more than a line";
        const auto object = create(line);
        if (object == nullptr)
            return line;
        for (int i = 0; i < page.editors.size(); ++i) {
            const ComponentEditor &editor = page.editors.at(i);
            if (!values.at(i).isValid())
                continue;
            // Deliberate: the status of an episode to come reads back empty.
            if (editor.name == "itemStatus" && object->property("listItemType") == "comingSoonTile")
                continue;
            const QVariant read = QQmlProperty::read(object.get(), editor.name);
            const QString different = difference(editor, read, values.at(i));
            if (!different.isEmpty())
                return line + ": " + different;
        }
        return {};
    }

private Q_SLOTS:
    void everyStyledControlOfTheModuleHasAPage()
    {
        const QStringList names = namesIn("Basic", "qmldir", "^(\\w+) 1\\.0 \\S+\\.qml$");
        QCOMPARE(names.size(), 16);
        const QStringList pages = pageNames("Basic");
        for (const QString &name : names)
            QVERIFY2(pages.contains(name), qPrintable(name));
    }

    void everyControlOfTheModuleInCppHasAPage()
    {
        QStringList names = namesIn("Basic", "qmlbasiccontrolsextensionplugin.qmltypes",
                                    "\"Stbui.UI.Qml.Controls.Basic/(\\w+) 1\\.0\"");
        QVERIFY(names.removeOne("QmlSettings"));
        names.removeDuplicates();
        QCOMPARE(names.size(), 11);
        const QStringList pages = pageNames("Basic");
        for (const QString &name : names)
            QVERIFY2(pages.contains(name), qPrintable(name));
        QCOMPARE(pages.size(), 16 + 11);
    }

    void everyGenericControlWithoutAStyledOneHasAPage()
    {
        const QSet<QString> offered { "BusyIndicator",  "CheckBox",         "CircleProgressBar",
                                      "Keyboard",       "LineEdit",         "MediaBlock",
                                      "MainMenuButton", "ScrollBar",        "HorizontalFadeEffect",
                                      "TabButton",      "ScrolledGridView", "ScrolledListView" };
        const QStringList files = namesIn("Generic", "qmldir", "^(\\w+) 1\\.0 \\S+\\.qml$");
        QVERIFY(files.size() >= 11);
        for (const QString &name : files)
            QVERIFY2(offered.contains(name), qPrintable(name));
        const QStringList styled = pageNames("Basic");
        const QStringList generic = pageNames("Generic");
        for (const QString &name : offered)
            QVERIFY2(styled.contains(name) != generic.contains(name), qPrintable(name));
    }

    void thePagesOfTheModuleComeFirstInTheOrderOfTheirNames()
    {
        QStringList names;
        for (const ComponentPage &page : gallery::componentPages())
            names.append(page.name);
        QStringList sorted = pageNames("Basic");
        sorted.sort();
        QCOMPARE(names, sorted + pageNames("Generic"));
    }

    void everyPropertyIsThereAndHasItsDefault_data() { addPages(); }
    void everyPropertyIsThereAndHasItsDefault()
    {
        const ComponentPage &shown = page();
        const auto bare = create(lineWithoutEditors(shown));
        QVERIFY(bare != nullptr);
        QVERIFY(!shown.editors.isEmpty());
        for (const ComponentEditor &editor : shown.editors) {
            const QQmlProperty property(bare.get(), editor.name);
            QVERIFY2(property.isProperty() && property.isWritable(), qPrintable(editor.name));
            if (!editor.defaultValue.isValid())
                continue;
            const QString different = difference(editor, property.read(), editor.defaultValue);
            QVERIFY2(different.isEmpty(), qPrintable(different));
        }
    }

    void noPropertyHasTwoEditors_data() { addPages(); }
    void noPropertyHasTwoEditors()
    {
        QSet<QString> names;
        for (const ComponentEditor &editor : page().editors) {
            QVERIFY2(!names.contains(editor.name), qPrintable(editor.name));
            names.insert(editor.name);
        }
    }

    void aPageBeginsWithAValueThatKeysLeadTo_data() { addPages(); }
    void aPageBeginsWithAValueThatKeysLeadTo()
    {
        for (const ComponentEditor &editor : page().editors) {
            QVERIFY2(editor.values().contains(editor.start), qPrintable(editor.name));
            QVERIFY2(editor.values().size() >= 2, qPrintable(editor.name));
        }
    }

    void theLineSetsEveryValueOfEveryProperty_data() { addPages(); }
    void theLineSetsEveryValueOfEveryProperty()
    {
        const ComponentPage &shown = page();
        for (int i = 0; i < shown.editors.size(); ++i) {
            const QList<QVariant> all = shown.editors.at(i).values();
            for (const QVariant &value : all) {
                QList<QVariant> values = shown.startValues();
                values[i] = value;
                const QString problem = problemOfLine(shown, values);
                QVERIFY2(problem.isEmpty(), qPrintable(problem));
            }
        }
    }

    void theLineTellsNothingThatIsTheDefault_data() { addPages(); }
    void theLineTellsNothingThatIsTheDefault()
    {
        const ComponentPage &shown = page();
        QList<QVariant> defaults;
        for (const ComponentEditor &editor : shown.editors)
            defaults.append(editor.defaultValue);
        const QString bare = shown.qml(defaults, 1);
        QCOMPARE(bare, lineWithoutEditors(shown));
        QVERIFY(create(bare) != nullptr);
    }

    void theLineImportsWhatItNeedsAndNoMore()
    {
        const auto line = [](const QString &name) {
            for (const ComponentPage &page : gallery::componentPages()) {
                if (page.name == name)
                    return page.qml(page.startValues(), 1);
            }
            return QString();
        };
        QCOMPARE(line("RadioButton"),
                 "import Stbui.UI.Qml.Controls.Basic; RadioButton { text: \"1920 x 1080\" }");
        QCOMPARE(line("EpgDate"),
                 "import Stbui.UI.Qml.Design; import Stbui.UI.Qml.Controls.Basic; EpgDate { style: "
                 "QmlDesignSystem.playerEpgDateStyle; date: new Date(2026, 2, 8); width: 160; height: 80 }");
        QVERIFY(line("ScrolledListView")
                        .startsWith(
                                "import QtQuick; import Stbui.UI.Qml.Controls.Basic; import "
                                "Stbui.UI.Qml.Controls.Generic; ScrolledListView { width: 640; clip: true; model: 24; "
                                "delegate: StandardButton { "));
    }

    void theKeyboardsLineHasALineToTypeInto()
    {
        for (const ComponentPage &page : gallery::componentPages()) {
            const QString whole = page.wholeQml(page.startValues(), 1.5);
            if (page.name != "Keyboard") {
                QCOMPARE(whole, page.qml(page.startValues(), 1.5));
                continue;
            }
            QCOMPARE(whole,
                     "import QtQuick; import Stbui.UI.Qml.Controls.Basic; Column { LineEdit { id: line; width: 720 } "
                     "Keyboard { target: line } }");
            const auto column = create(whole);
            QVERIFY(column != nullptr);
            const QList<QQuickItem *> children = qobject_cast<QQuickItem *>(column.get())->childItems();
            QCOMPARE(children.size(), 2);
            QMetaObject::invokeMethod(children.at(1), "textEntered", Q_ARG(QString, "x"));
            QCOMPARE(children.at(0)->property("text").toString(), "x");
        }
    }

    void lengthsGrowWithTheScreenAndOtherNumbersDoNot()
    {
        ComponentPage page { .name = "Item", .module = "Basic", .settings = { "height: <100>" } };
        ComponentEditor length {
            .name = "width", .kind = Kind::Number, .defaultValue = 0.0, .isLength = true
        };
        ComponentEditor number { .name = "z", .kind = Kind::Number, .defaultValue = 0.0 };
        page.editors = { length, number };
        QCOMPARE(page.qml({ 31.0, 7.0 }, 1.5),
                 "import Stbui.UI.Qml.Controls.Basic; Item { height: 150; width: 47; z: 7 }");
    }

    void fromBetweenTwoStepsTheNextOneIsReached()
    {
        ComponentEditor editor { .name = "x", .kind = Kind::Number, .from = 10, .to = 30, .step = 10 };
        QCOMPARE(editor.neighbour(13.0, -1), 10.0);
        QCOMPARE(editor.neighbour(13.0, 1), 20.0);
        QCOMPARE(editor.neighbour(7.0, -1), 10.0);
        QCOMPARE(editor.neighbour(7.0, 1), 10.0);
        QCOMPARE(editor.neighbour(33.0, -1), 30.0);
        QCOMPARE(editor.neighbour(33.0, 1), 30.0);
    }

    void whatTheUserTypesIsQuoted()
    {
        for (const ComponentPage &page : gallery::componentPages()) {
            if (page.name != "LineEdit")
                continue;
            QList<QVariant> values = page.startValues();
            values[0] = QStringLiteral("\"a\\b\" { } ; <120> //");
            QCOMPARE(page.editors.at(0).name, "text");
            QCOMPARE(problemOfLine(page, values), QString());
        }
    }
};

STB_TEST_MAIN(tst_ComponentPages)
#include "tst_componentpages.moc"
