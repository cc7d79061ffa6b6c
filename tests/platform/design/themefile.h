// SPDX-License-Identifier: MIT
#ifndef STBTEST_DESIGN_THEMEFILE_H
#define STBTEST_DESIGN_THEMEFILE_H

#include <QtCore/qfile.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>
#include <QtTest/qtest.h>

/*! A theme file of a test, gone with it. */
class TestTheme
{
public:
    explicit TestTheme(const QByteArray &content, const QString &name = QStringLiteral("theme.json"))
        : m_path(m_folder.filePath(name))
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(m_path));
    }

    QString path() const { return m_path; }

    /*! A warning is to come that names this file and then says \a text. */
    void expectWarning(const QString &text) const
    {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Theme %1: %2").arg(m_path, text)));
    }

    /*! The same for a text whose wording is somebody else's. */
    void expectWarningLike(const QString &pattern) const
    {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(
                                     u'^' + QRegularExpression::escape(QStringLiteral("Theme ") + m_path)
                                     + QStringLiteral(": ") + pattern));
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

#endif // STBTEST_DESIGN_THEMEFILE_H
