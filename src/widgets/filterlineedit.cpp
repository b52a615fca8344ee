// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/filterlineedit.h"

#include <QEvent>
#include <QIcon>

namespace Utils {

FilterLineEdit::FilterLineEdit(QWidget *parent)
    : FancyLineEdit(parent)
{
    // The clear icon points towards the text: its "ltr" form for left-to-right layouts.
    const QString directional = layoutDirection() == Qt::LeftToRight ? QStringLiteral("edit-clear-locationbar-ltr")
                                                                      : QStringLiteral("edit-clear-locationbar-rtl");
    const QIcon icon = QIcon::fromTheme(
        directional,
        QIcon::fromTheme(QStringLiteral("edit-clear"), QIcon(QStringLiteral(":/newPrefix/icons//editclear.png"))));
    setButtonPixmap(Right, icon.pixmap(16));
    setButtonVisible(Right, true);
    setAutoHideButton(Right, true);
    setPlaceholderText(tr("Filter"));
    setButtonToolTip(Right, tr("Clear text"));
    connect(this, &FancyLineEdit::rightButtonClicked, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, this, &FilterLineEdit::slotTextChanged);
}

FilterLineEdit::~FilterLineEdit() = default;

void FilterLineEdit::slotTextChanged()
{
    const QString current = text();
    if (current == m_oLastFilterText)
        return;
    m_oLastFilterText = current;
    Q_EMIT filterChanged(current);
}

void FilterLineEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setPlaceholderText(tr("Filter"));
        setButtonToolTip(Right, tr("Clear text"));
    }
    FancyLineEdit::changeEvent(event);
}

} // namespace Utils
