// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/plot.h"

#include "plot/axisscaleengine.h"
#include "plot/plotcommon_p.h"
#include "plot/plotgrid_p.h"
#include "plot/timepicker.h"
#include "plot/timescaledraw.h"
#include "plot/wplotmagnifier.h"
#include "plot/wplotpanner.h"
#include "plot/wselectionzoomer.h"

#include <qwt_picker_machine.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_picker.h>
#include <qwt_scale_widget.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QIcon>
#include <QLinearGradient>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace Utils {

struct Plot::Private
{
    WSelectionZoomer *zoomer = nullptr;
    TimeScaleDraw *timeScaleDraw = nullptr;
    AxisScaleEngine *scaleEngine = nullptr;
    WPlotMagnifier *valueMagnifier = nullptr;
    WPlotMagnifierXAxis *timeMagnifier = nullptr;
    WPlotPanner *panner = nullptr;
    int panMinOffset = 0;
    int panMaxOffset = 0;
    bool enabled = true;
    bool inLayout = false;
    QPushButton *zoomOutButton = nullptr;
    QPushButton *zoomInButton = nullptr;
    QPushButton *resetZoomButton = nullptr;
    QHBoxLayout *plotContainer = nullptr;
};

Plot::Plot(QWidget *parent, bool bNoTools)
    : QwtPlot(parent)
    , d(new Private)
{
    vInitMembers(bNoTools);

    // The gradient is kept for hosts that style the canvas themselves; the
    // plot's own canvas is plain white on purpose.
    QLinearGradient gradient(0.0, 0.0, 0.0, 1.0);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, QColor(240, 240, 240));
    gradient.setColorAt(1.0, Qt::white);
    QPalette canvasPalette = canvas()->palette();
    canvasPalette.setBrush(QPalette::Window, QBrush(Qt::white));
    canvas()->setPalette(canvasPalette);
    plotLayout()->setAlignCanvasToScales(true);

    auto *grid = new PlotGrid;
    const QPen gridPen(QBrush(Qt::gray), 0, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin);
    grid->setMajorPen(gridPen);
    grid->setMinorPen(gridPen);
    grid->enableX(true);
    grid->enableY(true);
    grid->enableXMin(true);
    grid->enableYMin(false);
    grid->attach(this);
    replot();
}

Plot::~Plot() = default;

void Plot::updateLayout()
{
    QwtPlot::updateLayout();
    // A round that moved the end labels has asked for another one; it runs
    // here, before anything is drawn, rather than after the next paint. The
    // guard keeps a layout that does not settle from recursing.
    if (d->inLayout)
        return;
    d->inLayout = true;
    QCoreApplication::sendPostedEvents(this, QEvent::LayoutRequest);
    d->inLayout = false;
}

