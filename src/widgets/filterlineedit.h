// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_FILTERLINEEDIT_H
#define UTILS_FILTERLINEEDIT_H

#include "utils_export.h"

#include "widgets/fancylineedit.h"

namespace Utils {

/*!
    \brief A filter field: a FancyLineEdit with a clear button on the right
    (shown only while there is text), the placeholder "Filter", and
    filterChanged() only when the text really changes.

    \sa FancyLineEdit
*/
class UTILS_EXPORT FilterLineEdit : public FancyLineEdit
{
    Q_OBJECT

public:
    explicit FilterLineEdit(QWidget *parent = nullptr);
    ~FilterLineEdit() override;

Q_SIGNALS:
    void filterChanged(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void slotTextChanged();

private:
    Q_DISABLE_COPY(FilterLineEdit)
    QString m_oLastFilterText;
};

} // namespace Utils

#endif // UTILS_FILTERLINEEDIT_H
