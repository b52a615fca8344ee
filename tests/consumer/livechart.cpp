// SPDX-License-Identifier: LGPL-2.1-or-later
// The code README.md shows under "Live charts", compiled by the package tests.
#include "snippets.h"

//! [livechart]
#include <utils/charts/exportdialog.h>
#include <utils/charts/genericchart.h>

#include <QMainWindow>

// Two plots in docks of the window, a time line under them.
Utils::Charts::GenericChart *makeSensorChart(QMainWindow *window)
{
    auto *chart = new Utils::Charts::GenericChart(2, window, window);
    chart->setPlotTitle(0, "Distance", true, "mm", true);
    chart->vSetYScale(0, 0.0, 300.0);
    chart->resetView();            // start live: follow the newest sample
    return chart;
}

// Per sample, as the sensor delivers it; time 0 means "now".
void onSample(Utils::Charts::GenericChart *chart, double distance)
{
    chart->vAppendData(0, distance, true, -65000.0, false, -1.0, 0.0);
}

// Let the user save what was recorded.
void exportRecording(Utils::Charts::GenericChart *chart, QWidget *parent)
{
    QList<const Utils::ValueOverTime *> series{chart->getData(0)};
    QList<QString> headers{QStringLiteral("Distance [mm]")};
    Utils::ExportDialog dialog(&series, &headers, parent);
    dialog.setPrecision(2);
    dialog.exec();
}
//! [livechart]