void Plot::vInitMembers(bool bNoTools)
{
    if (!bNoTools) {
        d->panner = new WPlotPanner(canvas());
        d->panner->setAxisEnabled(QwtPlot::yLeft, true);
        d->panner->setAxisEnabled(QwtPlot::xBottom, false);
        d->panner->setOrientations(Qt::Vertical);
        d->panner->setMouseButton(Qt::RightButton, Qt::NoModifier);
        connect(d->panner, &QwtPanner::panned, this, &Plot::plotPanned);

        // The time magnifier leaves every value axis to the value magnifier.
        d->timeMagnifier = new WPlotMagnifierXAxis(canvas());
        d->timeMagnifier->setAxisEnabled(QwtPlot::xBottom, true);
        d->timeMagnifier->setAxisEnabled(QwtPlot::yLeft, false);
        d->timeMagnifier->setAxisEnabled(QwtPlot::yRight, false);
        d->timeMagnifier->setAxisEnabled(QwtPlot::xTop, false);
        d->timeMagnifier->setMouseButton(Qt::NoButton);
        d->timeMagnifier->SetMinimumZoomLevel(2.0);

        d->valueMagnifier = new WPlotMagnifier(canvas());
        d->valueMagnifier->setAxisEnabled(QwtPlot::yLeft, true);
        d->valueMagnifier->setAxisEnabled(QwtPlot::xBottom, false);
        d->valueMagnifier->setMouseButton(Qt::NoButton);
        d->valueMagnifier->SetMinimumZoomLevel(2.0);
        connect(d->valueMagnifier, &WPlotMagnifier::PlotScrollMagnified, this, &Plot::PlotScrollMagnified);
        connect(d->valueMagnifier, &WPlotMagnifier::PlotZoomed, this, &Plot::zoomCenter);
        connect(d->valueMagnifier, &WPlotMagnifier::plotZoomedReset, this, &Plot::zommResetForNoiseLine);

        auto *picker = new TimePicker(canvas());
        picker->setEnabled(true);

        setAutoReplot(false);
        setAxisAutoScale(QwtPlot::xBottom, false);
        setAxisAutoScale(QwtPlot::yLeft, false);
        setAxisAutoScale(QwtPlot::yRight, false);

        QwtPlot::setAxisScale(QwtPlot::yLeft, 0.0, 300.0);
        d->valueMagnifier->setMinYRange(0.0);
        d->valueMagnifier->setMaxYRange(300.0);
        d->panner->setLowerPanLimit(0.0 - d->panMinOffset);
        d->panner->setUpperPanLimit(300.0 + d->panMaxOffset);

        d->zoomer = new WSelectionZoomer(canvas());
        d->zoomer->setUpperValueBound(300.0);
        d->zoomer->setRubberBand(QwtPicker::RectRubberBand);
        d->zoomer->setRubberBandPen(QPen(Qt::blue));
        d->zoomer->setTrackerMode(QwtPicker::AlwaysOff);
        d->zoomer->setKeyPattern(QwtEventPattern::KeyRedo, Qt::Key_I, Qt::ShiftModifier);
        d->zoomer->setKeyPattern(QwtEventPattern::KeyUndo, Qt::Key_O, Qt::ShiftModifier);
        d->zoomer->setKeyPattern(QwtEventPattern::KeyHome, Qt::Key_Home);
        connect(d->zoomer, &QwtPlotZoomer::zoomed, this, &Plot::plotZoomed);
        connect(d->zoomer, &QwtPlotZoomer::zoomed, this, &Plot::changeXSignal);
        connect(d->zoomer, &QwtPlotZoomer::zoomed, this, &Plot::slotCenterZoom);

        m_bZoomResetClick = false;
        m_bIndependentPlot = false;
        m_bZoomUnderMouse = false;
        m_bZoomWithIntVal = false;
    }

    d->timeScaleDraw = new TimeScaleDraw;
    setAxisScaleDraw(QwtPlot::xBottom, d->timeScaleDraw);
    d->scaleEngine = new AxisScaleEngine(10);
    setAxisScaleEngine(QwtPlot::yLeft, d->scaleEngine);
    setAxisLabelAlignment(QwtPlot::xBottom, Qt::AlignLeft | Qt::AlignBottom);
    const QFontMetrics metrics(axisWidget(QwtPlot::yLeft)->font());
    axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(metrics.horizontalAdvance(QStringLiteral("-1.000")));
}

void Plot::shareValueLimits(double min, double max)
{
    if (d->valueMagnifier) {
        d->valueMagnifier->setMinYRange(min);
        d->valueMagnifier->setMaxYRange(max);
    }
    if (d->zoomer)
        d->zoomer->setUpperValueBound(max);
    if (d->panner) {
        d->panner->setLowerPanLimit(min - d->panMinOffset);
        d->panner->setUpperPanLimit(max + d->panMaxOffset);
    }
}

void Plot::setAxisScale(int axisId, double min, double max, double step)
{
    // A scale that is not a number cannot be drawn, and the tools would share
    // its limits: keep the present one.
    if (!std::isfinite(min) || !std::isfinite(max) || !std::isfinite(step))
        return;
    QwtPlot::setAxisScale(axisId, min, max, step);
    if (axisId == QwtPlot::yLeft) {
        shareValueLimits(min, max);
    } else if (axisId == QwtPlot::yRight && d->valueMagnifier) {
        d->valueMagnifier->setMinYRightRange(min);
        d->valueMagnifier->setMaxYRightRange(max);
    }
    if (d->zoomer)
        d->zoomer->setZoomBase(true);
}

