// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_PAGE_H
#define UTILS_PAGE_H

#include "utils_export.h"

#include <QObject>
#include <QSize>

#include <memory>

namespace Assistant {

/*!
    \brief One page of an assistant: an ordered list of elements.

    The page's object name tells the manager its kind ("PASSWORD_CHANGE",
    "PASSWORD_ENTRY", "SAVE", "TEACH_PAGE"). The page does not own its
    elements; their QObject parent does.

    \sa Element, AbstractManager
*/
class UTILS_EXPORT Page : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<QObject *> elements READ elements WRITE setElements NOTIFY elementsChanged)
    Q_PROPERTY(QSize minimumSize READ minimumSize WRITE setMinimumSize)

public:
    explicit Page(QObject *parent);
    ~Page() override;

    QList<QObject *> elements() const;
    //! Replaces the list; emits elementsChanged only when it differs.
    void setElements(const QList<QObject *> &elements);

    /*!
        Appends the elements not yet on the page (compared by pointer), emits
        elementsChanged with the whole list, even when every element was
        already there, and returns the whole list. An empty argument does
        nothing.
    */
    QList<QObject *> appendElements(const QList<QObject *> &elements);
    /*!
        Inserts \a elements before position \a index (0 up to the count) and
        emits elementsChanged; any other index leaves the page as it is.
        Returns the whole list.
    */
    QList<QObject *> insertElementsAt(const QList<QObject *> &elements, int index);
    //! Removes the given elements, emits elementsChanged with what remains and returns it.
    QList<QObject *> removeElements(const QList<QObject *> &elements);
    //! Empties the list silently.
    void clearElements();

    //! 370 x 2160 unless set otherwise.
    QSize minimumSize() const;
    void setMinimumSize(const QSize &size);

Q_SIGNALS:
    void elementsChanged(QObjectList elements);

private:
    Q_DISABLE_COPY(Page)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_PAGE_H
