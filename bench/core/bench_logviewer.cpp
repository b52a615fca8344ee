// SPDX-License-Identifier: LGPL-2.1-or-later
// The log viewer under a flood: 100,000 finished lines handed to the logger's
// emitLastLogged() as fast as a host can, in chunks of 1,000 with the event loop
// running between them, as a host that logs from its GUI thread does. Reports
// lines per second (until the last line is on screen) and the longest single
// turn of the event loop, which includes every batch the viewer shows.
//
//   QT_QPA_PLATFORM=offscreen build-bench/benchmarks/bench_logviewer [lines]
#include <core/log.h>
#include <core/logviewer.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QPlainTextEdit>
#include <QTextDocument>

#include <algorithm>
#include <cstdio>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int total = argc > 1 ? std::max(1, atoi(argv[1])) : 100000;
    QTemporaryDir dir;
    Utils::LoggingSystem::Log *log = Utils::LoggingSystem::Log::requestInstance();
    Utils::LoggingSystem::LogViewer viewer(nullptr, dir.filePath(QStringLiteral("none.log")));
    viewer.resize(800, 600);
    viewer.show();
    app.processEvents();

    static const char *const levels[] = {"INFO", "DEBUG", "WARNING", "ERROR"};
    QElapsedTimer clock;
    clock.start();
    double longestTurnMs = 0.0;
    const auto turn = [&]() {
        QElapsedTimer one;
        one.start();
        app.processEvents();
        longestTurnMs = std::max(longestTurnMs, one.nsecsElapsed() / 1e6);
    };
    for (int i = 0; i < total; ++i) {
        Q_EMIT log->emitLastLogged(QStringLiteral("12:00:00.%1 | 24.11.2026 | %2 | Sensor | sample %3: distance %4 mm\n")
                                       .arg(i % 1000, 3, 10, QLatin1Char('0'))
                                       .arg(QLatin1String(levels[i % 4]))
                                       .arg(i)
                                       .arg(100.0 + i % 50, 0, 'f', 1));
        if (i % 1000 == 999)
            turn();
    }
    // Until the last line is shown.
    const QString last = QStringLiteral("sample %1:").arg(total - 1);
    QTextDocument *document = viewer.poTextBrowser()->document();
    while (!document->lastBlock().text().contains(last) && clock.elapsed() < 60000)
        turn();
    const double seconds = clock.nsecsElapsed() / 1e9;
    std::printf("logviewer-flood lines=%d lines_per_s=%.0f longest_turn_ms=%.1f paragraphs_kept=%d\n", total,
                total / seconds, longestTurnMs, document->blockCount());
    Utils::LoggingSystem::Log::releaseInstance(false);
    return document->lastBlock().text().contains(last) ? 0 : 1;
}