void Plot::vSetXAxis(const double &min, const double &max)
{
    // The zoom reset shows these limits.
    if (!d->timeMagnifier || !std::isfinite(min) || !std::isfinite(max))
        return;
    d->timeMagnifier->setMinXRange(min);
    d->timeMagnifier->setMaxXRange(max);
}

void Plot::enableRightAxis(bool enable)
{
    enableAxis(QwtPlot::yRight, enable);
}

void Plot::setYRightRange(double min, double max)
{
    setAxisScale(QwtPlot::yRight, min, max, 2.0);
}

void Plot::setPanMinOffset(int offset)
{
    d->panMinOffset = offset;
}

void Plot::setPanMaxOffset(int offset)
{
    d->panMaxOffset = offset;
}

int Plot::panMinOffset() const
{
    return d->panMinOffset;
}

int Plot::panMaxOffset() const
{
    return d->panMaxOffset;
}

void Plot::setZoomBase()
{
    if (d->zoomer)
        d->zoomer->setZoomBase(true);
}

static QRectF currentRect(const QwtPlot *plot)
{
    const QwtScaleDiv &x = plot->axisScaleDiv(QwtPlot::xBottom);
    const QwtScaleDiv &y = plot->axisScaleDiv(QwtPlot::yLeft);
    return QRectF(x.lowerBound(), y.lowerBound(), x.range(), y.range());
}

QRectF Plot::zoomReset(const double &start)
{
    if (!d->zoomer)
        return QRectF();
    const QRectF before = currentRect(this);
    d->zoomer->zoom(0);
    const QRectF after = currentRect(this);
    if (after.width() > before.width())
        return before;
    if (start != 0.0)
        return QRectF(start, before.y(), before.width(), before.height());
    return QRectF();
}

void Plot::zoomToRect(QRectF rect)
{
    if (d->zoomer)
        d->zoomer->zoom(rect);
}

double Plot::getStep(double span)
{
    bool ultraZoomed = false;
    const double step = PlotCommon::centreZoomStep(span, &ultraZoomed);
    if (ultraZoomed)
        Q_EMIT plotUltraZoomed();
    return step;
}

void Plot::zoomCenter()
{
    const QwtScaleDiv &left = axisScaleDiv(QwtPlot::yLeft);
    const bool inverted = left.lowerBound() > left.upperBound();
    const double span = std::fabs(left.upperBound() - left.lowerBound());
    double rightStep = 1.0;
    double rightSpan = 0.0;
    double rightLow = 0.0;
    double rightHigh = 0.0;
    const bool rightShown = axisEnabled(QwtPlot::yRight);
    if (rightShown) {
        rightSpan = axisScaleDiv(QwtPlot::yRight).range();
        if (rightSpan == 0.0)
            rightSpan = 0.15;
        Q_EMIT zoomCenterRightSignalEvent(0.0, 0);
        rightLow = m_dSecondValue - rightSpan / 2.0;
        rightHigh = m_dSecondValue + rightSpan / 2.0;
    }

    double centre = 0.0;
    Q_EMIT zoomCenterSignalEvent(centre);
    double low = centre - span / 2.0;
    double high = centre + span / 2.0;
    if (!m_bNegativeValuesEnabled && low < 0.0) {
        low = 0.0;
        high = span;
        rightLow = 0.0;
        rightHigh = rightSpan;
    }
    if (rightSpan < 1.0)
        rightStep = 0.1;
    else if (rightSpan > 20.0)
        rightStep = 2.0;

    const auto setLeft = [&](double step) {
        if (inverted)
            QwtPlot::setAxisScale(QwtPlot::yLeft, high, low, step);
        else
            QwtPlot::setAxisScale(QwtPlot::yLeft, low, high, step);
    };
    if (span >= 4.0) {
        setLeft(0.0);
    } else {
        const double step = getStep(span);
        setLeft(step);
        if (step <= 0.0005) {
            auto *draw = new ExtScaleDraw;
            draw->setMinimumExtent(axisScaleDraw(QwtPlot::yLeft)->minimumExtent());
            setAxisScaleDraw(QwtPlot::yLeft, draw);
        }
    }
    if (rightShown && rightSpan > 0.15) {
        QwtPlot::setAxisScale(QwtPlot::yRight, rightLow, rightHigh, rightStep);
        Q_EMIT SignalsetBaselineTo(0);
    }
    replot();
}

