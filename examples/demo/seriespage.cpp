// SPDX-License-Identifier: LGPL-2.1-or-later
#include "seriespage.h"

#include <charts/charttimeline.h>
#include <charts/exportdialog.h>
#include <plot/chartplotter.h>
#include <plot/curvefactory.h>
#include <plot/customcurve.h>
#include <plot/plot.h>

#include <QDateTime>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SeriesPage::SeriesPage(QWidget *parent)
    : DemoPage(parent)
    , m_plotter(new Utils::ChartPlotter(this))
    , m_timeLine(new Utils::ChartTimeLine(this))
    , m_info(new QLabel(this))
{
    setObjectName(QStringLiteral("series"));
    m_plotter->vSetTitle(tr("Distance, 100 samples per second"));
    m_plotter->setUpYScale(0.0, 300.0, 0.0);
    Utils::CustomCurve *curve = m_plotter->poCurveFactory()->poAttachData(&m_series);
    curve->setTitle(tr("Distance [mm]"));
    // The time line's overview draws the same series; its selection is the plotter's window.
    Utils::CustomCurve *overview = m_timeLine->poCurveFactory()->poAttachData(&m_series);
    overview->setPen(QPen(QColor(94, 137, 206), 1));
    m_timeLine->vSetYAxisScale(0.0, 300.0);
    const double now = double(QDateTime::currentMSecsSinceEpoch());
    m_timeLine->vUpdateXAxisScale(now - 10000.0, now + 50000.0);
    m_timeLine->setSelectorRange(now - 10000.0, now + 10000.0, false);
    m_plotter->poPlot()->QwtPlot::setAxisScale(QwtPlot::xBottom, now - 10000.0, now + 10000.0);

    auto *exportButton = new QPushButton(tr("Export CSV..."), this);
    auto *bar = new QHBoxLayout;
    bar->addWidget(exportButton);
    bar->addWidget(m_info, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("A Utils::ValueOverTime series feeds the chart plotter's curve and the time line's "
                                    "overview; drag the selection to choose the window."),
                                 this));
    layout->addWidget(m_plotter, 1);
    layout->addWidget(m_timeLine);
    layout->addLayout(bar);

    connect(m_timeLine, &Utils::ChartTimeLine::vRangeChanged, this, [this](const double &left, const double &right) {
        m_plotter->poPlot()->QwtPlot::setAxisScale(QwtPlot::xBottom, left, right);
        m_plotter->poPlot()->replot();
    });
    connect(&m_sensor, &SimulatedSensor::sample, this, [this](const SimulatedSensor::Sample &s) {
        m_series.vAppend(s.distance, s.time);
        m_max = std::max(m_max, s.distance);
        m_min = std::min(m_min, s.distance);
        m_plotter->setCurrentValue(s.distance);
        m_plotter->poPlot()->replot();
    });
    connect(&m_sensor, &SimulatedSensor::sample, m_timeLine, [this]() {
        if (m_series.size() % 50 == 0) {
            m_plotter->vSetMinMarker(m_min);
            m_plotter->vSetMaxMarker(m_max);
            m_timeLine->poPlot()->replot();
            m_info->setText(tr("%1 samples in the series").arg(m_series.size()));
        }
    });
    connect(exportButton, &QPushButton::clicked, this, &SeriesPage::exportCsv);
}

SeriesPage::~SeriesPage() = default;

void SeriesPage::start()
{
    m_sensor.setRate(100);
    m_sensor.start();
}

void SeriesPage::exportCsv()
{
    QList<const Utils::ValueOverTime *> series{&m_series};
    QList<QString> headers{tr("Distance [mm]")};
    Utils::ExportDialog dialog(&series, &headers, this);
    dialog.setPrecision(1);
    dialog.exec();
}

void SeriesPage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    const QString path = outputDir.absoluteFilePath(QStringLiteral("series-timeline.png"));
    if (grab().save(path))
        *written << path;
}

DEMO_REGISTER_PAGE(SeriesPage, 7)
