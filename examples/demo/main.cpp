// SPDX-License-Identifier: LGPL-2.1-or-later
// The demo host application: a simulated sensor shown through the library.
// With a display it opens its window; without one it runs headless for a few
// seconds, writes screenshots and the pages' files into an output folder and
// prints their paths.
#include "mainwindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTimer>

#include <cstdio>

int main(int argc, char **argv)
{
    const bool noDisplay = qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    bool headless = noDisplay;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--headless") == 0)
            headless = true;
    }
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (headless && qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");

    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("utils-demo"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Sensor utils demo host application"));
    parser.addHelpOption();
    QCommandLineOption headlessOption(QStringLiteral("headless"), QStringLiteral("Run without a window and write screenshots."));
    QCommandLineOption secondsOption(QStringLiteral("seconds"), QStringLiteral("Headless run time in seconds."),
                                     QStringLiteral("seconds"), QStringLiteral("4"));
    QCommandLineOption outputOption(QStringLiteral("output"), QStringLiteral("Folder for the headless run's files."),
                                    QStringLiteral("dir"), QStringLiteral("demo-output"));
    parser.addOption(headlessOption);
    parser.addOption(secondsOption);
    parser.addOption(outputOption);
    parser.process(app);

    MainWindow window;
    window.show();
    window.start();

    if (!headless)
        return app.exec();

    const int seconds = qBound(1, parser.value(secondsOption).toInt(), 600);
    const QString outputDir = QDir(parser.value(outputOption)).absolutePath();
    int exitCode = 0;
    QTimer::singleShot(seconds * 1000, &app, [&]() {
        const QStringList written = window.writeScreenshots(outputDir);
        for (const QString &path : written)
            std::printf("wrote %s\n", qPrintable(path));
        if (written.isEmpty()) {
            std::fprintf(stderr, "nothing written to %s\n", qPrintable(outputDir));
            exitCode = 1;
        }
        std::fflush(stdout);
        app.quit();
    });
    app.exec();
    return exitCode;
}