void Plot::slotCenterZoom(const QRectF &rect)
{
    // The zoomer has already applied the rectangle and its step rules; only the
    // canvas needs the new scales, which the zoomer's replot gave it.
    Q_UNUSED(rect)
}

void Plot::setEnabled(bool enabled)
{
    d->enabled = enabled;
    if (d->panner)
        d->panner->setEnabled(enabled);
    if (d->valueMagnifier)
        d->valueMagnifier->setEnabled(enabled);
    if (d->zoomer)
        d->zoomer->setEnabled(enabled);
    if (d->timeMagnifier)
        d->timeMagnifier->setEnabled(enabled);
}

bool Plot::isPlotEnabled() const
{
    return d->enabled;
}

void Plot::setMinimumZoomLevel(double level)
{
    if (d->valueMagnifier && !std::isnan(level))
        d->valueMagnifier->SetMinimumZoomLevel(level + 1.0);
}

void Plot::vSetZoomUnderMouse(bool zoomUnderMouse)
{
    m_bZoomUnderMouse = zoomUnderMouse;
    // Each call adds a picker; the flag is only recorded.
    auto *picker = new QwtPlotPicker(QwtPlot::xBottom, QwtPlot::yLeft, QwtPicker::CrossRubberBand,
                                     QwtPicker::ActiveOnly, canvas());
    picker->setStateMachine(new QwtPickerClickPointMachine);
    connect(picker, qOverload<const QPointF &>(&QwtPlotPicker::selected), this, &Plot::onSelected);
}

void Plot::onSelected(const QPointF &pos)
{
    // Times on the bottom axis (ms since the epoch) do not fit an int: such
    // coordinates are held at the int range rather than overflowing.
    Q_EMIT getMouseCoordinate(QPoint(PlotCommon::toInt(pos.x()), PlotCommon::toInt(pos.y())));
}

void Plot::enableXAxisDisplayValue(bool displayValue)
{
    if (!d->timeScaleDraw)
        return;
    d->timeScaleDraw->setDisplayValue(displayValue);
    updateLayout();
    axisWidget(QwtPlot::xBottom)->update();
}

void Plot::vZoomWithIntVal(bool integerValues)
{
    m_bZoomWithIntVal = integerValues;
    if (d->zoomer)
        d->zoomer->vZoomWithIntVal(integerValues);
}

void Plot::setSecondValue(double value)
{
    // The centre of the right axis in a centre zoom.
    if (!std::isfinite(value))
        return;
    m_dSecondValue = value;
}

double Plot::secondValue() const
{
    return m_dSecondValue;
}

void Plot::setEnableNegativeValues(bool enable)
{
    m_bNegativeValuesEnabled = enable;
}

bool Plot::negativeValuesEnabled() const
{
    return m_bNegativeValuesEnabled;
}

void Plot::setIndependentPlot(bool independent)
{
    m_bIndependentPlot = independent;
}

bool Plot::checkIndependentPlot() const
{
    return m_bIndependentPlot;
}

bool Plot::getZoomResetClick() const
{
    return m_bZoomResetClick;
}

void Plot::setZoomResetClick(bool click)
{
    m_bZoomResetClick = click;
}

