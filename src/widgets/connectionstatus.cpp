// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/connectionstatus.h"

#include <QEvent>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>

namespace Utils {

namespace {

constexpr int kSpacing = 6;
constexpr int kMargin = 2;

} // namespace

struct ConnectionStatus::Private
{
    bool connected = false;
    QColor connectedColor = QColor(0, 170, 60);
    QColor disconnectedColor = QColor(210, 40, 40);
};

ConnectionStatus::ConnectionStatus(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    textChanged();
}

ConnectionStatus::~ConnectionStatus() = default;

bool ConnectionStatus::isConnected() const
{
    return d->connected;
}

QString ConnectionStatus::text() const
{
    // The two spellings differ on purpose; hosts look for these exact texts.
    return d->connected ? tr("Sensor Connected") : tr("Sensor disconnected");
}

void ConnectionStatus::setConnected(bool connected)
{
    if (connected == d->connected)
        return;
    d->connected = connected;
    textChanged();
    Q_EMIT connectedChanged(connected);
}

void ConnectionStatus::setConnectedColor(const QColor &color)
{
    if (color == d->connectedColor)
        return;
    d->connectedColor = color;
    update();
}

QColor ConnectionStatus::connectedColor() const
{
    return d->connectedColor;
}

void ConnectionStatus::setDisconnectedColor(const QColor &color)
{
    if (color == d->disconnectedColor)
        return;
    d->disconnectedColor = color;
    update();
}

QColor ConnectionStatus::disconnectedColor() const
{
    return d->disconnectedColor;
}

int ConnectionStatus::lampDiameter() const
{
    return std::max(10, fontMetrics().height() - 2);
}

QSize ConnectionStatus::sizeHint() const
{
    // Room for the longer of the two texts, so that the widget does not jump when the state changes.
    const QFontMetrics metrics = fontMetrics();
    const int textWidth = std::max(metrics.horizontalAdvance(tr("Sensor Connected")),
                                   metrics.horizontalAdvance(tr("Sensor disconnected")));
    return QSize(2 * kMargin + lampDiameter() + kSpacing + textWidth,
                 2 * kMargin + std::max(lampDiameter(), metrics.height()));
}

QSize ConnectionStatus::minimumSizeHint() const
{
    return sizeHint();
}

void ConnectionStatus::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect area = contentsRect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int diameter = lampDiameter();
    const QRectF lamp(area.left() + 0.5, area.center().y() - diameter / 2.0 + 0.5, diameter - 1.0, diameter - 1.0);
    const QColor color = d->connected ? d->connectedColor : d->disconnectedColor;
    // A lit lamp: brighter towards the upper left.
    QRadialGradient gradient(lamp.center() - QPointF(diameter / 5.0, diameter / 5.0), diameter * 0.7);
    gradient.setColorAt(0.0, color.lighter(160));
    gradient.setColorAt(1.0, color);
    painter.setBrush(gradient);
    painter.setPen(QPen(color.darker(150), 1));
    painter.drawEllipse(lamp);

    painter.setPen(palette().color(QPalette::WindowText));
    const QRect textArea(area.left() + diameter + kSpacing, area.top(), area.width() - diameter - kSpacing,
                         area.height());
    painter.drawText(textArea, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, textArea.width()));
}

void ConnectionStatus::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange)
        textChanged();
    QWidget::changeEvent(event);
}

void ConnectionStatus::textChanged()
{
    setAccessibleName(text());
    updateGeometry();
    update();
}

} // namespace Utils
