// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panelspage.h"

#include <charts/colorchart.h>
#include <charts/rgbrenderer.h>
#include <charts/simpletimechart.h>
#include <widgets/connectionstatus.h>
#include <widgets/outputselector.h>
#include <widgets/sensorprogressbar.h>
#include <widgets/widgetoverlay.h>

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int kTickMs = 50;

} // namespace

PanelsPage::PanelsPage(QWidget *parent)
    : DemoPage(parent)
    , m_status(new Utils::ConnectionStatus(this))
    , m_connect(new QPushButton(this))
    , m_distance(new Utils::SimpleTimeChart(this))
    , m_overlay(new Utils::WidgetOverlay(m_distance))
    , m_colour(new Utils::ColorChart(this))
    , m_outputs(new Utils::OutputSelector(this))
    , m_outputText(new QLabel(this))
    , m_teachIn(new QPushButton(tr("Teach-in"), this))
    , m_progress(new Utils::SensorProgressBar(this))
    , m_operationTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("panels"));
    m_distance->setPlotTitle(tr("Distance [mm]"));
    m_distance->vSetYScale(0.0, 300.0);
    m_distance->setTimeSpan(20000.0);
    m_colour->setPlotTitle(tr("Colour channels"));
    m_colour->setTimeSpan(20000.0);
    m_colour->vSetWhiteLevel(230.0, 230.0, 230.0);
    // The colour the sensor was taught before, as a host reads it from the sensor.
    m_colour->poRenderer()->setTaughtColor(QColor(40, 200, 70));
    m_outputs->setOutputCount(4);
    auto *teachColour = new QPushButton(tr("Teach colour"), this);
    teachColour->setToolTip(tr("Take the colour the sensor sees now as the taught colour"));

    // Distance panel: the connection state above it, the overlay on it.
    auto *distanceBox = new QGroupBox(tr("Distance sensor"), this);
    auto *statusRow = new QHBoxLayout;
    statusRow->addWidget(m_status);
    statusRow->addStretch(1);
    statusRow->addWidget(m_connect);
    auto *distanceLayout = new QVBoxLayout(distanceBox);
    distanceLayout->addLayout(statusRow);
    distanceLayout->addWidget(m_distance, 1);

    auto *colourBox = new QGroupBox(tr("Colour sensor"), this);
    auto *colourLayout = new QVBoxLayout(colourBox);
    colourLayout->addWidget(m_colour, 1);
    auto *colourRow = new QHBoxLayout;
    colourRow->addWidget(new QLabel(tr("Calibrate the levels with the buttons beside the swatch."), colourBox), 1);
    colourRow->addWidget(teachColour);
    colourLayout->addLayout(colourRow);

    auto *outputBox = new QGroupBox(tr("Switching output"), this);
    auto *outputLayout = new QHBoxLayout(outputBox);
    outputLayout->addWidget(m_outputs);
    outputLayout->addWidget(m_outputText, 1);

    auto *operationBox = new QGroupBox(tr("Sensor operations"), this);
    auto *operationLayout = new QHBoxLayout(operationBox);
    operationLayout->addWidget(m_teachIn);
    operationLayout->addWidget(m_progress, 1);

    auto *layout = new QGridLayout(this);
    layout->addWidget(new QLabel(tr("Small panels for a sensor window, fed by a simulated sensor at 200 samples per "
                                    "second. Disconnect to see the overlay; the output numbers start at 1, as the "
                                    "threshold managers count."),
                                 this),
                      0, 0, 1, 2);
    layout->addWidget(distanceBox, 1, 0);
    layout->addWidget(colourBox, 1, 1);
    layout->addWidget(outputBox, 2, 0);
    layout->addWidget(operationBox, 2, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);

    connect(&m_sensor, &SimulatedSensor::sample, this, [this](const SimulatedSensor::Sample &s) {
        if (!m_status->isConnected())
            return;
        m_distance->vAppendData(s.distance, true, s.time);
        m_colour->vAppendData(s.red, s.green, s.blue, true, s.time);
    });
    connect(m_connect, &QPushButton::clicked, this, [this]() { setConnected(!m_status->isConnected()); });
    connect(m_status, &Utils::ConnectionStatus::connectedChanged, this, [this](bool connected) {
        m_connect->setText(connected ? tr("Disconnect") : tr("Connect"));
        m_teachIn->setEnabled(connected);
        if (connected)
            m_overlay->hide();
        else
            m_overlay->vShowMessage(m_status->text());
    });
    connect(m_outputs, &Utils::OutputSelector::outputChanged, this, [this](int output) {
        m_outputText->setText(tr("The thresholds of output %1 are shown and edited.").arg(output));
    });
    connect(teachColour, &QPushButton::clicked, this,
            [this]() { m_colour->poRenderer()->setTaughtColor(m_colour->poRenderer()->color()); });
    connect(m_teachIn, &QPushButton::clicked, this, [this]() { beginOperation(Operation::TeachInWait); });
    m_operationTimer->setInterval(kTickMs);
    connect(m_operationTimer, &QTimer::timeout, this, &PanelsPage::advanceOperation);

    m_connect->setText(tr("Connect"));
    m_teachIn->setEnabled(false);
    m_overlay->vShowMessage(m_status->text());
    m_outputText->setText(tr("The thresholds of output %1 are shown and edited.").arg(m_outputs->output()));
}

