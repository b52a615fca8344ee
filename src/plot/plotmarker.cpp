// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plotmarker.h"

#include "plot/plotcommon_p.h"
#include "plot/plotmarker_p.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>
#include <qwt_scale_widget.h>

#include <QCursor>
#include <QEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QToolTip>

#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

namespace Utils {

using PlotCommon::toPixel;

namespace {

//! The marker's band and line as last painted into images, and what they were painted for.
struct MarkerLook
{
    bool valid = false;
    QSize size;
    QPen pen;
    int orientation = 0;
    Qt::BrushStyle bandStyle = Qt::NoBrush;
    int axis = 0;
    QImage band;
    QPoint bandOffset;
    QImage line;
    QPoint lineOffset;
};

} // namespace

struct PlotMarker::Private
{
    double value = 0.0;
    double upperValue = 0.0;
    double lowerValue = 0.0;
    bool moveable = false;
    bool hovered = false;
    QPen pen = QPen(QBrush(QColor(200, 0, 0, 50)), 2, Qt::DashDotDotLine);
    QwtPlot *plot = nullptr;
    // Compared in the event filter without calling into a plot that may be
    // half destroyed while the canvas still delivers events.
    QWidget *canvas = nullptr;
    bool dragging = false;
    int pressX = 0;
    int pressY = 0;
    double upperBound = 0.0;
    double lowerBound = 0.0;
    unsigned int thickness = 0;
    int pixelThickness = 0;
    int savedPixelThickness = 0;
    PlotMarker::Orientation orientation = PlotMarker::OrientationBandAbove;
    PlotMarker::Mode mode = PlotMarker::ModeDefault;
    bool disabled = false;
    bool negativeClamped = false;

    // Vertical form (value on the time axis).
    int axis = QwtPlot::yLeft;
    std::vector<std::pair<double, double>> neighbourBounds; // (left, right) per index
    int neighbourSpacing = 0;
    double leftValue = 0.0;
    double rightValue = 0.0;
    QString leftText;
    QString rightText;
    Qt::BrushStyle bandStyle = Qt::Dense5Pattern;
    bool emitWhileDragging = false;
    QString lastHint;
    MarkerLook look;

    bool vertical() const { return axis == QwtPlot::xBottom; }
};

PlotMarker::PlotMarker(QwtPlot *plot, Mode mode)
    : QWidget(plot)
    , d(new Private)
{
    init(plot, mode, QwtPlot::yLeft);
}

PlotMarker::PlotMarker(QwtPlot *plot, Mode mode, int valueAxis)
    : QWidget(plot)
    , d(new Private)
{
    init(plot, mode, valueAxis);
}

void PlotMarker::init(QwtPlot *plot, Mode mode, int valueAxis)
{
    d->plot = plot;
    d->mode = mode;
    d->axis = valueAxis == QwtPlot::xBottom ? QwtPlot::xBottom : QwtPlot::yLeft;
    if (plot) {
        d->canvas = plot->canvas();
        setParent(plot->canvas());
        const QwtScaleDiv &y = plot->axisScaleDiv(QwtPlot::yLeft);
        d->lowerBound = y.lowerBound();
        d->upperBound = y.upperBound();
    }
    setNeighbourCount(2);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::transparent);
    pal.setColor(QPalette::Base, Qt::transparent);
    setPalette(pal);
    setAutoFillBackground(false);
    if (plot) {
        setCursor(plot->canvas()->cursor());
        plot->canvas()->installEventFilter(this);
        // Follow zoom and pan: the axis widget reports every new scale division.
        for (int axis : {int(QwtPlot::yLeft), int(QwtPlot::xBottom)}) {
            if (QwtScaleWidget *scale = plot->axisWidget(axis))
                connect(scale, &QwtScaleWidget::scaleDivChanged, this, [this]() {
                    recomputePixelThickness();
                    vItemChanged();
                });
        }
    }
    vItemChanged();
    QWidget::setVisible(false);
}

// The marker usually dies with the canvas, after the plot's own data is gone:
// it must not touch the plot here. Qt drops a destroyed event filter by itself.
PlotMarker::~PlotMarker() = default;

