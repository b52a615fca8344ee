// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/simpletimechart.h"

#include "charts/panelchart_p.h"
#include "charts/valueovertime.h"
#include "plot/plot.h"

#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace Utils {

struct SimpleTimeChart::Private
{
    explicit Private(SimpleTimeChart *q)
        : engine(q, 1, Charts::Rules::kSingleCurve)
    {
    }

    Charts::PanelChart engine;
    QColor color = QColor(188, 0, 0);
    bool filling = true;
};

SimpleTimeChart::SimpleTimeChart(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->engine.plot);
    d->engine.plot->setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
    d->engine.plot->setMinimumSize(160, 100);
    applyStyle();
}

SimpleTimeChart::~SimpleTimeChart() = default;

void SimpleTimeChart::vAppendData(const double &data, bool update, double timeValue)
{
    d->engine.append(&data, update, timeValue);
}

void SimpleTimeChart::clear()
{
    d->engine.clear();
}

const ValueOverTime *SimpleTimeChart::getData() const
{
    return d->engine.curves.front().series.get();
}

Plot *SimpleTimeChart::poPlot() const
{
    return d->engine.plot;
}

void SimpleTimeChart::vSetYScale(const double &low, const double &high)
{
    d->engine.plot->setAxisScale(QwtPlot::yLeft, low, high);
    d->engine.replot();
}

void SimpleTimeChart::setPlotTitle(const QString &title)
{
    if (title == plotTitle())
        return;
    Charts::PanelChart::setTitle(d->engine.plot, title);
    d->engine.replot();
}

QString SimpleTimeChart::plotTitle() const
{
    return d->engine.plot->title().text();
}

void SimpleTimeChart::setTimeSpan(double span)
{
    // Doubles count as equal within a relative 1e-12, as everywhere in the library.
    if (!(span > 0.0) || !std::isfinite(span)
        || std::abs(span - d->engine.span) <= 1e-12 * std::max(std::abs(span), std::abs(d->engine.span)))
        return;
    d->engine.setSpan(span);
    Q_EMIT timeSpanChanged(span);
}

double SimpleTimeChart::timeSpan() const
{
    return d->engine.span;
}

void SimpleTimeChart::setCurveColor(const QColor &color)
{
    if (!color.isValid() || color == d->color)
        return;
    d->color = color;
    applyStyle();
    Q_EMIT curveColorChanged(color);
}

QColor SimpleTimeChart::curveColor() const
{
    return d->color;
}

void SimpleTimeChart::setFilling(bool filling)
{
    if (filling == d->filling)
        return;
    d->filling = filling;
    applyStyle();
}

bool SimpleTimeChart::isFilling() const
{
    return d->filling;
}

void SimpleTimeChart::applyStyle()
{
    d->engine.setCurveStyle(0, d->color, 1, d->filling);
}

} // namespace Utils