QWidget *Plot::embedZoomToolBar()
{
    if (d->plotContainer)
        return d->plotContainer->parentWidget();

    auto *outer = new QWidget(parentWidget());
    outer->setStyleSheet(QStringLiteral("QWidget {border: 0px; margin: 0px; padding:0px;}"));
    auto *column = new QWidget(outer);
    // The missing semicolon after "0px" is what hosts have always shipped.
    column->setStyleSheet(QStringLiteral("QWidget {border: 0px margin: 0px; padding:0px;}"));
    auto *columnLayout = new QVBoxLayout(column);
    columnLayout->setSpacing(0);
    columnLayout->setContentsMargins(0, 0, 0, 0);
    column->setFixedHeight(70);

    const QString buttonStyle = QStringLiteral(
        "QPushButton { margin: 0px; padding: 0px; border: 1px solid #8f8f91; border-radius: 6px;"
        " background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #f6f7fa, stop: 1 #dadbde); }"
        "QPushButton:pressed { background-color: qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1,"
        " stop: 0 #dadbde, stop: 1 #f6f7fa); }"
        "QPushButton:hover { border-color: navy; }");
    const auto makeButton = [&](const QString &icon, const QSize &size, const QString &name) {
        auto *button = new QPushButton(column);
        button->setObjectName(name);
        button->setText(QString());
        button->setContentsMargins(0, 0, 0, 0);
        button->setCursor(Qt::PointingHandCursor);
        button->setFlat(true);
        button->setStyleSheet(buttonStyle);
        button->setIcon(QIcon(icon));
        button->setIconSize(size);
        button->setFixedSize(size);
        columnLayout->addWidget(button);
        return button;
    };
    d->zoomInButton = makeButton(QStringLiteral(":/newPrefix/icons/Zoom_in_new-01.svg"), QSize(20, 20),
                                 QStringLiteral("zoomInButton"));
    d->resetZoomButton = makeButton(QStringLiteral(":/newPrefix/icons/Zoom_reset_Hor.svg"), QSize(20, 10),
                                    QStringLiteral("resetZoomButton"));
    d->zoomOutButton = makeButton(QStringLiteral(":/newPrefix/icons/Zoom_out_new-01.svg"), QSize(20, 20),
                                  QStringLiteral("zoomOutButton"));
    d->resetZoomButton->setToolTip(tr("Reset Zoom"));
    translateElements();

    connect(d->zoomInButton, &QPushButton::clicked, this, &Plot::zoomPlusButtonClicked);
    connect(d->resetZoomButton, &QPushButton::clicked, this, &Plot::zoomResetButtonClicked);
    connect(d->resetZoomButton, &QPushButton::clicked, this, &Plot::vZoomResetButtonClicked);
    connect(d->zoomOutButton, &QPushButton::clicked, this, &Plot::zoomMinusButtonClicked);

    // The outer style sheet cascades to the canvas and would replace its white
    // palette with the window colour; a canvas rule of its own keeps it white.
    canvas()->setStyleSheet(QStringLiteral("QwtPlotCanvas {background-color: white;}"));

    d->plotContainer = new QHBoxLayout(outer);
    d->plotContainer->setContentsMargins(0, 0, 0, 0);
    d->plotContainer->addWidget(column, 0, Qt::AlignTop);
    d->plotContainer->addWidget(this, 1);
    return outer;
}

QHBoxLayout *Plot::getPlotContainer() const
{
    return d->plotContainer;
}

void Plot::translateElements()
{
    if (d->zoomOutButton)
        d->zoomOutButton->setToolTip(tr("Zoom Out"));
    if (d->zoomInButton)
        d->zoomInButton->setToolTip(tr("Zoom In"));
    // The reset button keeps the tooltip it was built with.
}

void Plot::zoomPlusButtonClicked()
{
    setZoomResetClick(false);
    if (d->valueMagnifier)
        d->valueMagnifier->rescale(0.8);
}

void Plot::zoomMinusButtonClicked()
{
    setZoomResetClick(false);
    if (d->valueMagnifier)
        d->valueMagnifier->rescale(1.2);
}

void Plot::zoomPlusXButtonClicked()
{
    setZoomResetClick(false);
    if (d->timeMagnifier)
        d->timeMagnifier->rescale(0.8);
}

void Plot::zoomMinusXButtonClicked()
{
    setZoomResetClick(false);
    if (d->timeMagnifier)
        d->timeMagnifier->rescale(1.2);
}

void Plot::zoomResetButtonClicked()
{
    WPlotMagnifier *magnifier = d->valueMagnifier;
    if (!magnifier)
        return;
    const auto applyLimits = [this, magnifier]() {
        setZoomResetClick(true);
        const double min = magnifier->getMinYRange();
        const double max = magnifier->getMaxYRange();
        QwtPlot::setAxisScale(QwtPlot::yLeft, min, max);
        shareValueLimits(min, max);
        if (d->zoomer)
            d->zoomer->setZoomBase(true);
    };
    applyLimits();
    // A zoom-in and zoom-out pair on purpose: every listener redraws once.
    magnifier->rescale(0.0);
    setZoomResetClick(false);
    magnifier->rescale(0.8);
    setZoomResetClick(false);
    magnifier->rescale(1.2);
    applyLimits();
    magnifier->rescale(0.0);
    if (axisEnabled(QwtPlot::yRight))
        QwtPlot::setAxisScale(QwtPlot::yRight, magnifier->getMinYRightRange(), magnifier->getMaxYRightRange(), 2.0);
    replot();
}