void PlotMarker::setValue(const double &value)
{
    // A NaN value would travel on to whoever reads the marker (a threshold
    // manager, the sensor): refuse it and keep the last value.
    if (std::isnan(value))
        return;
    d->value = value;
    if (value > 0.0 && !d->disabled)
        setVisible(true);
    vItemChanged();
}

void PlotMarker::setValueText(const std::string &text)
{
    Q_UNUSED(text) // a marker is set by value or by the user, never from text
}

double PlotMarker::value() const
{
    return d->value;
}

std::string PlotMarker::valueText() const
{
    return QString::number(d->value, 'g', 6).toLatin1().toStdString();
}

int PlotMarker::nValue() const
{
    if (std::isnan(d->value))
        return 0;
    return int(std::max(double(INT_MIN), std::min(d->value, double(INT_MAX))));
}

void PlotMarker::setUpperValue(double value, const QString &text)
{
    d->upperValue = value;
    m_oUpperText = text;
}

void PlotMarker::setLowerValue(double value, const QString &text)
{
    d->lowerValue = value;
    m_oLowerText = text;
}

void PlotMarker::setMoveable(bool moveable)
{
    d->moveable = moveable;
    if (moveable)
        setCursor(d->vertical() ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    else if (d->plot)
        setCursor(d->plot->canvas()->cursor());
}

bool PlotMarker::bMovable() const
{
    return d->moveable;
}

void PlotMarker::vSetPen(const QPen &pen)
{
    d->pen = pen;
    vItemChanged();
    update();
}

QPen PlotMarker::pen() const
{
    return d->pen;
}

void PlotMarker::setUpperBound(double upper)
{
    d->upperBound = upper;
}

double PlotMarker::upper() const
{
    return d->upperBound;
}

void PlotMarker::setLowerBound(double lower)
{
    d->lowerBound = lower;
}

double PlotMarker::lower() const
{
    return d->lowerBound;
}

void PlotMarker::setRange(double lower, double upper)
{
    d->lowerBound = lower;
    d->upperBound = upper;
}

void PlotMarker::setThickness(unsigned int thickness)
{
    d->thickness = thickness;
    recomputePixelThickness();
    if (d->plot)
        resize(d->plot->size());
}

unsigned int PlotMarker::thickness() const
{
    return d->thickness;
}

int PlotMarker::pixelThickness() const
{
    return d->pixelThickness;
}

void PlotMarker::recomputePixelThickness()
{
    if (!d->plot)
        return;
    const double t = double(d->thickness);
    const double p0 = d->plot->transform(d->axis, 0.0);
    const double pt = d->plot->transform(d->axis, t);
    // Pixels grow downwards on a value axis and rightwards on the time axis.
    d->pixelThickness = toPixel(d->vertical() ? pt - p0 : p0 - pt);
}

void PlotMarker::vSetTicknessHeight()
{
    d->savedPixelThickness = d->pixelThickness;
}

void PlotMarker::vAfterZoomReset()
{
    d->pixelThickness = d->savedPixelThickness;
    if (d->plot)
        place(d->plot->width(), d->plot->height());
}

void PlotMarker::setNoiseOrientation(Orientation orientation)
{
    d->orientation = orientation;
    vItemChanged();
    update();
}

void PlotMarker::setNoiseOrientation(int orientation)
{
    setNoiseOrientation(Orientation(qBound(0, orientation, 4)));
}

PlotMarker::Orientation PlotMarker::noiseOrientation() const
{
    return d->orientation;
}

void PlotMarker::setMode(Mode mode)
{
    d->mode = mode;
    if (d->plot)
        resize(d->plot->size());
}

PlotMarker::Mode PlotMarker::mode() const
{
    return d->mode;
}

void PlotMarker::enablePlotMarker(bool enable)
{
    setVisible(enable);
    d->disabled = !enable;
}

void PlotMarker::vDisablePlotMarker(bool enabled)
{
    QWidget::setEnabled(enabled);
}

void PlotMarker::setVisible(bool visible)
{
    QWidget::setVisible(visible);
}

bool PlotMarker::isPlotMarkerVisible() const
{
    return isVisible();
}

void PlotMarker::showPlotMarker(bool show)
{
    setVisible(show);
}

void PlotMarker::vAllowedNegativeValMarkers(bool clamp)
{
    d->negativeClamped = clamp;
}

bool PlotMarker::negativeValuesClamped() const
{
    return d->negativeClamped;
}

void PlotMarker::setText(bool oneDecimal)
{
    m_bOneDecimal = oneDecimal;
}

void PlotMarker::vSetRestrictionCustom(int restriction)
{
    m_nRestrictionCustom = restriction;
}

int PlotMarker::restrictionCustom() const
{
    return m_nRestrictionCustom;
}

void PlotMarker::resize(const QSize &size)
{
    place(size.width(), size.height());
}

void PlotMarker::vItemChanged()
{
    if (d->plot)
        resize(d->plot->size());
}

// The edge whose pixel carries the value: placement and dragging use the same
// edge, so placing a value and dragging it by zero pixels give the same value.
static int valueEdgeOffset(bool vertical, PlotMarker::Orientation orientation, int extent)
{
    if (!vertical)
        return orientation == PlotMarker::OrientationBandAbove ? extent : 0;
    switch (orientation) {
    case PlotMarker::OrientationBandAbove:
        return 0;
    case PlotMarker::OrientationBandCentered:
    case PlotMarker::OrientationLineCentered:
        return extent / 2;
    default:
        return extent;
    }
}

void PlotMarker::place(int width, int height)
{
    if (!d->plot)
        return;
    const int extent = d->pixelThickness + 4;
    const int pixel = toPixel(d->plot->transform(d->axis, d->value));
    if (!d->vertical()) {
        // The band sits above the line for orientation 0, below it otherwise.
        const int top = d->orientation == OrientationBandAbove ? pixel - d->pixelThickness - 4 : pixel;
        setGeometry(QRect(x(), top, width, extent));
    } else {
        const int left = pixel - valueEdgeOffset(true, d->orientation, extent);
        setGeometry(QRect(left, y(), extent, height));
    }
}

int PlotMarker::dragHorizontal(int top)
{
    const QwtScaleDiv &div = d->plot->axisScaleDiv(QwtPlot::yLeft);
    const bool inverted = div.lowerBound() > div.upperBound();
    const int pUp = toPixel(d->plot->transform(QwtPlot::yLeft, inverted ? d->lowerBound : d->upperBound));
    const int pLow = toPixel(d->plot->transform(QwtPlot::yLeft, inverted ? d->upperBound : d->lowerBound));
    const int h = height();
    top = std::max(top, pUp + 1);
    if (m_nRestrictionCustom <= -1) {
        // The 1.05 is intended: the marker may go slightly past the lower bound.
        if (top + h > pLow - 1)
            top = int((pLow - 1) * 1.05 - h);
    } else {
        top = std::min(top, pLow - h);
    }
    return top;
}

int PlotMarker::dragVertical(int left)
{
    const int w = width();
    const int edge = valueEdgeOffset(true, d->orientation, w);
    int minX = INT_MIN;
    int maxX = INT_MAX;
    for (const auto &bounds : d->neighbourBounds) {
        const int a = toPixel(d->plot->transform(QwtPlot::xBottom, bounds.first));
        const int b = toPixel(d->plot->transform(QwtPlot::xBottom, bounds.second));
        minX = std::max(minX, std::min(a, b) + d->neighbourSpacing);
        maxX = std::min(maxX, std::max(a, b) - d->neighbourSpacing);
    }
    int lineX = left + edge;
    if (lineX > maxX)
        lineX = maxX;
    if (lineX < minX)
        lineX = minX;
    return lineX - edge;
}

void PlotMarker::dragStep(double newValue)
{
    Q_UNUSED(newValue)
}

bool PlotMarker::eventFilter(QObject *watched, QEvent *event)
{
    if (d->canvas && watched == d->canvas) {
        if (event->type() == QEvent::Resize) {
            resize(static_cast<QResizeEvent *>(event)->size());
            setThickness(d->thickness);
        } else if (event->type() == QEvent::Paint) {
            recomputePixelThickness();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PlotMarker::paintLook(QPainter &painter, bool band, bool line) const
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(d->pen);
    const QRect r = rect();
    const bool lineOnly = d->orientation == OrientationLineOnly || (d->vertical() && d->orientation == OrientationLineCentered);
    if (band && !lineOnly)
        painter.fillRect(r, QBrush(d->pen.color(), d->bandStyle));
    if (!line)
        return;
    if (!d->vertical()) {
        const int y = d->orientation == OrientationBandAbove ? r.bottom() : r.top();
        painter.drawLine(r.left(), y, r.right(), y);
    } else {
        const int edge = valueEdgeOffset(true, d->orientation, r.width());
        const int x = std::min(r.left() + edge, r.right());
        painter.drawLine(x, r.top(), x, r.bottom());
    }
}

void PlotMarker::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    if (!PlotCommon::blitsExactly(painter)) {
        paintLook(painter, true, true);
        return;
    }
    // The canvas repaints at every replot, and the marker with it; its look
    // only changes with its size, pen, orientation, band style and form. Band and
    // line are kept as two images and blitted in the order they are painted:
    // each pixel then goes through the same two blends as when painting, while
    // one image of both would blend once and round differently.
    MarkerLook &look = d->look;
    if (!look.valid || look.size != size() || look.pen != d->pen || look.orientation != d->orientation
        || look.bandStyle != d->bandStyle || look.axis != d->axis) {
        look.valid = true;
        look.size = size();
        look.pen = d->pen;
        look.orientation = d->orientation;
        look.bandStyle = d->bandStyle;
        look.axis = d->axis;
        const auto layer = [this](bool band, QImage *image, QPoint *offset) {
            *image = QImage();
            if (size().isEmpty())
                return;
            QImage full(size(), QImage::Format_ARGB32_Premultiplied);
            full.fill(Qt::transparent);
            {
                QPainter layerPainter(&full);
                paintLook(layerPainter, band, !band);
            }
            *image = PlotCommon::croppedToContent(full, offset);
        };
        layer(true, &look.band, &look.bandOffset);
        layer(false, &look.line, &look.lineOffset);
    }
    if (!look.band.isNull())
        painter.drawImage(look.bandOffset, look.band);
    if (!look.line.isNull())
        painter.drawImage(look.lineOffset, look.line);
}

void PlotMarker::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    if (d->moveable) {
        d->dragging = true;
        const QPoint p = isWindow() ? event->globalPos() - pos() : event->pos();
        d->pressX = p.x();
        d->pressY = p.y();
    }
    showTextHint();
}

void PlotMarker::mouseMoveEvent(QMouseEvent *event)
{
    if (!d->dragging || event->buttons() == Qt::NoButton || !d->plot) {
        event->ignore();
        return;
    }
    event->accept();
    const QPoint inCanvas = mapToParent(event->pos());
    d->value = moveTo(d->vertical() ? inCanvas.x() - d->pressX : inCanvas.y() - d->pressY);
    if (d->emitWhileDragging)
        Q_EMIT valueChanged(d->value);
    dragStep(d->value);
    showTextHint();
}

double PlotMarker::moveTo(int position)
{
    double value = d->value;
    if (!d->vertical()) {
        const int top = dragHorizontal(position);
        move(x(), top);
        value = d->plot->invTransform(QwtPlot::yLeft, top + valueEdgeOffset(false, d->orientation, height()));
    } else {
        const int left = dragVertical(position);
        move(left, y());
        value = d->plot->invTransform(QwtPlot::xBottom, left + valueEdgeOffset(true, d->orientation, width()));
    }
    // The flag clamps although its setter's name suggests allowing: kept on purpose.
    if (d->negativeClamped && value < 0.0)
        value = 0.0;
    return value;
}

void PlotMarker::keyPressEvent(QKeyEvent *event)
{
    const bool vertical = d->vertical();
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Up:
        step = vertical ? 0 : -1;
        break;
    case Qt::Key_Down:
        step = vertical ? 0 : 1;
        break;
    case Qt::Key_Left:
        step = vertical ? -1 : 0;
        break;
    case Qt::Key_Right:
        step = vertical ? 1 : 0;
        break;
    default:
        break;
    }
    if (step == 0 || !d->moveable || d->dragging || !d->plot) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (event->modifiers() & Qt::ShiftModifier)
        step *= 10;
    // Each key press is a whole drag: a step, then the value is reported.
    const QPoint before = pos();
    const int from = vertical ? x() : y();
    const double value = moveTo(from + step);
    const int to = vertical ? x() : y();
    if ((to - from) * step <= 0) {
        move(before); // held at a bound: no step back from outside it either
        return;
    }
    d->value = value;
    dragStep(d->value);
    Q_EMIT valueChanged(d->value);
    notify();
    showTextHint();
}

