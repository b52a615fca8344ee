// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/rgbrenderer.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Utils {

namespace {

// Only rgb counts: a colour set as HSV and the same colour set as RGB are one colour here.
bool sameColor(const QColor &a, const QColor &b)
{
    return a.isValid() == b.isValid() && (!a.isValid() || a.rgba() == b.rgba());
}

constexpr int kMargin = 4;
constexpr int kGap = 8;

} // namespace

struct RgbRenderer::Private
{
    QColor color;
    QColor taught;
};

RgbRenderer::RgbRenderer(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    // Narrower than its hint, a swatch could not show its numbers.
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred);
}

RgbRenderer::~RgbRenderer() = default;

void RgbRenderer::setColor(const QColor &color)
{
    if (sameColor(color, d->color))
        return;
    d->color = color;
    update();
    Q_EMIT colorChanged(color);
}

QColor RgbRenderer::color() const
{
    return d->color;
}

void RgbRenderer::setTaughtColor(const QColor &color)
{
    if (sameColor(color, d->taught))
        return;
    d->taught = color;
    // A second swatch wants more room.
    updateGeometry();
    update();
    Q_EMIT taughtColorChanged(color);
}

QColor RgbRenderer::taughtColor() const
{
    return d->taught;
}

QSize RgbRenderer::sizeHint() const
{
    // Each swatch as wide as its numbers in the short form.
    const int swatch = std::max(72, fontMetrics().horizontalAdvance(QStringLiteral("000, 000, 000")) + 8);
    const int captions = 2 * fontMetrics().height();
    return QSize(d->taught.isValid() ? 2 * swatch + kGap + 2 * kMargin : swatch + 2 * kMargin,
                 64 + captions + 2 * kMargin);
}

QSize RgbRenderer::minimumSizeHint() const
{
    return QSize(2 * 40 + kGap + 2 * kMargin, 24 + 2 * fontMetrics().height() + 2 * kMargin);
}

void RgbRenderer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect area = contentsRect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (!d->taught.isValid()) {
        paintSwatch(painter, area, d->color, tr("Current"));
        return;
    }
    const int width = (area.width() - kGap) / 2;
    paintSwatch(painter, QRect(area.left(), area.top(), width, area.height()), d->color, tr("Current"));
    paintSwatch(painter, QRect(area.right() - width + 1, area.top(), width, area.height()), d->taught, tr("Taught"));
}

void RgbRenderer::paintSwatch(QPainter &painter, const QRect &area, const QColor &color, const QString &caption) const
{
    const int line = painter.fontMetrics().height();
    const QRect swatch(area.left(), area.top(), area.width(), std::max(area.height() - 2 * line - 2, 4));
    QPainterPath path;
    path.addRoundedRect(QRectF(swatch).adjusted(0.5, 0.5, -0.5, -0.5), 4.0, 4.0);
    painter.setPen(QPen(QColor(0, 0, 0, 90), 1));
    if (color.isValid()) {
        painter.setBrush(QColor(color.red(), color.green(), color.blue()));
        painter.drawPath(path);
    } else {
        painter.setBrush(QColor(235, 235, 235));
        painter.drawPath(path);
        painter.setBrush(QBrush(QColor(190, 190, 190), Qt::BDiagPattern));
        painter.drawPath(path);
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(swatch, Qt::AlignCenter | Qt::TextWordWrap, tr("No reading"));
    }

    painter.setPen(palette().color(QPalette::WindowText));
    QFont bold = painter.font();
    bold.setBold(true);
    const QFont plain = painter.font();
    const QRect first(area.left(), swatch.bottom() + 2, area.width(), line);
    painter.setFont(bold);
    painter.drawText(first, Qt::AlignHCenter | Qt::AlignTop, caption);
    painter.setFont(plain);
    QString components = QStringLiteral("-");
    if (color.isValid()) {
        // The channel letters when there is room, the bare numbers in a narrow swatch.
        components = tr("R %1  G %2  B %3").arg(color.red()).arg(color.green()).arg(color.blue());
        if (painter.fontMetrics().horizontalAdvance(components) > area.width())
            components = QStringLiteral("%1, %2, %3").arg(color.red()).arg(color.green()).arg(color.blue());
    }
    painter.drawText(first.translated(0, line), Qt::AlignHCenter | Qt::AlignTop,
                     painter.fontMetrics().elidedText(components, Qt::ElideRight, area.width()));
}

void RgbRenderer::changeEvent(QEvent *event)
{
    // The captions are written at paint time; a repaint is all a new language needs.
    if (event->type() == QEvent::LanguageChange)
        update();
    QWidget::changeEvent(event);
}

} // namespace Utils
