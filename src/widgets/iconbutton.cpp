// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/iconbutton.h"

#include <QPainter>
#include <QPropertyAnimation>

namespace Utils {

IconButton::IconButton(QWidget *parent)
    : QAbstractButton(parent)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::NoFocus);
}

IconButton::~IconButton() = default;

void IconButton::setPixmap(const QPixmap &pixmap)
{
    m_oPixmap = pixmap;
    update();
}

QPixmap IconButton::pixmap() const
{
    return m_oPixmap;
}

void IconButton::setIconOpacity(float opacity)
{
    m_fIconOpacity = opacity;
    update();
}

float IconButton::iconOpacity() const
{
    return m_fIconOpacity;
}

void IconButton::setAutoHide(bool autoHide)
{
    m_bAutoHide = autoHide;
}

bool IconButton::hasAutoHide() const
{
    return m_bAutoHide;
}

void IconButton::animateShow(bool visible)
{
    auto *animation = new QPropertyAnimation(this, "iconOpacity", this);
    animation->setDuration(160);
    animation->setEndValue(visible ? 1.0f : 0.0f);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

QSize IconButton::sizeHint() const
{
    return m_oPixmap.size() / m_oPixmap.devicePixelRatio();
}

void IconButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    const QSize size = m_oPixmap.size() / m_oPixmap.devicePixelRatio();
    QRect target(QPoint(0, 0), size);
    target.moveCenter(rect().center());
    QPainter painter(this);
    if (m_bAutoHide)
        painter.setOpacity(double(m_fIconOpacity));
    painter.drawPixmap(target, m_oPixmap);
}

} // namespace Utils
