// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/chartplotter.h"

#include "plot/curvefactory.h"
#include "plot/customcurve.h"
#include "plot/plot.h"
#include "plot/plotexport_p.h"

#include <qwt_legend.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_panner.h>
#include <qwt_plot_zoomer.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLinearGradient>

namespace Utils {

struct ChartPlotter::Private
{
    // The form "ChartForm": a grid holding one inner widget.
    QGridLayout *formLayout = nullptr;
    QWidget *inner = nullptr;
    Plot *plot = nullptr;
    QHBoxLayout *plotLayout = nullptr;
    QwtPlotMarker *valueMarker = nullptr;
    QwtPlotMarker *minMarker = nullptr;
    QwtPlotMarker *maxMarker = nullptr;
    QWidget *unused = nullptr;
    bool unusedFlag = false;
    std::unique_ptr<CurveFactory> curveFactory;
    QwtPlotZoomer *zoomer = nullptr;
    QPen gridPen;
    QPen curvePen;
    QLinearGradient curveGradient;
};

ChartPlotter::ChartPlotter(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->valueMarker = new QwtPlotMarker(QString());
    d->minMarker = new QwtPlotMarker(QString());
    d->maxMarker = new QwtPlotMarker(QString());
    vInitMembers();
}

ChartPlotter::~ChartPlotter()
{
    // Markers not (yet) attached have no plot to delete them.
    for (QwtPlotMarker *marker : {d->valueMarker, d->minMarker, d->maxMarker}) {
        if (!marker->plot())
            delete marker;
    }
}

void ChartPlotter::vInitMembers()
{
    setObjectName(QStringLiteral("ChartForm"));
    resize(478, 243);
    d->formLayout = new QGridLayout(this);
    d->inner = new QWidget(this);
    d->formLayout->addWidget(d->inner, 0, 0);
    d->plotLayout = new QHBoxLayout(d->inner);
    d->plot = new Plot(d->inner, false);
    d->curveFactory = std::make_unique<CurveFactory>(d->plot);

    // The pens and gradient of the chart: grey for the grid, blue with a
    // turquoise fill for the curves.
    d->gridPen = QPen(QColor(188, 188, 188), 1);
    d->gridPen.setCosmetic(true);
    d->gridPen.setJoinStyle(Qt::RoundJoin);
    d->curvePen = QPen(QColor(94, 137, 206), 1);
    d->curvePen.setCosmetic(true);
    d->curveGradient = QLinearGradient(0.0, 0.0, 0.0, 1.0);
    d->curveGradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    d->curveGradient.setColorAt(0.0, QColor(0, 255, 213));
    d->curveGradient.setColorAt(1.0, QColor(0, 180, 160));
    connect(d->curveFactory.get(), &CurveFactory::curveCreated, this, [this](CustomCurve *curve) {
        curve->setPen(d->curvePen);
        curve->setBrush(QBrush(d->curveGradient));
    });

    d->plot->insertLegend(new QwtLegend, QwtPlot::TopLegend, -1.0);
    d->plot->setAutoReplot(false);
    const QFontMetrics metrics(d->plot->axisWidget(QwtPlot::yLeft)->font());
    d->plot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(metrics.horizontalAdvance(QStringLiteral("23:59:59")));

    d->zoomer = new QwtPlotZoomer(d->plot->canvas());
    d->zoomer->setMousePattern(QwtEventPattern::MouseSelect2, Qt::RightButton, Qt::ControlModifier);
    d->zoomer->setMousePattern(QwtEventPattern::MouseSelect3, Qt::RightButton);
    setUpYScale(0.0, 255.0, 0.0);

    auto *panner = new QwtPlotPanner(d->plot->canvas());
    panner->setMouseButton(Qt::MiddleButton);
    panner->setAxisEnabled(QwtPlot::yRight, true);

    d->valueMarker->setLabelAlignment(Qt::AlignRight | Qt::AlignBottom);
    d->valueMarker->setLineStyle(QwtPlotMarker::HLine);
    d->valueMarker->attach(d->plot);

    d->plotLayout->addWidget(d->plot);
    d->plot->setMinimumSize(150, 150);
    d->plot->plotLayout()->setAlignCanvasToScales(true);
    d->plot->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(d->plot, &QWidget::customContextMenuRequested, this, &ChartPlotter::vPopUpMenu);
}

CurveFactory *ChartPlotter::poCurveFactory() const
{
    return d->curveFactory.get();
}

Plot *ChartPlotter::poPlot() const
{
    return d->plot;
}

QwtPlotMarker *ChartPlotter::poValueMarker() const
{
    return d->valueMarker;
}

QwtPlotMarker *ChartPlotter::poMinMarker() const
{
    return d->minMarker;
}

QwtPlotMarker *ChartPlotter::poMaxMarker() const
{
    return d->maxMarker;
}

void ChartPlotter::vSetTitle(const QString &title)
{
    d->plot->setTitle(title);
}

void ChartPlotter::setCurrentValue(double value)
{
    QwtText label(QString::asprintf("%.3g", value));
    QFont font(QStringLiteral("Helvetica"), 12, 75);
    label.setFont(font);
    label.setColor(QColor(0, 200, 180));
    d->valueMarker->setLabel(label);
    // The read-out has no visible line of its own.
    d->valueMarker->setLinePen(QPen(QColor(255, 255, 255, 0)));
    d->valueMarker->setValue(250.0, 250.0);
}

void ChartPlotter::vSetMinMarker(double value)
{
    d->minMarker->setLineStyle(QwtPlotMarker::HLine);
    d->minMarker->setLabel(QwtText(tr("Min %1").arg(value)));
    d->minMarker->setLabelAlignment(Qt::AlignRight | Qt::AlignBottom);
    d->minMarker->setLinePen(QPen(QColor(255, 188, 188), 0, Qt::DotLine));
    d->minMarker->setYValue(value);
    d->minMarker->attach(d->plot);
}

void ChartPlotter::vSetMaxMarker(double value)
{
    d->maxMarker->setLineStyle(QwtPlotMarker::HLine);
    d->maxMarker->setLabel(QwtText(tr("Max %1").arg(value)));
    d->maxMarker->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    d->maxMarker->setLinePen(QPen(QColor(188, 188, 255), 0, Qt::DotLine));
    d->maxMarker->setYValue(value);
    d->maxMarker->attach(d->plot);
}

void ChartPlotter::setUpYScale(double min, double max, double step)
{
    d->plot->setAxisScale(QwtPlot::yLeft, min, max, step);
    d->plot->updateAxes();
    if (d->zoomer)
        d->zoomer->setZoomBase(d->plot->canvas()->rect().isValid());
}

void ChartPlotter::vPopUpMenu(const QPoint &pos)
{
    Q_UNUSED(pos)
}

void ChartPlotter::vSetWindowViewRange(const double &from, const double &to)
{
    d->plot->setAxisScale(QwtPlot::xBottom, from, to);
}

void ChartPlotter::vPrintDocument()
{
    PlotExport::printPlot(d->plot, QStringLiteral("Bode example"), this);
}

void ChartPlotter::vExportDocument()
{
    PlotExport::exportPlot(d->plot, this);
}

} // namespace Utils
