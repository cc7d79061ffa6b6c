// SPDX-License-Identifier: MIT
#include "gallery/data/guidereader.h"

#include "gallery/data/guidebuilder.h"
#include "gallery/data/guideinput.h"
#include "gallery/data/xmltvparser.h"

#include <QtCore/qfile.h>
#include <QtCore/qfileinfo.h>

namespace gallery {

namespace {

GuideReport unreadable(const QString &name, const QString &reason)
{
    GuideReport report;
    report.outcome = GuideReport::Outcome::Unreadable;
    report.error = name + QLatin1String(": ") + reason;
    return report;
}

QString expected()
{
    return QStringLiteral("expected a programme guide in XMLTV format, plain or compressed with gzip");
}

QString place(const XmltvParser &parser)
{
    return QStringLiteral("line %1, column %2: ").arg(parser.line()).arg(parser.column());
}

} // namespace

QStringList GuideReport::messages(const QString &fileName) const
{
    QStringList lines;
    for (const GuideProblem &found : problems)
        lines.append(QStringLiteral("%1: line %2, column %3: ").arg(fileName).arg(found.line).arg(found.column)
                     + found.text);
    if (problemCount > problems.size())
        lines.append(
                QStringLiteral("%1: and %2 more problems").arg(fileName).arg(problemCount - problems.size()));
    if (!error.isEmpty())
        lines.append(error);
    return lines;
}

GuideReport readGuide(const QString &fileName, const GuideReadOptions &options)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return unreadable(fileName, QStringLiteral("no such file; ") + expected());
    if (info.isDir())
        return unreadable(fileName, QStringLiteral("is a folder; ") + expected());
    QFile file(fileName);
    // Blocks are read as large as they are needed, so that a second buffer would only cost.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return unreadable(fileName, file.errorString() + QLatin1String("; ") + expected());
    return readGuide(&file, fileName, options);
}

GuideReport readGuide(QIODevice *device, const QString &name, const GuideReadOptions &options)
{
    GuideInput input(device, options.cancelled, options.progress);
    GuideBuilder builder;
    GuideReport report;
    XmltvParser parser(&input, options.language, QFileInfo(name).absolutePath(), &builder, &report);
    parser.parse();
    const bool stopped = options.cancelled && options.cancelled->load(std::memory_order_relaxed);
    if (stopped || input.wasCancelled()) {
        GuideReport cancelled;
        cancelled.outcome = GuideReport::Outcome::Cancelled;
        return cancelled;
    }
    if (input.wasEmpty() && input.failure().isEmpty())
        return unreadable(name, QStringLiteral("the file is empty; ") + expected());
    if (!parser.foundGuide())
        return unreadable(name, place(parser) + parser.error() + QLatin1String("; ") + expected());
    report.guide = builder.take(options.cancelled);
    report.duplicateProgrammes = builder.duplicates();
    if (!parser.error().isEmpty()) {
        report.outcome = GuideReport::Outcome::Partial;
        report.error = name + QLatin1String(": ") + place(parser) + parser.error();
    }
    return report;
}

} // namespace gallery
