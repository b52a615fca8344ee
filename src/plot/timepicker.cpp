// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/timepicker.h"

#include <qwt_plot.h>

#include <QDateTime>

#include <cmath>

namespace Utils {

TimePicker::TimePicker(QWidget *canvas)
    : QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::NoRubberBand, QwtPicker::AlwaysOn, canvas)
{
}

TimePicker::~TimePicker() = default;

QwtText TimePicker::trackerTextF(const QPointF &pos) const
{
    const qint64 ms = std::isfinite(pos.x()) && std::fabs(pos.x()) < 9.0e18 ? qint64(pos.x()) : 0;
    QwtText text(QStringLiteral("%1, %2")
                     .arg(QDateTime::fromMSecsSinceEpoch(ms).toString(QStringLiteral("hh:mm:ss.zzz")),
                          QString::number(pos.y(), 'g')));
    text.setBackgroundBrush(QBrush(QColor(255, 255, 255, 200)));
    return text;
}

} // namespace Utils
