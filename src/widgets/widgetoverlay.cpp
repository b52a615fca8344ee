// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/widgetoverlay.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Utils {

struct WidgetOverlay::Private
{
    QWidget *target = nullptr;
    QString message;
    QColor color = QColor(255, 255, 255, 190);
    bool blocksInput = true;
};

WidgetOverlay::WidgetOverlay(QWidget *target)
    : QWidget(target)
    , d(std::make_unique<Private>())
{
    d->target = target;
    hide();
    if (target) {
        setGeometry(target->rect());
        target->installEventFilter(this);
    }
}

WidgetOverlay::~WidgetOverlay() = default;

QWidget *WidgetOverlay::poTarget() const
{
    return d->target;
}

void WidgetOverlay::setMessage(const QString &message)
{
    if (message == d->message)
        return;
    d->message = message;
    update();
    Q_EMIT messageChanged(message);
}

QString WidgetOverlay::message() const
{
    return d->message;
}

void WidgetOverlay::setOverlayColor(const QColor &color)
{
    if (color == d->color)
        return;
    d->color = color;
    update();
}

QColor WidgetOverlay::overlayColor() const
{
    return d->color;
}

void WidgetOverlay::setBlocksInput(bool block)
{
    if (block == d->blocksInput)
        return;
    d->blocksInput = block;
    setAttribute(Qt::WA_TransparentForMouseEvents, !block);
}

bool WidgetOverlay::blocksInput() const
{
    return d->blocksInput;
}

void WidgetOverlay::vShowMessage(const QString &message)
{
    setMessage(message);
    show();
}

bool WidgetOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->target) {
        switch (event->type()) {
        case QEvent::Resize:
            setGeometry(d->target->rect());
            break;
        case QEvent::ChildAdded:
            // A child added to the target later is stacked above us; take the top again once it is in place.
            if (QObject *child = static_cast<QChildEvent *>(event)->child(); child != this && child->isWidgetType())
                QMetaObject::invokeMethod(this, &QWidget::raise, Qt::QueuedConnection);
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool WidgetOverlay::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        setGeometry(d->target ? d->target->rect() : geometry());
        raise();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
        if (d->blocksInput) {
            // Accepted here, so that nothing reaches the target beneath.
            event->accept();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void WidgetOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), d->color);
    if (d->message.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setBold(true);
    if (font.pointSizeF() > 0.0)
        font.setPointSizeF(font.pointSizeF() * 1.2);
    else
        font.setPixelSize(font.pixelSize() * 6 / 5);
    painter.setFont(font);
    const int padding = 12;
    const QRect available = rect().adjusted(padding * 2, padding * 2, -padding * 2, -padding * 2);
    const QRect text = painter.fontMetrics().boundingRect(available, Qt::AlignCenter | Qt::TextWordWrap, d->message);
    const QRect box = text.adjusted(-padding, -padding / 2, padding, padding / 2).intersected(rect());
    QPainterPath path;
    path.addRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 6.0, 6.0);
    // Its own colours, not the target's: the message must read the same over any widget.
    painter.setPen(QPen(QColor(0, 0, 0, 70), 1));
    painter.setBrush(QColor(252, 252, 252, 240));
    painter.drawPath(path);
    painter.setPen(QColor(45, 45, 45));
    painter.drawText(available, Qt::AlignCenter | Qt::TextWordWrap, d->message);
}

} // namespace Utils
