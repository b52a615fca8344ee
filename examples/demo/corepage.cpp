// SPDX-License-Identifier: LGPL-2.1-or-later
#include "corepage.h"

#include <core/log.h>
#include <core/temporaryfile.h>

#include <QDateTime>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QTimer>
#include <QVBoxLayout>

using Utils::LoggingSystem::Log;

CorePage::CorePage(QWidget *parent)
    : DemoPage(parent)
    , m_log(Log::requestInstance())
    , m_scratch(nullptr)
    , m_lines(new QPlainTextEdit(this))
    , m_probes(new QLabel(this))
    , m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("core"));
    // The scratch file holds a reference of its own.
    m_scratch = new Utils::LoggingSystem::TemporaryFile(Log::requestInstance());
    m_scratch->setParent(this);

    m_lines->setReadOnly(true);
    m_lines->setMaximumBlockCount(500);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Log lines relayed by the host through the logger's emitLastLogged signal:"), this));
    layout->addWidget(m_lines, 1);
    layout->addWidget(m_probes);

    // Lines end with a line feed (the log viewer needs it to keep lines of one batch apart).
    connect(m_log, &Log::emitLastLogged, m_lines, [this](const QString &line) {
        m_lines->appendPlainText(line.endsWith(QLatin1Char('\n')) ? line.chopped(1) : line);
    });
    connect(m_timer, &QTimer::timeout, this, &CorePage::tick);
}

CorePage::~CorePage()
{
    delete m_scratch;
    m_scratch = nullptr;
    Log::releaseInstance(false);
}

void CorePage::start()
{
    vStartTimer(&m_started);
    m_startKiB = GetMemoryUsageKBytes();
    m_timer->start(200);
    tick();
}

void CorePage::tick()
{
    ++m_samples;
    // The simulated sensor measures up to MaxDistance; now and then a part
    // passes beyond it, and a reply gets lost on the line.
    constexpr double MaxDistance = 150.0;
    const double distance = 115.0 + QRandomGenerator::global()->bounded(40.0);
    const bool lost = QRandomGenerator::global()->bounded(25) == 0;
    m_log->vLog(Log::eDebug, "Sensor", "distance %.1f mm", distance);
    // vLog composes and drops its line; a host hands finished lines to listeners itself.
    QString level = QStringLiteral("INFO");
    QString message = QStringLiteral("sample %1: distance %2 mm").arg(m_samples).arg(distance, 0, 'f', 1);
    if (lost) {
        level = QStringLiteral("WARNING");
        message = QStringLiteral("sample %1: no reply from the sensor within 50 ms").arg(m_samples);
    } else if (distance > MaxDistance) {
        level = QStringLiteral("WARNING");
        message = QStringLiteral("sample %1: distance %2 mm beyond the measuring range (%3 mm)")
                      .arg(m_samples)
                      .arg(distance, 0, 'f', 1)
                      .arg(MaxDistance, 0, 'f', 0);
    }
    const QDateTime now = QDateTime::currentDateTime();
    const QString line = now.toString(QStringLiteral("hh:mm:ss.zzz")) + QStringLiteral(" | ")
        + now.toString(QStringLiteral("dd.MM.yyyy")) + QStringLiteral(" | ") + level + QStringLiteral(" | Sensor | ")
        + message + QLatin1Char('\n');
    Q_EMIT m_log->emitLastLogged(line);
    if (m_scratch->isOpen())
        m_scratch->write(line.toUtf8());

    UtilsUInt64 now64 = 0;
    vStopTimer(&now64);
    m_probes->setText(tr("Running for %1 ms; private memory at start %2 KiB, change since %3 KiB; scratch log %4")
                          .arg(GetTimeMs(m_started, now64))
                          .arg(m_startKiB, 0, 'f', 0)
                          .arg(GetMemoryGapKBytes(), 0, 'f', 0)
                          .arg(m_scratch->fileName()));
}

void CorePage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    QFile file(outputDir.absoluteFilePath(QStringLiteral("demo-log.txt")));
    if (file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        file.write(m_lines->toPlainText().toUtf8());
        file.write("\n");
        *written << file.fileName();
    }
}

DEMO_REGISTER_PAGE(CorePage, 10)
