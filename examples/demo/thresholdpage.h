// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_THRESHOLDPAGE_H
#define DEMO_THRESHOLDPAGE_H

#include "demopage.h"

#include <QVector>
#include <QPointF>

class QLabel;
class QSpinBox;
class QTimer;
class QwtPlotCurve;

namespace Utils {
class Plot;
class ThresholdMultiManager;
class ThresholdWindowWidgetUniversal;
} // namespace Utils

/*!
    A switching window on a live distance chart, as a host wires it: the user
    drags a switching point of the threshold window, the host writes the value
    into a threshold manager, and the page shows the 16-digit string that would
    go to the sensor.
*/
class ThresholdPage : public DemoPage
{
    Q_OBJECT

public:
    explicit ThresholdPage(QWidget *parent = nullptr);
    ~ThresholdPage() override;

    QString title() const override { return tr("Thresholds"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void tick();
    void switchingPointMoved(unsigned int mark, double value);
    void outputUpdated(unsigned int position);
    void showOutputState();

    Utils::Plot *m_plot;
    QwtPlotCurve *m_curve;
    Utils::ThresholdWindowWidgetUniversal *m_window;
    Utils::ThresholdMultiManager *m_manager;
    QSpinBox *m_hysteresis;
    QLabel *m_points;
    QLabel *m_string;
    QLabel *m_output;
    QTimer *m_timer;
    QVector<QPointF> m_samples;
    double m_phase = 0.0;
};

#endif // DEMO_THRESHOLDPAGE_H
