// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/page.h"

#include "assistant/assistant_p.h"

namespace Assistant {

struct Page::Private
{
    QList<QObject *> elements;
    QSize minimumSize = QSize(370, 2160);
};

Page::Page(QObject *parent)
    : QObject(parent)
    , d(new Private)
{
    Internal::registerListType();
}

Page::~Page() = default;

QList<QObject *> Page::elements() const
{
    return d->elements;
}

void Page::setElements(const QList<QObject *> &elements)
{
    if (d->elements == elements)
        return;
    d->elements = elements;
    Q_EMIT elementsChanged(d->elements);
}

QList<QObject *> Page::appendElements(const QList<QObject *> &elements)
{
    if (elements.isEmpty())
        return d->elements;
    for (QObject *element : elements) {
        if (!d->elements.contains(element))
            d->elements.append(element);
    }
    Q_EMIT elementsChanged(d->elements);
    return d->elements;
}

QList<QObject *> Page::insertElementsAt(const QList<QObject *> &elements, int index)
{
    if (index < 0 || index > d->elements.size())
        return d->elements;
    for (int i = 0; i < elements.size(); ++i)
        d->elements.insert(index + i, elements.at(i));
    Q_EMIT elementsChanged(d->elements);
    return d->elements;
}

QList<QObject *> Page::removeElements(const QList<QObject *> &elements)
{
    for (QObject *element : elements)
        d->elements.removeAll(element);
    Q_EMIT elementsChanged(d->elements);
    return d->elements;
}

void Page::clearElements()
{
    d->elements.clear();
}

QSize Page::minimumSize() const
{
    return d->minimumSize;
}

void Page::setMinimumSize(const QSize &size)
{
    if (d->minimumSize != size)
        d->minimumSize = size;
}

} // namespace Assistant
