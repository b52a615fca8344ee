// SPDX-License-Identifier: LGPL-2.1-or-later
#include "livepage.h"

#include <charts/exportdialog.h>
#include <charts/genericchart.h>
#include <charts/valueovertime.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

LivePage::LivePage(QWidget *parent)
    : DemoPage(parent)
    , m_window(new QMainWindow(this))
    , m_chart(nullptr)
    , m_startStop(new QPushButton(tr("Stop"), this))
    , m_rate(new QComboBox(this))
    , m_follow(new QCheckBox(tr("Follow newest"), this))
    , m_status(new QLabel(this))
    , m_statusTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("live"));
    // The chart puts each plot into a dock of this window and the time line into its centre.
    m_window->setWindowFlags(Qt::Widget);
    m_chart = new Utils::Charts::GenericChart(2, m_window, m_window, false, false);
    m_chart->setObjectName(QStringLiteral("liveChart"));
    m_chart->setPlotTitle(0, tr("Distance").toStdString(), true, tr("Distance [mm]").toStdString(), true);
    m_chart->setPlotTitle(1, tr("Signal quality").toStdString(), true, tr("Quality [%]").toStdString(), true);
    m_chart->vSetYScale(0, 0.0, 300.0);
    m_chart->vSetYScale(1, 0.0, 100.0);
    m_chart->setPlotColor(1, QColor(0, 120, 90), true, QColor(0, 120, 90, 30), 1);
    m_chart->addZoomBarX(0, true);
    m_chart->setStatusText(tr("Simulated sensor; drag the time line's selection to look back, its right end follows."));
    m_chart->setStatusMessageVisible(true);

    for (int rate : {1000, 10000, 100000})
        m_rate->addItem(tr("%1 kHz").arg(rate / 1000), rate);
    m_rate->setCurrentIndex(1);
    m_follow->setChecked(true);
    auto *exportButton = new QPushButton(tr("Export CSV..."), this);

    auto *bar = new QHBoxLayout;
    bar->addWidget(m_startStop);
    bar->addWidget(new QLabel(tr("Rate:"), this));
    bar->addWidget(m_rate);
    bar->addWidget(m_follow);
    bar->addWidget(exportButton);
    bar->addStretch(1);
    bar->addWidget(m_status);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_window, 1);

    connect(&m_sensor, &SimulatedSensor::sample, this, [this](const SimulatedSensor::Sample &s) {
        m_chart->vAppendData(0, s.distance, true, -65000.0, false, -1.0, s.time);
        m_chart->vAppendData(1, s.quality, true, -65000.0, false, -1.0, s.time);
    });
    connect(m_startStop, &QPushButton::clicked, this, &LivePage::startStop);
    connect(m_rate, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this]() { m_sensor.setRate(m_rate->currentData().toInt()); });
    connect(m_follow, &QCheckBox::toggled, this, [this](bool follow) {
        if (follow)
            m_chart->resetView();
        m_chart->setFollowNewest(follow);
    });
    connect(exportButton, &QPushButton::clicked, this, &LivePage::exportCsv);
    connect(m_statusTimer, &QTimer::timeout, this, &LivePage::showStatus);
}

LivePage::~LivePage() = default;

void LivePage::start()
{
    m_sensor.setRate(m_rate->currentData().toInt());
    m_chart->resetView();
    m_sensor.start();
    m_statusTimer->start(500);
}

void LivePage::startStop()
{
    if (m_sensor.isRunning()) {
        m_sensor.stop();
        m_startStop->setText(tr("Start"));
    } else {
        m_sensor.start();
        m_startStop->setText(tr("Stop"));
    }
}

void LivePage::exportCsv()
{
    QList<const Utils::ValueOverTime *> series{m_chart->getData(0), m_chart->getData(1)};
    QList<QString> headers{tr("Distance [mm]"), tr("Signal quality [%]")};
    Utils::ExportDialog dialog(&series, &headers, this);
    dialog.setPrecision(2);
    dialog.exec();
}

void LivePage::showStatus()
{
    m_status->setText(tr("%1 samples, %2 kept per plot").arg(m_sensor.delivered()).arg(m_chart->getData(0)->size()));
}

void LivePage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    // What "Export CSV..." writes, without the dialog: the chart's own text form.
    QFile file(outputDir.absoluteFilePath(QStringLiteral("live-sensor.csv")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray::fromStdString(m_chart->dataToString()));
        *written << file.fileName();
    }
}

DEMO_REGISTER_PAGE(LivePage, 5)
