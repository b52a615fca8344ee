// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/descriptionelement.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct DescriptionElement::Private
{
    QString description;
    QString sourceDescription;
};

DescriptionElement::DescriptionElement(QObject *parent, const QString &description)
    : DescriptionElement(Element::Description, parent, description)
{ }

DescriptionElement::DescriptionElement(Element::Type type, QObject *parent, const QString &description)
    : Element(type, parent)
    , d(new Private { description, description })
{ }

DescriptionElement::~DescriptionElement() = default;

QString DescriptionElement::description() const
{
    return d->description;
}

void DescriptionElement::translate()
{
    setDescription(translated(d->sourceDescription));
}

void DescriptionElement::setDescription(const QString &description)
{
    if (assign(d->description, description))
        Q_EMIT descriptionChanged(d->description);
}

DescriptionComponent::DescriptionComponent(QObject *parent, const QString &description, const QStringList &images)
    : DescriptionElement(Element::DescriptionExtended, parent, description)
    , m_oImages(images)
{ }

DescriptionComponent::~DescriptionComponent() = default;

QStringList DescriptionComponent::images() const
{
    return m_oImages;
}

} // namespace Assistant
