// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_TITLECOMPONENT_H
#define UTILS_TITLECOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

/*!
    \brief Page heading (type Title) with an optional icon.

    The third text is kept and translated with the others but not shown.
*/
class UTILS_EXPORT TitleComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString icon READ icon CONSTANT)

public:
    TitleComponent(QObject *parent, const QString &title, const QString &icon, QString text);
    ~TitleComponent() override;

    QString title() const;
    QString icon() const;
    //! The third constructor text, as last translated.
    QString text() const;

    void translate() override;

Q_SIGNALS:
    void titleChanged(QString title);

public Q_SLOTS:
    void setTitle(const QString &title);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_TITLECOMPONENT_H