void PlotMarker::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    if (d->moveable) {
        d->dragging = false;
        Q_EMIT valueChanged(d->value);
        notify();
    }
    d->pressX = event->pos().x();
    d->pressY = event->pos().y();
}

void PlotMarker::enterEvent(QEvent *event)
{
    event->accept();
    if (d->moveable) {
        d->pen.setWidth(MarkerPen::enlargedWidth(d->pen.width()));
        update();
    }
    d->hovered = true;
    showTextHint();
}

void PlotMarker::leaveEvent(QEvent *event)
{
    Q_UNUSED(event)
    if (d->moveable) {
        d->pen.setWidth(MarkerPen::shrunkWidth(d->pen.width()));
        update();
    }
    d->hovered = false;
}

void PlotMarker::showTextHint()
{
    if (!d->vertical()) {
        if (d->value == d->lowerValue)
            m_oHintText = m_oLowerText;
        else if (d->value == d->upperValue)
            m_oHintText = m_oUpperText;
    } else {
        if (d->value == d->leftValue)
            m_oHintText = d->leftText;
        else if (d->value == d->rightValue)
            m_oHintText = d->rightText;
    }
    d->lastHint = m_oHintText + QString::number(d->value, 'f', m_bOneDecimal ? 1 : 2);
    QToolTip::showText(QCursor::pos(), d->lastHint, this);
}

