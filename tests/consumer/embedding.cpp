// SPDX-License-Identifier: LGPL-2.1-or-later
// The code README.md shows under "Embedding the library"; the package tests compile
// it against the installed library, so the README cannot show what does not exist.
#include "snippets.h"

//! [embedding]
#include <utils/core/log.h>
#include <utils/core/probes.h>
#include <utils/plot/plot.h>
#include <utils/version.h>

#include <QMainWindow>
#include <QPlainTextEdit>

using Utils::LoggingSystem::Log;

void showSensorWindow(QMainWindow *window, QPlainTextEdit *logView)
{
    Log *log = Log::requestInstance();          // one reference per holder
    QObject::connect(log, &Log::emitLastLogged, logView, &QPlainTextEdit::appendPlainText);
    Q_EMIT log->emitLastLogged(QStringLiteral("utils ") + Utils::oVersionString());

    UtilsUInt64 start = 0, stop = 0;
    vStartTimer(&start);
    auto *plot = new Utils::Plot(window);       // x: ms since the epoch, y: the value
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    window->setCentralWidget(plot->embedZoomToolBar());
    vStopTimer(&stop);
    Q_EMIT log->emitLastLogged(QStringLiteral("plot built in %1 ms").arg(GetTimeMs(start, stop)));

    Log::releaseInstance(false);                // the last release destroys the logger
}
//! [embedding]
