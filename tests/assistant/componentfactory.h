// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef TST_ASSISTANT_COMPONENTFACTORY_H
#define TST_ASSISTANT_COMPONENTFACTORY_H

// Every assistant element built with fixed, recognisable constructor values,
// so data-driven tests can name a class in a row.

#include <assistant/boxcomponent.h>
#include <assistant/buttoncomponent.h>
#include <assistant/buttonscomponent.h>
#include <assistant/checkboxcomponent.h>
#include <assistant/comboboxcomponent.h>
#include <assistant/descriptionelement.h>
#include <assistant/doublespinboxcomponent.h>
#include <assistant/labelcomponent.h>
#include <assistant/signalcomponent.h>
#include <assistant/spacerelement.h>
#include <assistant/spinboxcomponent.h>
#include <assistant/switchcomponent.h>
#include <assistant/titlecomponent.h>
#include <assistant/urlelement.h>

#include <QString>
#include <QStringList>

namespace TestSupport {

inline Assistant::Element *createElement(const QString &className, QObject *parent)
{
    using namespace Assistant;
    if (className == QLatin1String("TitleComponent"))
        return new TitleComponent(
            parent, QStringLiteral("Exposure"), QStringLiteral("clock.svg"), QStringLiteral("hint"));
    if (className == QLatin1String("SpacerElement"))
        return new SpacerElement(25, parent);
    if (className == QLatin1String("DescriptionElement"))
        return new DescriptionElement(parent, QStringLiteral("Place the target"));
    if (className == QLatin1String("DescriptionComponent"))
        return new DescriptionComponent(
            parent, QStringLiteral("Look here"), { QStringLiteral("a.png"), QStringLiteral("b.png") });
    if (className == QLatin1String("UrlElement"))
        return new UrlElement(parent, QStringLiteral("Manual"), QStringLiteral("https://example.invalid/manual"),
            QStringLiteral("link.svg"));
    if (className == QLatin1String("SpinBoxComponent"))
        return new SpinBoxComponent(parent, 5, 0, 100, 1, QStringLiteral("ms"), QStringLiteral("Exposure time"));
    if (className == QLatin1String("DoubleSpinBoxComponent"))
        return new DoubleSpinBoxComponent(parent, 1.5, 0.0, 10.0, 0.5, QStringLiteral("mm"), QStringLiteral("Offset"));
    if (className == QLatin1String("SwitchComponent"))
        return new SwitchComponent(parent, false, QStringLiteral("laser"), QStringLiteral("Laser on"));
    if (className == QLatin1String("LabelComponent"))
        return new LabelComponent(parent, QStringLiteral("Distance"), QStringLiteral("ruler"), 12);
    if (className == QLatin1String("ButtonComponent"))
        return new ButtonComponent(
            parent, QStringLiteral("Teach"), QStringLiteral("Press to teach"), QStringLiteral("teach"), true);
    if (className == QLatin1String("ButtonsComponent"))
        return new ButtonsComponent(parent, 1, { QStringLiteral("Low"), QStringLiteral("Mid"), QStringLiteral("High") },
            QStringLiteral("sensitivity"), 3, 4);
    if (className == QLatin1String("BoxComponent"))
        return new BoxComponent(parent, QStringLiteral("Start"), QStringLiteral("box"), QStringLiteral("Status"));
    if (className == QLatin1String("CheckBoxComponent"))
        return new CheckBoxComponent(parent, 1, 0, 1, 1, QStringLiteral("check"), QStringLiteral("Averaging"));
    if (className == QLatin1String("ComboBoxComponent"))
        return new ComboBoxComponent(parent,
            { QStringLiteral("Standard"), QStringLiteral("Fast"), QStringLiteral("Precise") }, 0,
            QStringLiteral("Mode"), QStringLiteral("Choose the mode"));
    if (className == QLatin1String("SignalComponent"))
        return new SignalComponent(
            parent, QStringLiteral("ignored"), QStringLiteral("signal"), QStringLiteral("ignored too"));
    return nullptr;
}

} // namespace TestSupport

#endif // TST_ASSISTANT_COMPONENTFACTORY_H