bool PlotMarker::isHovered() const
{
    return d->hovered;
}

bool PlotMarker::isDragging() const
{
    return d->dragging;
}

QString PlotMarker::hintText() const
{
    return d->lastHint;
}

QwtPlot *PlotMarker::plot() const
{
    return d->plot;
}

bool PlotMarker::operator>(const PlotMarker &other) const
{
    return d->value > other.d->value;
}

bool PlotMarker::operator<(const PlotMarker &other) const
{
    return d->value < other.d->value;
}

bool PlotMarker::operator==(const PlotMarker &other) const
{
    return d->value == other.d->value;
}

bool PlotMarker::operator!=(const PlotMarker &other) const
{
    return d->value != other.d->value;
}

int PlotMarker::valueAxis() const
{
    return d->axis;
}

void PlotMarker::setValueAxis(int axis)
{
    d->axis = axis == QwtPlot::xBottom ? QwtPlot::xBottom : QwtPlot::yLeft;
    recomputePixelThickness();
    vItemChanged();
}

void PlotMarker::setNeighbourCount(int count)
{
    count = std::max(count, 1);
    double left = 0.0;
    double right = 0.0;
    if (d->plot) {
        const QwtScaleDiv &x = d->plot->axisScaleDiv(QwtPlot::xBottom);
        left = x.lowerBound();
        right = x.upperBound();
    }
    d->neighbourBounds.resize(size_t(count), std::make_pair(left, right));
}

void PlotMarker::setNeighbourBound(int index, bool left, double value)
{
    if (index < 0 || size_t(index) >= d->neighbourBounds.size())
        return;
    if (left)
        d->neighbourBounds[size_t(index)].first = value;
    else
        d->neighbourBounds[size_t(index)].second = value;
}

double PlotMarker::neighbourBound(int index, bool left) const
{
    if (index < 0 || size_t(index) >= d->neighbourBounds.size())
        return -1.0;
    return left ? d->neighbourBounds[size_t(index)].first : d->neighbourBounds[size_t(index)].second;
}

void PlotMarker::setNeighbourSpacing(int pixels)
{
    d->neighbourSpacing = pixels;
}

void PlotMarker::setLeftRightValue(bool left, double value, const QString &text)
{
    if (left) {
        d->leftValue = value;
        d->leftText = text;
    } else {
        d->rightValue = value;
        d->rightText = text;
    }
}

void PlotMarker::setBandStyle(Qt::BrushStyle style)
{
    d->bandStyle = style;
    update();
}

void PlotMarker::setEmitWhileDragging(bool emitWhileDragging)
{
    d->emitWhileDragging = emitWhileDragging;
}

} // namespace Utils
