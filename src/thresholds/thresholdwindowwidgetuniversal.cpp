// SPDX-License-Identifier: LGPL-2.1-or-later
#include "thresholdwindowwidgetuniversal.h"

#include "plot/plotcommon_p.h"
#include "plot/plotmarker.h"

#include <qwt_plot.h>
#include <qwt_scale_widget.h>

#include <QEvent>
#include <QLabel>
#include <QPointer>

#include <algorithm>

namespace Utils {

struct ThresholdWindowWidgetUniversal::Private
{
    QPointer<QLabel> sizeLabel;
    // Compared in the event filter without asking the plot, which may be
    // half destroyed while its canvas still sends events.
    QPointer<QWidget> canvas;
    bool sizeVisible = false;
    bool oneDecimal = false;
    bool customThresholds = false;
};

ThresholdWindowWidgetUniversal::ThresholdWindowWidgetUniversal(QwtPlot *plot, int componentIndex)
    : ThresholdWindowWidget(plot, componentIndex)
    , d(std::make_unique<Private>())
{
    if (!plot)
        return;
    d->canvas = plot->canvas();
    d->sizeLabel = new QLabel(plot->canvas());
    d->sizeLabel->setObjectName(QStringLiteral("windowSizeLabel"));
    d->sizeLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    d->sizeLabel->setStyleSheet(QStringLiteral("QLabel { background: rgba(255, 255, 255, 220); border: 1px solid rgba(120, 120, 120, 160); padding: 1px 3px; }"));
    d->sizeLabel->hide();
    // The label sits between the marks: place it again when the canvas or the
    // value scale changes, not only when a mark moves.
    plot->canvas()->installEventFilter(this);
    if (QwtScaleWidget *scale = plot->axisWidget(QwtPlot::yLeft))
        connect(scale, &QwtScaleWidget::scaleDivChanged, this, &ThresholdWindowWidgetUniversal::zonesUpdated);
}

bool ThresholdWindowWidgetUniversal::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == d->canvas)
        zonesUpdated();
    return ThresholdWindowWidget::eventFilter(watched, event);
}

ThresholdWindowWidgetUniversal::~ThresholdWindowWidgetUniversal()
{
    delete d->sizeLabel.data();
}

double ThresholdWindowWidgetUniversal::windowSize() const
{
    if (!poUpperMark() || !poLowerMark())
        return 0.0;
    return poUpperMark()->value() - poLowerMark()->value();
}

void ThresholdWindowWidgetUniversal::setWindowSizeVisible(bool visible)
{
    d->sizeVisible = visible;
    zonesUpdated();
}

bool ThresholdWindowWidgetUniversal::getWindowSizeVisible() const
{
    return d->sizeVisible;
}

PlotMarker *ThresholdWindowWidgetUniversal::getUpperMark() const
{
    return poUpperMark();
}

PlotMarker *ThresholdWindowWidgetUniversal::getLowerMark() const
{
    return poLowerMark();
}

void ThresholdWindowWidgetUniversal::setUpperMarkerValue(double value, QString text)
{
    if (PlotMarker *mark = poUpperMark())
        mark->setUpperValue(value, text);
    setUpperMark(value);
}

void ThresholdWindowWidgetUniversal::setLowerMarkerValue(double value, QString text)
{
    if (PlotMarker *mark = poLowerMark())
        mark->setLowerValue(value, text);
    setLowerMark(value);
}

void ThresholdWindowWidgetUniversal::formatText(bool oneDecimal)
{
    d->oneDecimal = oneDecimal;
    for (PlotMarker *mark : {poUpperMark(), poLowerMark()}) {
        if (mark)
            mark->setText(oneDecimal);
    }
    zonesUpdated();
}

void ThresholdWindowWidgetUniversal::vSetRestrictionFactor(int restriction)
{
    for (PlotMarker *mark : {poUpperMark(), poLowerMark()}) {
        if (mark)
            mark->vSetRestrictionCustom(restriction);
    }
}

bool ThresholdWindowWidgetUniversal::overlapping() const
{
    return isOverlappingAllowed();
}

void ThresholdWindowWidgetUniversal::vSetCustomThreshold(bool custom)
{
    d->customThresholds = custom;
}

bool ThresholdWindowWidgetUniversal::bGtCustomThresholds() const
{
    return d->customThresholds;
}

void ThresholdWindowWidgetUniversal::showLowerMark(bool show)
{
    if (PlotMarker *mark = poLowerMark())
        mark->showPlotMarker(show);
    zonesUpdated();
}

void ThresholdWindowWidgetUniversal::showUpperMark(bool show)
{
    if (PlotMarker *mark = poUpperMark())
        mark->showPlotMarker(show);
    zonesUpdated();
}

void ThresholdWindowWidgetUniversal::vDisabledUpperMark(bool disabled)
{
    if (PlotMarker *mark = poUpperMark())
        mark->vDisablePlotMarker(!disabled);
}

void ThresholdWindowWidgetUniversal::vDisabledLowerMark(bool disabled)
{
    if (PlotMarker *mark = poLowerMark())
        mark->vDisablePlotMarker(!disabled);
}

bool ThresholdWindowWidgetUniversal::isLowerMarkVisible() const
{
    return poLowerMark() && poLowerMark()->isPlotMarkerVisible();
}

bool ThresholdWindowWidgetUniversal::isUpperMarkVisible() const
{
    return poUpperMark() && poUpperMark()->isPlotMarkerVisible();
}

QWidget *ThresholdWindowWidgetUniversal::poWindowSizeLabel() const
{
    return d->sizeLabel;
}

void ThresholdWindowWidgetUniversal::zonesUpdated()
{
    // Called from the base constructor's members before this class's record exists.
    if (!d || !d->sizeLabel || !poPlot())
        return;
    // Hidden marks, not a hidden page: the label must be ready when its page shows.
    if (!d->sizeVisible || poUpperMark()->isHidden() || poLowerMark()->isHidden()) {
        d->sizeLabel->hide();
        return;
    }
    QwtPlot *plot = poPlot();
    // Says what the number is: it sits over the curve between the marks.
    d->sizeLabel->setText(tr("Window %1").arg(windowSize(), 0, 'f', d->oneDecimal ? 1 : 2));
    d->sizeLabel->adjustSize();
    const double middle = (poUpperMark()->value() + poLowerMark()->value()) / 2.0;
    const int y = PlotCommon::toPixel(plot->transform(QwtPlot::yLeft, middle)) - d->sizeLabel->height() / 2;
    const int x = plot->canvas()->width() - d->sizeLabel->width() - 4;
    d->sizeLabel->move(std::max(x, 0), y);
    d->sizeLabel->show();
    d->sizeLabel->raise();
}

} // namespace Utils
