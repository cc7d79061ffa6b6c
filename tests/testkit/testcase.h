// SPDX-License-Identifier: MIT
#ifndef STBTEST_TESTCASE_H
#define STBTEST_TESTCASE_H

#include <QtCore/qobject.h>
#include <QtGui/qguiapplication.h>
#include <QtTest/qtest.h>

#include <memory>
#include <optional>

namespace stbtest {

/*!
    The base of every test class: any warning, wherever it comes from, fails the test that caused it. A test
    that expects a warning says so with QTest::ignoreMessage(). A class with an init() of its own calls this
    one first.
*/
class TestCase : public QObject
{
    Q_OBJECT
protected Q_SLOTS:
    void init();
};

/*!
    Gives the process the environment that tests and pictures rely on, whatever the shell's is: offscreen
    platform, software adaptation, C.UTF-8, UTC, DejaVu fonts, the build's QML import path and a configuration
    of its own. To be called before the application object is made. A variable whose name is in
    STBTEST_KEEP (comma-separated, for example "QT_QPA_PLATFORM,QT_QUICK_BACKEND") keeps the shell's value.
*/
void setUpEnvironment();

/*! What the command line asks of random tests: "--seed N" and "--steps N", each absent when not given. */
struct RandomOptions
{
    std::optional<quint32> seed;
    std::optional<int> steps;
};
RandomOptions randomOptions();

/*!
    Takes the options of RandomOptions out of the command line, where QTest would stumble over them. Returns
    false, with a line on the standard error stream, when one has no number.
*/
bool takeRandomOptions(int &argc, char **argv);

/*!
    The application object of a test program, with the fonts that pictures rely on. The random options are taken
    out of \a argc and \a argv; one without a number ends the program with exit code 2.
*/
std::unique_ptr<QGuiApplication> makeApplication(int &argc, char **argv);

} // namespace stbtest

/*! The main function of a test program with the one test class \a TestClass. */
#define STB_TEST_MAIN(TestClass) \
    int main(int argc, char **argv) \
    { \
        stbtest::setUpEnvironment(); \
        const auto app = stbtest::makeApplication(argc, argv); \
        TestClass test; \
        return QTest::qExec(&test, argc, argv); \
    }

#endif // STBTEST_TESTCASE_H
