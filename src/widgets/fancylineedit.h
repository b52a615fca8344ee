// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_FANCYLINEEDIT_H
#define UTILS_FANCYLINEEDIT_H

#include "utils_export.h"

#include <QLineEdit>

#include <memory>

class QAbstractButton;
class QMenu;

namespace Utils {

class FancyLineEditPrivate;

/*!
    \brief A one-line text field with an optional icon button inside each end.

    Each side's button (Utils::IconButton) can carry a menu, which it opens when
    clicked, or report the click by buttonClicked() and leftButtonClicked() /
    rightButtonClicked(). An auto-hiding button fades in (160 ms) when the field
    gets text and out when it becomes empty. The text keeps clear of the visible
    buttons; in a right-to-left layout the sides swap.

    \sa FilterLineEdit, IconButton
*/
class UTILS_EXPORT FancyLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    enum Side { Left = 0, Right = 1 };
    Q_ENUM(Side)

    explicit FancyLineEdit(QWidget *parent = nullptr);
    ~FancyLineEdit() override;

    void setButtonPixmap(Side side, const QPixmap &pixmap);
    QPixmap buttonPixmap(Side side) const;
    //! The menu the button opens instead of reporting the click (not owned; null for none).
    void setButtonMenu(Side side, QMenu *menu);
    QMenu *buttonMenu(Side side) const;
    //! Whether Tab into the field opens the side's menu.
    void setMenuTabFocusTrigger(Side side, bool trigger);
    bool hasMenuTabFocusTrigger(Side side) const;
    void setButtonVisible(Side side, bool visible);
    bool isButtonVisible(Side side) const;
    //! An auto-hiding button is shown only while the field has text.
    void setAutoHideButton(Side side, bool autoHide);
    bool hasAutoHideButton(Side side) const;
    void setButtonToolTip(Side side, const QString &tip);
    void setButtonFocusPolicy(Side side, Qt::FocusPolicy policy);
    //! The side's button, e.g. for tests and styling.
    QAbstractButton *button(Side side) const;

Q_SIGNALS:
    void buttonClicked(Utils::FancyLineEdit::Side side);
    void leftButtonClicked();
    void rightButtonClicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void checkButtons(const QString &text);
    void iconClicked();
    void updateMargins();
    void updateButtonPositions();

    friend class FancyLineEditPrivate;
    Q_DISABLE_COPY(FancyLineEdit)
    std::unique_ptr<FancyLineEditPrivate> d;
};

} // namespace Utils

#endif // UTILS_FANCYLINEEDIT_H
