// SPDX-License-Identifier: MIT
#include "instructions.h"

#include "forms/form.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qprocess.h>
#include <QtCore/qregularexpression.h>
#include <QtCore/qtemporarydir.h>

#ifdef STBBENCH_CALLGRIND
#include <valgrind/callgrind.h>
#endif

namespace stbbench {
namespace {

void toggleCollection()
{
#ifdef STBBENCH_CALLGRIND
    CALLGRIND_TOGGLE_COLLECT;
#endif
}

std::optional<double> collected(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    static const QRegularExpression line(QStringLiteral("^(?:summary|totals): (\\d+)"),
                                         QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(QString::fromUtf8(file.readAll()));
    return match.hasMatch() ? std::optional(match.captured(1).toDouble()) : std::nullopt;
}

/*! Of one item in one phase, or nothing and an error text. */
std::optional<double> instructions(const QString &key, int form, Phase phase, int count, QString *error)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("callgrind.out"));
    QProcess valgrind;
    valgrind.setProcessChannelMode(QProcess::MergedChannels);
    valgrind.start(QStringLiteral("valgrind"),
                   { QStringLiteral("--tool=callgrind"), QStringLiteral("--collect-atstart=no"),
                     QStringLiteral("--callgrind-out-file=%1").arg(file),
                     QCoreApplication::applicationFilePath(), QStringLiteral("--only"), key,
                     QStringLiteral("--collect"), QString::number(form), QStringLiteral("--phase"),
                     QString::number(int(phase)), QStringLiteral("--items"), QString::number(count) });
    constexpr int patience = 600000; // milliseconds; callgrind needs seconds
    if (!valgrind.waitForFinished(patience) || valgrind.exitCode() != 0) {
        *error = valgrind.errorString() + QLatin1Char('\n') + QString::fromLocal8Bit(valgrind.readAll());
        return std::nullopt;
    }
    const std::optional<double> sum = collected(file);
    if (!sum || *sum <= 0) {
        *error = QStringLiteral("callgrind collected nothing");
        return std::nullopt;
    }
    return *sum / count;
}

} // namespace

bool canCollect()
{
#ifdef STBBENCH_CALLGRIND
    return true;
#else
    return false;
#endif
}

void collectItems(const Subject &subject, Form &form, Phase phase, int count)
{
    const auto nothing = [](Phase) {};
    createItems(subject, form, 0, 3, { nothing, nothing }); // what is made once is no part of an item
    const auto toggle = [phase](Phase current) {
        if (current == phase)
            toggleCollection();
    };
    createItems(subject, form, 1000, count, { toggle, toggle });
}

std::optional<ItemTime> instructionsPerItem(const Subject &subject, int form, int count, QString *error)
{
    QList<Phase> phases { Phase::Create, Phase::FirstFrame };
    if (!subject.pictureProperty.isEmpty())
        phases.append(Phase::PictureFrame);
    ItemTime result;
    for (const Phase phase : phases) {
        const std::optional<double> value = instructions(subject.key, form, phase, count, error);
        if (!value)
            return std::nullopt;
        result.of(phase) = *value;
    }
    return result;
}

} // namespace stbbench
