// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/fancylineedit.h"

#include "widgets/iconbutton.h"

#include <QCursor>
#include <QEvent>
#include <QMenu>
#include <QStyle>

#include <algorithm>

namespace Utils {

//! Per side: the button and what the line edit knows about it.
class FancyLineEditPrivate
{
public:
    struct SideState
    {
        IconButton *button = nullptr;
        QMenu *menu = nullptr;
        bool menuTabFocusTrigger = false;
        bool visible = false;
        bool autoHide = false;
    };

    SideState sides[2];
    QString oldText;
};

FancyLineEdit::FancyLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , d(std::make_unique<FancyLineEditPrivate>())
{
    // For queued connections and spies of buttonClicked().
    static const int sideType = qRegisterMetaType<Utils::FancyLineEdit::Side>("Utils::FancyLineEdit::Side");
    Q_UNUSED(sideType)
    ensurePolished();
    for (FancyLineEditPrivate::SideState &side : d->sides) {
        side.button = new IconButton(this);
        side.button->hide();
        connect(side.button, &QAbstractButton::clicked, this, &FancyLineEdit::iconClicked);
    }
    connect(this, &QLineEdit::textChanged, this, &FancyLineEdit::checkButtons);
    updateMargins();
}

FancyLineEdit::~FancyLineEdit() = default;

void FancyLineEdit::setButtonPixmap(Side side, const QPixmap &pixmap)
{
    d->sides[side].button->setPixmap(pixmap);
    updateMargins();
    updateButtonPositions();
    update();
}

QPixmap FancyLineEdit::buttonPixmap(Side side) const
{
    return d->sides[side].button->pixmap();
}

void FancyLineEdit::setButtonMenu(Side side, QMenu *menu)
{
    d->sides[side].menu = menu;
}

QMenu *FancyLineEdit::buttonMenu(Side side) const
{
    return d->sides[side].menu;
}

void FancyLineEdit::setMenuTabFocusTrigger(Side side, bool trigger)
{
    d->sides[side].menuTabFocusTrigger = trigger;
}

bool FancyLineEdit::hasMenuTabFocusTrigger(Side side) const
{
    return d->sides[side].menuTabFocusTrigger;
}

void FancyLineEdit::setButtonVisible(Side side, bool visible)
{
    d->sides[side].visible = visible;
    d->sides[side].button->setVisible(visible);
    updateMargins();
    updateButtonPositions();
}

bool FancyLineEdit::isButtonVisible(Side side) const
{
    return d->sides[side].visible;
}

void FancyLineEdit::setAutoHideButton(Side side, bool autoHide)
{
    FancyLineEditPrivate::SideState &state = d->sides[side];
    state.autoHide = autoHide;
    state.button->setAutoHide(autoHide);
    state.button->setIconOpacity(!autoHide || !text().isEmpty() ? 1.0f : 0.0f);
}

bool FancyLineEdit::hasAutoHideButton(Side side) const
{
    return d->sides[side].autoHide;
}

void FancyLineEdit::setButtonToolTip(Side side, const QString &tip)
{
    d->sides[side].button->setToolTip(tip);
}

void FancyLineEdit::setButtonFocusPolicy(Side side, Qt::FocusPolicy policy)
{
    d->sides[side].button->setFocusPolicy(policy);
}

QAbstractButton *FancyLineEdit::button(Side side) const
{
    return d->sides[side].button;
}

void FancyLineEdit::checkButtons(const QString &text)
{
    // Only a change between empty and not empty shows or hides the buttons.
    if (!d->oldText.isEmpty() && !text.isEmpty())
        return;
    for (FancyLineEditPrivate::SideState &side : d->sides) {
        if (side.autoHide)
            side.button->animateShow(!text.isEmpty());
    }
    d->oldText = text;
}

void FancyLineEdit::iconClicked()
{
    auto *button = qobject_cast<IconButton *>(sender());
    int index = -1;
    for (int i = 0; i < 2; ++i) {
        if (d->sides[i].button == button)
            index = i;
    }
    if (index < 0)
        return;
    const auto side = Side(index);
    if (QMenu *menu = d->sides[index].menu) {
        menu->exec(QCursor::pos());
        return;
    }
    Q_EMIT buttonClicked(side);
    if (side == Left)
        Q_EMIT leftButtonClicked();
    else
        Q_EMIT rightButtonClicked();
}

void FancyLineEdit::updateMargins()
{
    const bool leftToRight = layoutDirection() == Qt::LeftToRight;
    const Side realLeft = leftToRight ? Left : Right;
    const Side realRight = leftToRight ? Right : Left;
    int leftWidth = d->sides[realLeft].button->pixmap().width() + 8;
    int rightWidth = d->sides[realRight].button->pixmap().width() + 8;
    // The Oxygen style draws a wide frame inside the field.
    if (style()->inherits("OxygenStyle")) {
        leftWidth = std::max(24, leftWidth);
        rightWidth = std::max(24, rightWidth);
    }
    setTextMargins(d->sides[realLeft].visible ? leftWidth : 0, 0, d->sides[realRight].visible ? rightWidth : 0, 0);
}

void FancyLineEdit::updateButtonPositions()
{
    const QRect contents = rect();
    const QMargins margins = textMargins();
    const bool leftToRight = layoutDirection() == Qt::LeftToRight;
    for (int i = 0; i < 2; ++i) {
        // The logical side's strip lies at the visual end the layout direction gives it.
        const bool atLeftEdge = (i == Left) == leftToRight;
        QRect strip = contents;
        if (atLeftEdge)
            strip.setWidth(margins.left() + 4);
        else
            strip.setLeft(contents.right() - (margins.right() + 4) + 1);
        d->sides[i].button->setGeometry(strip);
    }
}

void FancyLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    updateButtonPositions();
}

bool FancyLineEdit::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange:
        updateMargins();
        updateButtonPositions();
        break;
    case QEvent::FocusIn:
        // Tab into the field opens the menu of a side that asks for it.
        for (FancyLineEditPrivate::SideState &side : d->sides) {
            if (side.menuTabFocusTrigger && side.menu) {
                const bool result = QLineEdit::event(event);
                side.menu->exec(mapToGlobal(side.button->geometry().bottomLeft()));
                return result;
            }
        }
        break;
    default:
        break;
    }
    return QLineEdit::event(event);
}

} // namespace Utils
