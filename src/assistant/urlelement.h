// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_URLELEMENT_H
#define UTILS_URLELEMENT_H

#include "assistant/element.h"

namespace Assistant {

//! A link: shown text, target address and icon (type Url).
class UTILS_EXPORT UrlElement : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QString url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(QString icon READ icon CONSTANT)

public:
    UrlElement(QObject *parent, const QString &text, const QString &url, const QString &icon);
    ~UrlElement() override;

    QString text() const;
    QString url() const;
    QString icon() const;

    void translate() override;

Q_SIGNALS:
    void textChanged(QString text);
    void urlChanged(QString url);

public Q_SLOTS:
    void setText(const QString &text);
    void setUrl(const QString &url);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_URLELEMENT_H
