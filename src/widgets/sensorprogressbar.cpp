// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/sensorprogressbar.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include <algorithm>

namespace Utils {

namespace {

// One sweep of the indeterminate block from one end to the other.
constexpr qint64 kSweepMs = 1200;
constexpr int kFrameMs = 30;

} // namespace

struct SensorProgressBar::Private
{
    int minimum = 0;
    int maximum = 100;
    int value = 0;
    QString text;
    bool indeterminate = false;
    // Nothing has started yet (or vReset()): the bar is empty and says nothing.
    bool idle = true;
    QColor chunkColor = QColor(0, 97, 158);
    QTimer animation;
    QElapsedTimer clock;
};

SensorProgressBar::SensorProgressBar(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    d->animation.setInterval(kFrameMs);
    const bool ok = connect(&d->animation, &QTimer::timeout, this, qOverload<>(&QWidget::update));
    Q_ASSERT(ok);
    Q_UNUSED(ok)
}

SensorProgressBar::~SensorProgressBar() = default;

void SensorProgressBar::setRange(int minimum, int maximum)
{
    maximum = std::max(maximum, minimum);
    if (minimum == d->minimum && maximum == d->maximum)
        return;
    d->minimum = minimum;
    d->maximum = maximum;
    // The value stays within the new range.
    const int value = std::clamp(d->value, minimum, maximum);
    if (value != d->value) {
        d->value = value;
        Q_EMIT valueChanged(value);
    }
    update();
}

int SensorProgressBar::minimum() const
{
    return d->minimum;
}

int SensorProgressBar::maximum() const
{
    return d->maximum;
}

int SensorProgressBar::value() const
{
    return d->value;
}

void SensorProgressBar::setValue(int value)
{
    value = std::clamp(value, d->minimum, d->maximum);
    if (value == d->value)
        return;
    d->value = value;
    d->idle = false;
    update();
    Q_EMIT valueChanged(value);
}

void SensorProgressBar::setText(const QString &text)
{
    if (text == d->text)
        return;
    d->text = text;
    d->idle = d->idle && text.isEmpty();
    update();
}

QString SensorProgressBar::text() const
{
    return d->text;
}

void SensorProgressBar::setIndeterminate(bool indeterminate)
{
    if (indeterminate == d->indeterminate)
        return;
    d->indeterminate = indeterminate;
    d->idle = d->idle && !indeterminate;
    updateAnimation();
    update();
}

bool SensorProgressBar::isIndeterminate() const
{
    return d->indeterminate;
}

void SensorProgressBar::setChunkColor(const QColor &color)
{
    if (color == d->chunkColor)
        return;
    d->chunkColor = color;
    update();
}

QColor SensorProgressBar::chunkColor() const
{
    return d->chunkColor;
}

int SensorProgressBar::nPercent() const
{
    if (d->indeterminate)
        return -1;
    if (d->maximum == d->minimum)
        return d->value >= d->maximum ? 100 : 0;
    return int(qint64(d->value - d->minimum) * 100 / (qint64(d->maximum) - d->minimum));
}

QString SensorProgressBar::oDisplayText() const
{
    if (d->idle)
        return QString();
    if (d->indeterminate)
        return d->text;
    if (d->text.isEmpty()) {
        //: %1 is the progress in per cent
        return tr("%1 %").arg(nPercent());
    }
    //: %1 is the operation (e.g. "Teach-in"), %2 the progress in per cent
    return tr("%1 (%2 %)").arg(d->text).arg(nPercent());
}

void SensorProgressBar::vStart(const QString &text, int maximum)
{
    setText(text);
    setIndeterminate(maximum <= 0);
    setRange(0, std::max(maximum, 0));
    setValue(0);
    d->idle = false;
    d->clock.start();
    update();
}

void SensorProgressBar::vFinish(const QString &text)
{
    if (!text.isEmpty())
        setText(text);
    setIndeterminate(false);
    setValue(d->maximum);
    d->idle = false;
    update();
    Q_EMIT finished();
}

void SensorProgressBar::vReset()
{
    setText(QString());
    setIndeterminate(false);
    setValue(d->minimum);
    d->idle = true;
    update();
}

QSize SensorProgressBar::sizeHint() const
{
    return QSize(240, fontMetrics().height() + 10);
}

QSize SensorProgressBar::minimumSizeHint() const
{
    return QSize(60, fontMetrics().height() + 6);
}

QRect SensorProgressBar::chunkRect(const QRect &trough) const
{
    if (d->indeterminate) {
        const int block = std::max(trough.width() / 4, 16);
        const qint64 elapsed = d->clock.isValid() ? d->clock.elapsed() % (2 * kSweepMs) : 0;
        // To the right in the first half of the period, back in the second.
        const double position = elapsed < kSweepMs ? double(elapsed) / kSweepMs : double(2 * kSweepMs - elapsed) / kSweepMs;
        return QRect(trough.left() + int(position * (trough.width() - block)), trough.top(), block, trough.height());
    }
    const int span = d->maximum - d->minimum;
    const double filled = span == 0 ? (d->value >= d->maximum ? 1.0 : 0.0) : double(d->value - d->minimum) / span;
    return QRect(trough.left(), trough.top(), int(trough.width() * filled + 0.5), trough.height());
}

void SensorProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect trough = contentsRect().adjusted(1, 1, -1, -1);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(trough).adjusted(0.5, 0.5, -0.5, -0.5), 3.0, 3.0);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawPath(outline);

    const QRect chunk = chunkRect(trough);
    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(chunk, d->chunkColor);
    painter.restore();

    // The text in the text colour beside the chunk and in the highlighted-text colour on it.
    const QString shown = fontMetrics().elidedText(oDisplayText(), Qt::ElideRight, trough.width() - 8);
    painter.save();
    painter.setClipRegion(QRegion(trough).subtracted(QRegion(chunk)));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(trough, Qt::AlignCenter, shown);
    painter.setClipRect(chunk);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(trough, Qt::AlignCenter, shown);
    painter.restore();
}

void SensorProgressBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateAnimation();
}

void SensorProgressBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    updateAnimation();
}

void SensorProgressBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        update();
    QWidget::changeEvent(event);
}

void SensorProgressBar::updateAnimation()
{
    // The block moves only where someone can see it.
    const bool run = d->indeterminate && isVisible();
    if (run && !d->animation.isActive()) {
        if (!d->clock.isValid())
            d->clock.start();
        d->animation.start();
    } else if (!run) {
        d->animation.stop();
    }
}

} // namespace Utils
