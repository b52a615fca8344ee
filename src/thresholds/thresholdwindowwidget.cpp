// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdwindowwidget.h"

#include "core/log.h"
#include "core/log_p.h"
#include "plot/plotmarker.h"
#include "thresholds/customwidget.h"

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Utils {

/*!
    A window mark: a PlotMarker that tells its widget about every drag step, so
    that the zones follow the mark while it is dragged, not only at the end.
*/
class ThresholdWindowMark : public PlotMarker
{
public:
    ThresholdWindowMark(QwtPlot *plot, ThresholdWindowWidget *owner)
        : PlotMarker(plot, PlotMarker::ModeThreshold)
        , m_owner(owner)
    {
    }

protected:
    void dragStep(double newValue) override
    {
        Q_UNUSED(newValue)
        m_owner->markDragged();
    }

private:
    ThresholdWindowWidget *m_owner;
};

namespace {

// Values further apart than this relative tolerance count as a change.
bool sameValue(double a, double b)
{
    return std::abs(a - b) <= 1e-12 * std::max(std::abs(a), std::abs(b));
}

void *subjectOf(PlotMarker *mark)
{
    return static_cast<void *>(static_cast<Observable *>(mark));
}

// The hysteresis side flag of a mark: set = band below the line, cleared = band
// above. A mark whose band lies above its line carries its value on the bottom
// edge, which a drag can bring exactly onto the lower drag limit.
void setSideFlag(PlotMarker *mark, bool set)
{
    const PlotMarker::Orientation wanted = set ? PlotMarker::OrientationBandBelow : PlotMarker::OrientationBandAbove;
    if (mark->noiseOrientation() != wanted)
        mark->setNoiseOrientation(wanted);
}

// Runs at every drag end: it logs through a logger somebody already holds
// rather than creating and destroying one per call.
void logDebug(const char *format, double value)
{
    if (LoggingSystem::Log *log = LoggingSystem::Internal::existingLog())
        log->vLog(LoggingSystem::Log::eDebug, "ThresholdWindowWidget", format, value);
}

} // namespace

struct ThresholdWindowWidget::Private
{
    bool overlapping = false;
    QPointer<QwtPlot> plot;
    QPointer<PlotMarker> upperMark;
    QPointer<PlotMarker> lowerMark;
    double minDifference = 1.0;
    qint32 componentIndex = 0;
    QPointer<CustomWidget> upperZone;
    QPointer<CustomWidget> lowerZone;
    bool bothZonesVisible = false;
    bool keepNoiseWidth = false;
    // Band heights last given by setNoise(), in yLeft units.
    unsigned int upperReference = 0;
    unsigned int lowerReference = 0;
    double rangeLower = 0.0;
    double rangeUpper = 0.0;

    bool ready() const { return plot && upperMark && lowerMark && upperZone && lowerZone; }

    // The value at the pixel row that carries the mark's line.
    double lineEdgeValue(const PlotMarker *mark) const
    {
        const QRect g = mark->geometry();
        const int row = mark->noiseOrientation() == PlotMarker::OrientationBandAbove ? g.top() + g.height() : g.top();
        return plot->invTransform(QwtPlot::yLeft, row);
    }
};

ThresholdWindowWidget::ThresholdWindowWidget(QwtPlot *plot, int componentIndex)
    : QObject(nullptr)
    , d(std::make_unique<Private>())
{
    d->plot = plot;
    d->componentIndex = componentIndex;
    if (!plot)
        return;

    // Zones first, so that the marks lie above them on the canvas.
    d->upperZone = new CustomWidget(plot);
    d->lowerZone = new CustomWidget(plot);
    d->upperMark = new ThresholdWindowMark(plot, this);
    d->lowerMark = new ThresholdWindowMark(plot, this);
    for (PlotMarker *mark : {d->upperMark.data(), d->lowerMark.data()}) {
        mark->setMoveable(true);
        // Stop exactly at the drag limits, so that minDifference holds.
        mark->vSetRestrictionCustom(0);
        mark->attach(this);
        const bool ok = connect(mark, SIGNAL(valueChanged(const double &)), this, SLOT(slotValueChanged(const double &)));
        Q_ASSERT(ok);
        Q_UNUSED(ok)
    }
    setSideFlag(d->lowerMark, true);
    setSideFlag(d->upperMark, false);

    // The navigation signals of Utils::Plot; a plain QwtPlot has none of them.
    const QMetaObject *meta = plot->metaObject();
    if (meta->indexOfSignal("plotPanned(int,int)") >= 0) {
        const bool ok = connect(plot, SIGNAL(plotPanned(int, int)), this, SLOT(plotPanned(int, int)))
            && connect(plot, SIGNAL(plotZoomed(const QRectF &)), this, SLOT(plotZoomed(const QRectF &)))
            && connect(plot, SIGNAL(PlotScrollMagnified(double)), this, SLOT(PlotScrollMagnified(double)))
            && connect(plot, SIGNAL(zommResetForNoiseLine()), this, SLOT(resetNoiseLineWidth()));
        Q_ASSERT(ok);
        Q_UNUSED(ok)
    }

    const QwtScaleDiv &scale = plot->axisScaleDiv(QwtPlot::yLeft);
    d->rangeLower = std::min(scale.lowerBound(), scale.upperBound());
    d->rangeUpper = std::max(scale.lowerBound(), scale.upperBound());
    d->upperMark->setRange(d->rangeLower + d->minDifference, d->rangeUpper);
    d->lowerMark->setRange(d->rangeLower, d->rangeUpper);
}

ThresholdWindowWidget::~ThresholdWindowWidget()
{
    // Marks and zones live on the canvas; they go with the plot if it goes first.
    delete d->upperMark.data();
    delete d->lowerMark.data();
    delete d->upperZone.data();
    delete d->lowerZone.data();
}

void ThresholdWindowWidget::setUpperMark(const double &value)
{
    // A switching point that is not a number would be written into a manager
    // and sent to the sensor: keep the mark where it is.
    if (!d->ready() || !std::isfinite(value))
        return;
    const bool changed = !sameValue(d->upperMark->value(), value);
    d->upperMark->setValue(value);
    keepMarksApart();
    updateZoneGeometry();
    if (changed)
        update(subjectOf(d->upperMark));
}

void ThresholdWindowWidget::setLowerMark(const double &value)
{
    // A switching point that is not a number would be written into a manager
    // and sent to the sensor: keep the mark where it is.
    if (!d->ready() || !std::isfinite(value))
        return;
    const bool changed = !sameValue(d->lowerMark->value(), value);
    d->lowerMark->setValue(value);
    keepMarksApart();
    updateZoneGeometry();
    if (changed)
        update(subjectOf(d->lowerMark));
}

void ThresholdWindowWidget::setNoise(const int &lowerNoise, const int &upperNoise)
{
    if (!d->ready())
        return;
    const int upper = upperNoise < 0 ? lowerNoise : upperNoise;
    // A band cannot be thinner than nothing.
    d->upperReference = unsigned(std::max(upper, 0));
    d->lowerReference = unsigned(std::max(lowerNoise, 0));
    d->upperMark->setThickness(d->upperReference);
    d->lowerMark->setThickness(d->lowerReference);
    d->upperMark->vSetTicknessHeight();
    d->lowerMark->vSetTicknessHeight();
}

void ThresholdWindowWidget::setNoiseOrientation(bool inverted, bool upperOnly, bool keepUpper)
{
    if (!d->ready())
        return;
    if (upperOnly) {
        setSideFlag(d->upperMark, false);
        return;
    }
    if (keepUpper) {
        setSideFlag(d->upperMark, true);
        return;
    }
    const bool above = d->upperMark->value() > d->lowerMark->value();
    const bool upperFlag = (!inverted && above) || (inverted && !above);
    setSideFlag(d->upperMark, upperFlag);
    setSideFlag(d->lowerMark, !upperFlag);
    updateZoneGeometry();
}

void ThresholdWindowWidget::setOfflineThresholds(int a, int b, int c, int dValue)
{
    if (!d->ready() || !(d->upperMark->value() > d->lowerMark->value()))
        return;
    d->upperZone->setRange(a, c);
    d->lowerZone->setRange(dValue, b);
}

void ThresholdWindowWidget::updateZoneGeometry()
{
    if (!d->ready())
        return;
    logDebug("bothZonesVisible %g", d->bothZonesVisible ? 1.0 : 0.0);
    if (!d->bothZonesVisible) {
        d->upperZone->hide();
        d->lowerZone->hide();
    } else if (!(d->upperMark->value() > d->lowerMark->value())) {
        // Crossed marks: the output switches outside the band between them.
        d->upperZone->setRange(d->lineEdgeValue(d->upperMark), d->lineEdgeValue(d->lowerMark));
        d->upperZone->show();
        d->lowerZone->hide();
    } else {
        const QwtScaleDiv &scale = d->plot->axisScaleDiv(QwtPlot::yLeft);
        const double axisLower = std::min(scale.lowerBound(), scale.upperBound());
        const double axisUpper = std::max(scale.lowerBound(), scale.upperBound());
        d->upperZone->setRange(axisUpper, d->lineEdgeValue(d->upperMark));
        d->lowerZone->setRange(d->lineEdgeValue(d->lowerMark), axisLower);
        d->upperZone->show();
        d->lowerZone->show();
    }
    zonesUpdated();
}

void ThresholdWindowWidget::allowOverlapping(bool allow)
{
    d->overlapping = allow;
    slotValueChanged(0.0);
}

void ThresholdWindowWidget::setMinDifference(const double &difference)
{
    d->minDifference = difference;
}

double ThresholdWindowWidget::minDifference() const
{
    return d->minDifference;
}

void ThresholdWindowWidget::enableLowerMark(bool enable)
{
    if (d->lowerMark)
        d->lowerMark->setMoveable(enable);
}

void ThresholdWindowWidget::enableUpperMark(bool enable)
{
    if (d->upperMark)
        d->upperMark->setMoveable(enable);
}

void ThresholdWindowWidget::setBothWindowZoneVisible(bool visible)
{
    d->bothZonesVisible = visible;
    if (visible) {
        updateZoneGeometry();
    } else if (d->lowerZone) {
        // Parked far outside any sensor scale rather than hidden.
        d->lowerZone->setRange(50000.0, 50001.0);
    }
}

bool ThresholdWindowWidget::bothWindowZoneVisible() const
{
    return d->bothZonesVisible;
}

int ThresholdWindowWidget::getComponentIndex() const
{
    return d->componentIndex;
}

void ThresholdWindowWidget::setKeepNoiseWidth(bool keep)
{
    d->keepNoiseWidth = keep;
}

bool ThresholdWindowWidget::keepNoiseWidth() const
{
    return d->keepNoiseWidth;
}

PlotMarker *ThresholdWindowWidget::poUpperMark() const
{
    return d->upperMark;
}

PlotMarker *ThresholdWindowWidget::poLowerMark() const
{
    return d->lowerMark;
}

CustomWidget *ThresholdWindowWidget::poUpperZone() const
{
    return d->upperZone;
}

CustomWidget *ThresholdWindowWidget::poLowerZone() const
{
    return d->lowerZone;
}

QwtPlot *ThresholdWindowWidget::poPlot() const
{
    return d->plot;
}

void ThresholdWindowWidget::update(void *source)
{
    if (!source || !d->ready())
        return;
    logDebug("upper mark %g", d->upperMark->value());
    if (source == subjectOf(d->lowerMark))
        Q_EMIT emitValueChanged(0, d->lowerMark->value());
    else if (source == subjectOf(d->upperMark))
        Q_EMIT emitValueChanged(1, d->upperMark->value());
}

void ThresholdWindowWidget::plotPanned(int dx, int dy)
{
    Q_UNUSED(dx)
    Q_UNUSED(dy)
    if (!d->ready())
        return;
    d->upperMark->vItemChanged();
    d->lowerMark->vItemChanged();
    updateZoneGeometry();
}

void ThresholdWindowWidget::plotZoomed(const QRectF &rect)
{
    Q_UNUSED(rect)
    if (!d->ready())
        return;
    d->upperMark->vItemChanged();
    d->lowerMark->vItemChanged();
    updateZoneGeometry();
}

void ThresholdWindowWidget::PlotScrollMagnified(double factor)
{
    if (!d->ready())
        return;
    d->upperMark->vItemChanged();
    d->lowerMark->vItemChanged();
    // Factor 0 is the reset step of a zoom reset.
    if (factor == 0.0 && d->keepNoiseWidth) {
        d->upperMark->setThickness(d->upperReference);
        d->lowerMark->setThickness(d->lowerReference);
    }
    updateZoneGeometry();
}

void ThresholdWindowWidget::resetNoiseLineWidth()
{
    if (!d->ready())
        return;
    d->upperMark->resize(d->plot->canvas()->size());
    d->lowerMark->resize(d->plot->canvas()->size());
    updateZoneGeometry();
}

void ThresholdWindowWidget::slotValueChanged(const double &value)
{
    Q_UNUSED(value)
    if (!d->ready())
        return;
    keepMarksApart();
    const bool normal = d->upperMark->value() > d->lowerMark->value();
    setSideFlag(d->upperMark, !normal);
    setSideFlag(d->lowerMark, normal);
    updateZoneGeometry();
}

void ThresholdWindowWidget::keepMarksApart()
{
    if (!d->ready())
        return;
    if (d->overlapping) {
        // Crossing allowed: each mark may use the whole drag range.
        d->upperMark->setLowerBound(d->rangeLower);
        d->lowerMark->setUpperBound(d->rangeUpper);
        return;
    }
    d->upperMark->setLowerBound(d->lowerMark->value() + d->minDifference / 2.0);
    d->lowerMark->setUpperBound(d->upperMark->value() - d->minDifference / 2.0);
}

void ThresholdWindowWidget::setDragRange(double lower, double upper)
{
    d->rangeLower = std::min(lower, upper);
    d->rangeUpper = std::max(lower, upper);
    if (!d->ready())
        return;
    d->upperMark->setUpperBound(d->rangeUpper);
    d->lowerMark->setLowerBound(d->rangeLower);
    keepMarksApart();
}

double ThresholdWindowWidget::dragRangeLower() const
{
    return d->rangeLower;
}

double ThresholdWindowWidget::dragRangeUpper() const
{
    return d->rangeUpper;
}

bool ThresholdWindowWidget::isOverlappingAllowed() const
{
    return d->overlapping;
}

void ThresholdWindowWidget::markDragged()
{
    updateZoneGeometry();
}

void ThresholdWindowWidget::zonesUpdated()
{
}

} // namespace Utils
