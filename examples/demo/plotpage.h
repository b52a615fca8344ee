// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_PLOTPAGE_H
#define DEMO_PLOTPAGE_H

#include "demopage.h"

#include <QVector>

class QLabel;
class QTimer;
class QwtPlotCurve;

namespace Utils {
class Plot;
class PlotDocument;
class PlotMarker;
} // namespace Utils

/*!
    The plot foundation as a host uses it: a live distance chart with zoom
    buttons and two draggable markers, exported as a file or as the sensor's
    calibration protocol on the vendor's letter paper.
*/
class PlotPage : public DemoPage
{
    Q_OBJECT

public:
    explicit PlotPage(QWidget *parent = nullptr);
    ~PlotPage() override;

    QString title() const override { return tr("Plot and markers"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void tick();
    void showMarkerValues();
    void exportPlot();
    void exportProtocol();

    Utils::Plot *m_plot;
    QWidget *m_plotWithButtons;
    QwtPlotCurve *m_curve;
    Utils::PlotMarker *m_upper;
    Utils::PlotMarker *m_lower;
    QLabel *m_status;
    QTimer *m_timer;
    Utils::PlotDocument *m_document;
    QVector<double> m_times;
    QVector<double> m_values;
    double m_phase = 0.0;
};

#endif // DEMO_PLOTPAGE_H