PanelsPage::~PanelsPage() = default;

void PanelsPage::start()
{
    m_sensor.setRate(200);
    m_sensor.start();
    setConnected(true);
}

void PanelsPage::setConnected(bool connected)
{
    m_status->setConnected(connected);
    if (connected) {
        // As a host does after connecting: read the sensor's parameters first.
        beginOperation(Operation::ReadOut);
    } else {
        m_operationTimer->stop();
        m_operation = Operation::None;
        m_progress->vReset();
    }
}

void PanelsPage::beginOperation(Operation operation)
{
    m_operation = operation;
    m_step = 0;
    if (operation == Operation::ReadOut)
        m_progress->vStart(tr("Reading parameters"), 0);
    else if (operation == Operation::TeachInWait)
        m_progress->vStart(tr("Teach-in: waiting for the sensor"), 0);
    else if (operation == Operation::TeachIn)
        m_progress->vStart(tr("Teach-in"), 100);
    m_teachIn->setEnabled(false);
    m_operationTimer->start();
}

void PanelsPage::advanceOperation()
{
    ++m_step;
    switch (m_operation) {
    case Operation::ReadOut:
        if (m_step * kTickMs >= 1500) {
            m_operation = Operation::None;
            m_progress->vFinish(tr("Parameters read"));
        }
        break;
    case Operation::TeachInWait:
        if (m_step * kTickMs >= 1000)
            beginOperation(Operation::TeachIn);
        break;
    case Operation::TeachIn:
        // Three seconds from 0 to 100 %.
        m_progress->setValue(m_step * kTickMs * 100 / 3000);
        if (m_progress->value() >= 100) {
            m_operation = Operation::None;
            m_progress->vFinish(tr("Teach-in done"));
        }
        break;
    case Operation::None:
        break;
    }
    if (m_operation == Operation::None) {
        m_operationTimer->stop();
        m_teachIn->setEnabled(m_status->isConnected());
    }
}

void PanelsPage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    // Two more states of the page: a teach-in under way, and the sensor gone.
    beginOperation(Operation::TeachIn);
    for (int i = 0; i < 25; ++i)
        advanceOperation();
    QApplication::processEvents();
    const QString teachIn = outputDir.absoluteFilePath(QStringLiteral("demo-panels-teach-in.png"));
    if (window()->grab().save(teachIn))
        *written << teachIn;
    setConnected(false);
    QApplication::processEvents();
    const QString disconnected = outputDir.absoluteFilePath(QStringLiteral("demo-panels-disconnected.png"));
    if (window()->grab().save(disconnected))
        *written << disconnected;
}

DEMO_REGISTER_PAGE(PanelsPage, 8)
