// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistant/signalcomponent.h"

#include "assistant/assistant_p.h"

namespace Assistant {

using namespace Internal;

struct SignalComponent::Private
{
    QString backgroundColor = QStringLiteral("white");
    QString backgroundColor1 = QStringLiteral("white");
    QString backgroundColor2 = QStringLiteral("white");
    QString backgroundColor3 = QStringLiteral("white");
    QString iconText;
    QString labelText = QStringLiteral("test");
    QString buttonText = QStringLiteral("67847");
    QString buttonColor;
    QString sourceIconText;
    // Further source texts the component has always carried; nothing shows them.
    QString sourceLabelText = QStringLiteral("1243");
    QString sourceButtonText = QStringLiteral("444");
    unsigned char nisDefaultText = 0;
};

SignalComponent::SignalComponent(QObject *parent, QString text, QString iconText, QString labelText)
    : Element(Element::DoubleSpinBox, parent)
    , d(new Private)
{
    Q_UNUSED(text)
    Q_UNUSED(labelText)
    d->iconText = iconText;
    d->sourceIconText = iconText;
}

SignalComponent::~SignalComponent() = default;

QString SignalComponent::backgroundColor() const
{
    return d->backgroundColor;
}

QString SignalComponent::backgroundColor1() const
{
    return d->backgroundColor1;
}

QString SignalComponent::backgroundColor2() const
{
    return d->backgroundColor2;
}

QString SignalComponent::backgroundColor3() const
{
    return d->backgroundColor3;
}

QString SignalComponent::iconText() const
{
    return d->iconText;
}

QString SignalComponent::labelText() const
{
    return d->labelText;
}

QString SignalComponent::buttonText() const
{
    return d->buttonText;
}

QString SignalComponent::buttonColor() const
{
    return d->buttonColor;
}

unsigned char SignalComponent::nisDefaultText() const
{
    return d->nisDefaultText;
}

void SignalComponent::translate()
{
    setIconText(translated(d->sourceIconText));
}

void SignalComponent::setButtonText(const QString &text)
{
    if (assign(d->buttonText, text))
        Q_EMIT buttonTextChanged(d->buttonText);
}

void SignalComponent::setButtonColor(const QString &color)
{
    if (assign(d->buttonColor, color))
        Q_EMIT buttonColorChanged(d->buttonColor);
}

void SignalComponent::setLabelText(const QString &text)
{
    if (assign(d->labelText, text))
        Q_EMIT labelTextChanged(d->labelText);
}

void SignalComponent::setIconText(const QString &text)
{
    if (assign(d->iconText, text))
        Q_EMIT iconTextChanged(d->iconText);
}

void SignalComponent::setBackgroundColor(const QString &color)
{
    d->backgroundColor = color;
    Q_EMIT backgroundColorChanged();
}

void SignalComponent::setBackgroundColor1(const QString &color)
{
    d->backgroundColor1 = color;
    Q_EMIT backgroundColorChanged1();
}

void SignalComponent::setBackgroundColor2(const QString &color)
{
    d->backgroundColor2 = color;
    Q_EMIT backgroundColorChanged2();
}

void SignalComponent::setBackgroundColor3(const QString &color)
{
    d->backgroundColor3 = color;
    Q_EMIT backgroundColorChanged3();
}

} // namespace Assistant
