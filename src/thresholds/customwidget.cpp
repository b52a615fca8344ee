// SPDX-License-Identifier: LGPL-2.1-or-later
#include "customwidget.h"

#include <qwt_plot.h>
#include <qwt_scale_widget.h>

#include <QEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Utils {

struct CustomWidget::Private
{
    QPointer<QwtPlot> plot;
    // Kept apart from the plot: the canvas still sends events while the plot
    // is being destroyed, when the plot can no longer be asked for it.
    QPointer<QWidget> canvas;
    double lower = 0.0;
    double upper = 0.0;
    QBrush brush = QBrush(QColor(110, 110, 110, 70));
};

CustomWidget::CustomWidget(QwtPlot *plot)
    : QWidget(plot ? plot->canvas() : nullptr)
    , d(std::make_unique<Private>())
{
    d->plot = plot;
    d->canvas = plot ? plot->canvas() : nullptr;
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    if (plot) {
        plot->canvas()->installEventFilter(this);
        if (QwtScaleWidget *scale = plot->axisWidget(QwtPlot::yLeft))
            connect(scale, &QwtScaleWidget::scaleDivChanged, this, &CustomWidget::vItemChanged);
    }
    hide();
}

// The canvas forgets a destroyed event filter by itself; the plot must not be
// asked for its canvas here, as the zone may go while the plot is destroyed.
CustomWidget::~CustomWidget() = default;

void CustomWidget::setRange(double from, double to)
{
    d->lower = std::min(from, to);
    d->upper = std::max(from, to);
    vItemChanged();
}

double CustomWidget::lowerValue() const
{
    return d->lower;
}

double CustomWidget::upperValue() const
{
    return d->upper;
}

void CustomWidget::setBrush(const QBrush &brush)
{
    d->brush = brush;
    update();
}

QBrush CustomWidget::brush() const
{
    return d->brush;
}

void CustomWidget::vItemChanged()
{
    if (!d->plot || !d->canvas)
        return;
    const QWidget *canvas = d->canvas;
    // Pixel rows of the two ends, held near the canvas so that a range far off
    // the scale (such as a parked one) cannot overflow the geometry.
    const auto row = [this, canvas](double value) {
        const double pixel = d->plot->transform(QwtPlot::yLeft, value);
        if (!std::isfinite(pixel))
            return pixel > 0 ? canvas->height() + 1 : -1;
        return int(std::clamp(pixel, -1.0 - canvas->height(), 2.0 * canvas->height() + 1.0));
    };
    const int a = row(d->upper);
    const int b = row(d->lower);
    const int top = std::min(a, b);
    const int bottom = std::max(a, b);
    setGeometry(0, top, canvas->width(), std::max(bottom - top, 0));
    update();
}

bool CustomWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == d->canvas)
        vItemChanged();
    return QWidget::eventFilter(watched, event);
}

void CustomWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.fillRect(rect(), d->brush);
}

} // namespace Utils
