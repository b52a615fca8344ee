// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_COLOURPAGE_H
#define DEMO_COLOURPAGE_H

#include "demopage.h"
#include "simulatedsensor.h"

namespace Utils {
namespace Charts {
class GenericChartColor;
}
} // namespace Utils

//! A simulated colour sensor: its red, green and blue channels in one plot with a legend.
class ColourPage : public DemoPage
{
    Q_OBJECT

public:
    explicit ColourPage(QWidget *parent = nullptr);
    ~ColourPage() override;

    QString title() const override { return tr("Colour sensor"); }
    void start() override;

private:
    Utils::Charts::GenericChartColor *m_chart;
    SimulatedSensor m_sensor;
};

#endif // DEMO_COLOURPAGE_H
