// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/colorchart.h"

#include "charts/panelchart_p.h"
#include "charts/rgbrenderer.h"
#include "charts/valueovertime.h"
#include "plot/plot.h"

#include <qwt_text.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace Utils {

struct ColorChart::Private
{
    explicit Private(ColorChart *q)
        : engine(q, 3, Charts::Rules::kMultiCurve)
    {
    }

    Charts::PanelChart engine;
    RgbRenderer *renderer = nullptr;
    QWidget *buttons = nullptr;
    QPushButton *black = nullptr;
    QPushButton *white = nullptr;
    double blackLevel[3] = {0.0, 0.0, 0.0};
    double whiteLevel[3] = {255.0, 255.0, 255.0};
    // The newest reading; shown at the next redraw.
    double reading[3] = {0.0, 0.0, 0.0};
    bool hasReading = false;
    QPointer<LevelCalibrationPrompt> prompt;
};

ColorChart::ColorChart(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    // For spies and queued connections of levelCalibrated().
    static const int levelType = qRegisterMetaType<Utils::LevelCalibrationPrompt::Level>();
    Q_UNUSED(levelType)
    Charts::PanelChart &engine = d->engine;
    engine.plot->setAxisScale(QwtPlot::yLeft, 0.0, 255.0);
    engine.plot->setMinimumSize(160, 100);
    engine.setCurveStyle(Red, QColor(220, 30, 30), 2, false);
    engine.setCurveStyle(Green, QColor(30, 160, 60), 2, false);
    engine.setCurveStyle(Blue, QColor(30, 80, 220), 2, false);
    engine.onFrame = [this]() { showReading(); };

    d->renderer = new RgbRenderer(this);
    d->buttons = new QWidget(this);
    d->black = new QPushButton(d->buttons);
    d->black->setObjectName(QStringLiteral("blackLevelButton"));
    d->white = new QPushButton(d->buttons);
    d->white->setObjectName(QStringLiteral("whiteLevelButton"));
    auto *buttonLayout = new QVBoxLayout(d->buttons);
    buttonLayout->setContentsMargins(0, 0, 0, 0);
    buttonLayout->addWidget(d->black);
    buttonLayout->addWidget(d->white);
    bool ok = true;
    ok &= bool(connect(d->black, &QPushButton::clicked, this, &ColorChart::bCalibrateBlackLevel));
    ok &= bool(connect(d->white, &QPushButton::clicked, this, &ColorChart::bCalibrateWhiteLevel));
    Q_ASSERT(ok);
    Q_UNUSED(ok)

    // The swatch keeps its own size; the plot takes what is left.
    auto *side = new QVBoxLayout;
    side->addWidget(d->renderer);
    side->addWidget(d->buttons);
    side->addStretch(1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(engine.plot, 1);
    layout->addLayout(side);
    retranslate();
}

ColorChart::~ColorChart() = default;

void ColorChart::vAppendData(const double &red, const double &green, const double &blue, bool update,
                             double timeValue)
{
    // The reading first: the append may redraw, which shows it.
    d->hasReading = update;
    d->reading[Red] = red;
    d->reading[Green] = green;
    d->reading[Blue] = blue;
    d->engine.append(d->reading, update, timeValue);
}

void ColorChart::clear()
{
    d->hasReading = false;
    d->engine.clear();
    showReading();
}

const ValueOverTime *ColorChart::getData(int channel) const
{
    if (channel < Red || channel > Blue)
        return nullptr;
    return d->engine.curves[size_t(channel)].series.get();
}

Plot *ColorChart::poPlot() const
{
    return d->engine.plot;
}

RgbRenderer *ColorChart::poRenderer() const
{
    return d->renderer;
}

void ColorChart::vSetYScale(const double &low, const double &high)
{
    d->engine.plot->setAxisScale(QwtPlot::yLeft, low, high);
    d->engine.replot();
}

void ColorChart::setPlotTitle(const QString &title)
{
    if (title == plotTitle())
        return;
    Charts::PanelChart::setTitle(d->engine.plot, title);
    d->engine.replot();
}

QString ColorChart::plotTitle() const
{
    return d->engine.plot->title().text();
}

void ColorChart::setTimeSpan(double span)
{
    const double current = d->engine.span;
    if (!(span > 0.0) || !std::isfinite(span)
        || std::abs(span - current) <= 1e-12 * std::max(std::abs(span), std::abs(current)))
        return;
    d->engine.setSpan(span);
    Q_EMIT timeSpanChanged(span);
}

double ColorChart::timeSpan() const
{
    return d->engine.span;
}

void ColorChart::setCalibrationButtonsVisible(bool visible)
{
    d->buttons->setVisible(visible);
}

bool ColorChart::calibrationButtonsVisible() const
{
    return !d->buttons->isHidden();
}

bool ColorChart::setLevel(double *level, const double &red, const double &green, const double &blue)
{
    if (level[Red] == red && level[Green] == green && level[Blue] == blue)
        return false;
    level[Red] = red;
    level[Green] = green;
    level[Blue] = blue;
    showReading();
    Q_EMIT levelsChanged();
    return true;
}

void ColorChart::vSetBlackLevel(const double &red, const double &green, const double &blue)
{
    setLevel(d->blackLevel, red, green, blue);
}

void ColorChart::vSetWhiteLevel(const double &red, const double &green, const double &blue)
{
    setLevel(d->whiteLevel, red, green, blue);
}

QList<double> ColorChart::oBlackLevel() const
{
    return {d->blackLevel[Red], d->blackLevel[Green], d->blackLevel[Blue]};
}

QList<double> ColorChart::oWhiteLevel() const
{
    return {d->whiteLevel[Red], d->whiteLevel[Green], d->whiteLevel[Blue]};
}

QList<double> ColorChart::oCurrentReading() const
{
    if (!d->hasReading)
        return {};
    return {d->reading[Red], d->reading[Green], d->reading[Blue]};
}

bool ColorChart::bCalibrateBlackLevel()
{
    return calibrate(LevelCalibrationPrompt::BlackLevel);
}

bool ColorChart::bCalibrateWhiteLevel()
{
    return calibrate(LevelCalibrationPrompt::WhiteLevel);
}

bool ColorChart::calibrate(LevelCalibrationPrompt::Level level)
{
    if (d->prompt)
        return false; // one calibration at a time
    QPointer<ColorChart> self(this);
    QPointer<LevelCalibrationPrompt> prompt = new LevelCalibrationPrompt(level, this);
    d->prompt = prompt;
    showReading();
    const bool accepted = prompt->exec() == QDialog::Accepted;
    // The chart, or the prompt with it, may have gone while the dialog ran.
    if (!self || !prompt)
        return false;
    const QList<double> reading = prompt->oReading();
    delete prompt.data();
    if (!accepted || reading.size() != 3)
        return false;
    setLevel(level == LevelCalibrationPrompt::BlackLevel ? d->blackLevel : d->whiteLevel, reading.at(Red),
             reading.at(Green), reading.at(Blue));
    Q_EMIT levelCalibrated(level, reading.at(Red), reading.at(Green), reading.at(Blue));
    return true;
}

void ColorChart::retranslate()
{
    d->black->setText(tr("Black level..."));
    d->black->setToolTip(tr("Calibrate the black level: the reading with the sensor covered"));
    d->white->setText(tr("White level..."));
    d->white->setToolTip(tr("Calibrate the white level: the reading of a white target"));
}

void ColorChart::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ColorChart::showReading()
{
    if (!d->hasReading) {
        d->renderer->setColor(QColor());
        if (d->prompt)
            d->prompt->vClearReading();
        return;
    }
    const auto channel = [this](int c) {
        return Charts::Rules::channelByte(d->reading[c], d->blackLevel[c], d->whiteLevel[c]);
    };
    d->renderer->setColor(QColor(channel(Red), channel(Green), channel(Blue)));
    if (d->prompt)
        d->prompt->vSetReading(d->reading[Red], d->reading[Green], d->reading[Blue]);
}

} // namespace Utils