void Plot::zoomResetXButtonClicked()
{
    WPlotMagnifierXAxis *magnifier = d->timeMagnifier;
    if (!magnifier)
        return;
    const auto applyLimits = [this, magnifier]() {
        setZoomResetClick(true);
        QwtPlot::setAxisScale(QwtPlot::xBottom, magnifier->getMinXRange(), magnifier->getMaxXRange());
        if (d->zoomer)
            d->zoomer->setZoomBase(true);
    };
    applyLimits();
    magnifier->rescale(0.0);
    setZoomResetClick(false);
    magnifier->rescale(0.8);
    setZoomResetClick(false);
    magnifier->rescale(1.2);
    applyLimits();
    magnifier->rescale(0.0);
    replot();
}

void Plot::vZoomResetButtonClicked()
{
    Q_EMIT zommResetForNoiseLine();
}

void Plot::showAxisMenu(const QPoint &globalPos)
{
    const int type = PlotCommon::xPlotAxisType();
    QMenu menu(this);
    QAction *timeAction = menu.addAction(tr("Time"));
    timeAction->setCheckable(true);
    timeAction->setChecked(type == 0);
    QAction *dateAction = menu.addAction(tr("Date + Time"));
    dateAction->setCheckable(true);
    dateAction->setChecked(type == 1);
    QAction *chosen = menu.exec(globalPos);
    if (chosen == timeAction)
        PlotCommon::setXPlotAxisType(0);
    else if (chosen == dateAction)
        PlotCommon::setXPlotAxisType(1);
    else
        return;
    // Every plot of the process shares the setting: drop their cached labels.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *plot = qobject_cast<Plot *>(widget)) {
            if (plot->d->timeScaleDraw)
                plot->d->timeScaleDraw->vRefresh();
            plot->updateLayout();
            plot->axisWidget(QwtPlot::xBottom)->update();
        }
    }
    Q_EMIT axisChanged();
}

void Plot::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_bIndependentPlot)
        Q_EMIT getMouseCoordinate(event->globalPos());
    if (event->button() == Qt::RightButton && !m_bIndependentPlot) {
        const QwtScaleWidget *axis = axisWidget(QwtPlot::xBottom);
        if (axis && axis->isVisible() && axis->geometry().contains(event->pos())) {
            event->accept();
            showAxisMenu(event->globalPos());
            return;
        }
    }
    QwtPlot::mousePressEvent(event);
}

void Plot::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT zoomRectangle();
    QwtPlot::mouseReleaseEvent(event);
}

void Plot::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QwtPlot::mouseDoubleClickEvent(event);
        return;
    }
    zoomResetButtonClicked();
    zoomReset(0.0);
    Q_EMIT zommResetForNoiseLine();
    if (m_bIndependentPlot)
        Q_EMIT IndependentPlotDoubleClick();
}

void Plot::resizeEvent(QResizeEvent *event)
{
    QwtPlot::resizeEvent(event);
    Q_EMIT axisChanged();
}

void Plot::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        translateElements();
        return;
    }
    QwtPlot::changeEvent(event);
}

WSelectionZoomer *Plot::poZoomer() const
{
    return d->zoomer;
}

TimeScaleDraw *Plot::poTimeScaleDraw() const
{
    return d->timeScaleDraw;
}

AxisScaleEngine *Plot::poScaleEngine() const
{
    return d->scaleEngine;
}

WPlotMagnifier *Plot::poValueMagnifier() const
{
    return d->valueMagnifier;
}

WPlotMagnifierXAxis *Plot::poTimeMagnifier() const
{
    return d->timeMagnifier;
}

WPlotPanner *Plot::poPanner() const
{
    return d->panner;
}

QPushButton *Plot::poZoomInButton() const
{
    return d->zoomInButton;
}

QPushButton *Plot::poZoomOutButton() const
{
    return d->zoomOutButton;
}

QPushButton *Plot::poResetZoomButton() const
{
    return d->resetZoomButton;
}

} // namespace Utils
