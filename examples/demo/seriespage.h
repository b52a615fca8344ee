// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_SERIESPAGE_H
#define DEMO_SERIESPAGE_H

#include "demopage.h"
#include "simulatedsensor.h"

#include <charts/valueovertime.h>

class QLabel;

namespace Utils {
class ChartPlotter;
class ChartTimeLine;
} // namespace Utils

/*!
    The pieces the live chart is built from, put together by hand: a sample series
    feeding a chart plotter's curve, a time line under it that chooses the time
    window, and the CSV export of the series.
*/
class SeriesPage : public DemoPage
{
    Q_OBJECT

public:
    explicit SeriesPage(QWidget *parent = nullptr);
    ~SeriesPage() override;

    QString title() const override { return tr("Series and CSV"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void exportCsv();

    Utils::ValueOverTime m_series;
    Utils::ChartPlotter *m_plotter;
    Utils::ChartTimeLine *m_timeLine;
    QLabel *m_info;
    SimulatedSensor m_sensor;
    double m_max = 0.0;
    double m_min = 1e9;
};

#endif // DEMO_SERIESPAGE_H
