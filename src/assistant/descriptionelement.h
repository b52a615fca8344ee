// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_DESCRIPTIONELEMENT_H
#define UTILS_DESCRIPTIONELEMENT_H

#include "assistant/element.h"

#include <QStringList>

namespace Assistant {

//! A paragraph of explanatory text (type Description).
class UTILS_EXPORT DescriptionElement : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY descriptionChanged)

public:
    DescriptionElement(QObject *parent, const QString &description);
    ~DescriptionElement() override;

    QString description() const;
    void translate() override;

Q_SIGNALS:
    void descriptionChanged(QString description);

public Q_SLOTS:
    void setDescription(const QString &description);

protected:
    DescriptionElement(Element::Type type, QObject *parent, const QString &description);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

//! A description with pictures beside it (type DescriptionExtended); the images are resource paths.
class UTILS_EXPORT DescriptionComponent : public DescriptionElement
{
    Q_OBJECT
    Q_PROPERTY(QStringList images READ images CONSTANT)

public:
    DescriptionComponent(QObject *parent, const QString &description, const QStringList &images);
    ~DescriptionComponent() override;

    QStringList images() const;

private:
    const QStringList m_oImages;
};

} // namespace Assistant

#endif // UTILS_DESCRIPTIONELEMENT_H
