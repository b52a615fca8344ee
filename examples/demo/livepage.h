// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_LIVEPAGE_H
#define DEMO_LIVEPAGE_H

#include "demopage.h"
#include "simulatedsensor.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QMainWindow;
class QPushButton;
class QTimer;

namespace Utils {
namespace Charts {
class GenericChart;
}
} // namespace Utils

//! The live sensor view: a simulated laser distance sensor in a two-plot chart with docks and time line.
class LivePage : public DemoPage
{
    Q_OBJECT

public:
    explicit LivePage(QWidget *parent = nullptr);
    ~LivePage() override;

    QString title() const override { return tr("Live sensor"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void startStop();
    void exportCsv();
    void showStatus();

    QMainWindow *m_window;
    Utils::Charts::GenericChart *m_chart;
    SimulatedSensor m_sensor;
    QPushButton *m_startStop;
    QComboBox *m_rate;
    QCheckBox *m_follow;
    QLabel *m_status;
    QTimer *m_statusTimer;
};

#endif // DEMO_LIVEPAGE_H
