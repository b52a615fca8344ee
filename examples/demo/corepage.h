// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_COREPAGE_H
#define DEMO_COREPAGE_H

#include "demopage.h"

#include <core/probes.h>

class QLabel;
class QPlainTextEdit;
class QTimer;

namespace Utils {
namespace LoggingSystem {
class Log;
class TemporaryFile;
}
} // namespace Utils

//! The core services as a host uses them: the logger, its scratch file and the probes.
class CorePage : public DemoPage
{
    Q_OBJECT

public:
    explicit CorePage(QWidget *parent = nullptr);
    ~CorePage() override;

    QString title() const override { return tr("Core services"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void tick();

    Utils::LoggingSystem::Log *m_log;
    Utils::LoggingSystem::TemporaryFile *m_scratch;
    QPlainTextEdit *m_lines;
    QLabel *m_probes;
    QTimer *m_timer;
    UtilsUInt64 m_started = 0;
    int m_samples = 0;
    double m_startKiB = 0.0;
};

#endif // DEMO_COREPAGE_H
