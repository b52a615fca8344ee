// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_PANELSPAGE_H
#define DEMO_PANELSPAGE_H

#include "demopage.h"
#include "simulatedsensor.h"

class QLabel;
class QPushButton;
class QTimer;

namespace Utils {
class ColorChart;
class ConnectionStatus;
class OutputSelector;
class SensorProgressBar;
class SimpleTimeChart;
class WidgetOverlay;
} // namespace Utils

/*!
    The small widgets of a sensor window: a distance panel and a colour panel fed
    by the simulated sensor, the connection state with an overlay over the panel
    while the sensor is away, the switching-output choice and the progress of a
    parameter read-out and a teach-in.
*/
class PanelsPage : public DemoPage
{
    Q_OBJECT

public:
    explicit PanelsPage(QWidget *parent = nullptr);
    ~PanelsPage() override;

    QString title() const override { return tr("Panels"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    enum class Operation { None, ReadOut, TeachInWait, TeachIn };

    void setConnected(bool connected);
    void beginOperation(Operation operation);
    //! One step of the running operation, every 50 ms.
    void advanceOperation();

    SimulatedSensor m_sensor;
    Utils::ConnectionStatus *m_status;
    QPushButton *m_connect;
    Utils::SimpleTimeChart *m_distance;
    Utils::WidgetOverlay *m_overlay;
    Utils::ColorChart *m_colour;
    Utils::OutputSelector *m_outputs;
    QLabel *m_outputText;
    QPushButton *m_teachIn;
    Utils::SensorProgressBar *m_progress;
    QTimer *m_operationTimer;
    Operation m_operation = Operation::None;
    int m_step = 0;
};

#endif // DEMO_PANELSPAGE_H
