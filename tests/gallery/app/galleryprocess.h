// SPDX-License-Identifier: MIT
#ifndef STBUI_TEST_GALLERYPROCESS_H
#define STBUI_TEST_GALLERYPROCESS_H

#include <QtCore/qprocess.h>

/*! What a run of the gallery has left. */
struct GalleryRun
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/*! Runs the gallery of this build to its end, without a display. */
inline GalleryRun runGallery(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : { "QT_QPA_PLATFORM", "QT_QUICK_BACKEND", "DISPLAY", "WAYLAND_DISPLAY",
                              // the program finds the modules by itself
                              "QML_IMPORT_PATH" })
        environment.remove(QLatin1String(name));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(STBUI_GALLERY), arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

#endif // STBUI_TEST_GALLERYPROCESS_H
