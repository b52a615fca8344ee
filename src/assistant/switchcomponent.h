// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_SWITCHCOMPONENT_H
#define UTILS_SWITCHCOMPONENT_H

#include "assistant/element.h"

namespace Assistant {

//! An on/off switch with a caption (type Switch); restore() puts back the constructor status.
class UTILS_EXPORT SwitchComponent : public Element
{
    Q_OBJECT
    Q_PROPERTY(QString iconText READ iconText WRITE setIconText NOTIFY iconTextChanged)
    Q_PROPERTY(QString switchText READ switchText WRITE setSwitchText NOTIFY switchTextChanged)
    Q_PROPERTY(bool status READ status WRITE setStatus NOTIFY statusChanged)

public:
    SwitchComponent(QObject *parent, bool status, const QString &iconText, const QString &switchText);
    ~SwitchComponent() override;

    QString iconText() const;
    QString switchText() const;
    bool status() const;

    void restore() override;
    void translate() override;

Q_SIGNALS:
    void statusChanged(bool status);
    void iconTextChanged(QString text);
    void switchTextChanged(QString text);

public Q_SLOTS:
    void setStatus(bool status);
    void setIconText(const QString &text);
    void setSwitchText(const QString &text);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Assistant

#endif // UTILS_SWITCHCOMPONENT_H
