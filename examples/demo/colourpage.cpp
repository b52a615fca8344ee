// SPDX-License-Identifier: LGPL-2.1-or-later
#include "colourpage.h"

#include <charts/genericchartcolor.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

ColourPage::ColourPage(QWidget *parent)
    : DemoPage(parent)
    , m_chart(new Utils::Charts::GenericChartColor(1, this, nullptr, false, false, 3))
{
    setObjectName(QStringLiteral("colour"));
    m_chart->setPlotTitle(0, tr("Colour channels").toStdString(), true, tr("Level").toStdString(), true);
    m_chart->vSetYScale(0, 0.0, 255.0);
    // Wider channel lines, and the full canvas width for the "R: ..  G: ..  B: .." label.
    m_chart->setPlotColor(0, 0, QColor(220, 30, 30), false, QColor(), 2);
    m_chart->setPlotColor(0, 1, QColor(30, 160, 60), false, QColor(), 2);
    m_chart->setPlotColor(0, 2, QColor(30, 80, 220), false, QColor(), 2);
    m_chart->vSetCustom(0, true);

    auto *startStop = new QPushButton(tr("Stop"), this);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("A colour sensor at 200 samples per second. Click a legend entry to hide or show "
                                    "its channel."),
                                 this));
    layout->addWidget(m_chart, 1);
    layout->addWidget(startStop, 0, Qt::AlignLeft);
    connect(&m_sensor, &SimulatedSensor::sample, this, [this](const SimulatedSensor::Sample &s) {
        m_chart->vAppendDataMultipleCurvesRGB(0, {s.red, s.green, s.blue}, true, s.time, QString());
    });
    connect(startStop, &QPushButton::clicked, this, [this, startStop]() {
        if (m_sensor.isRunning())
            m_sensor.stop();
        else
            m_sensor.start();
        startStop->setText(m_sensor.isRunning() ? tr("Stop") : tr("Start"));
    });
}

ColourPage::~ColourPage() = default;

void ColourPage::start()
{
    m_sensor.setRate(200);
    m_chart->resetView();
    m_sensor.start();
}

DEMO_REGISTER_PAGE(ColourPage, 6)
