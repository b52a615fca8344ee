// SPDX-License-Identifier: LGPL-2.1-or-later
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

#include <QCoreApplication>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Assistant;

namespace {

//! Answers every assistant text with "de:" in front, and nothing in other contexts.
class PrefixTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "AssistantManager") != 0)
            return QString();
        return QStringLiteral("de:") + QString::fromUtf8(sourceText);
    }
    bool isEmpty() const override { return false; }
};

//! Every element built with fixed, recognisable constructor values, so a table row can name its class.
Element *createElement(const QString &className, QObject *parent)
{
    if (className == QLatin1String("TitleComponent"))
        return new TitleComponent(parent, "Exposure", "clock.svg", "hint");
    if (className == QLatin1String("SpacerElement"))
        return new SpacerElement(25, parent);
    if (className == QLatin1String("DescriptionElement"))
        return new DescriptionElement(parent, "Place the target");
    if (className == QLatin1String("DescriptionComponent"))
        return new DescriptionComponent(parent, "Look here", { "a.png", "b.png" });
    if (className == QLatin1String("UrlElement"))
        return new UrlElement(parent, "Manual", "https://example.invalid/manual", "link.svg");
    if (className == QLatin1String("SpinBoxComponent"))
        return new SpinBoxComponent(parent, 5, 0, 100, 1, "ms", "Exposure time");
    if (className == QLatin1String("DoubleSpinBoxComponent"))
        return new DoubleSpinBoxComponent(parent, 1.5, 0.0, 10.0, 0.5, "mm", "Offset");
    if (className == QLatin1String("SwitchComponent"))
        return new SwitchComponent(parent, false, "laser", "Laser on");
    if (className == QLatin1String("LabelComponent"))
        return new LabelComponent(parent, "Distance", "ruler", 12);
    if (className == QLatin1String("ButtonComponent"))
        return new ButtonComponent(parent, "Teach", "Press to teach", "teach", true);
    if (className == QLatin1String("ButtonsComponent"))
        return new ButtonsComponent(parent, 1, { "Low", "Mid", "High" }, "sensitivity", 3, 4);
    if (className == QLatin1String("BoxComponent"))
        return new BoxComponent(parent, "Start", "box", "Status");
    if (className == QLatin1String("CheckBoxComponent"))
        return new CheckBoxComponent(parent, 1, 0, 1, 1, "check", "Averaging");
    if (className == QLatin1String("ComboBoxComponent"))
        return new ComboBoxComponent(parent, { "Standard", "Fast", "Precise" }, 0, "Mode", "Choose the mode");
    if (className == QLatin1String("SignalComponent"))
        return new SignalComponent(parent, "ignored", "signal", "ignored too");
    return nullptr;
}

QMetaProperty metaProperty(const QObject *object, const QByteArray &name)
{
    return object->metaObject()->property(object->metaObject()->indexOfProperty(name.constData()));
}

std::unique_ptr<QSignalSpy> notifySpy(QObject *object, const QMetaProperty &property)
{
    return std::make_unique<QSignalSpy>(
        object, QByteArray(QByteArray::number(QSIGNAL_CODE) + property.notifySignal().methodSignature()));
}

} // namespace

class tst_Components : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructedState_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("propertyName");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("signalList"); // the class's own signals in meta-object order, when pinned
        // clang-format off
        QTest::newRow("title") << "TitleComponent" << 0 << "icon" << QVariant("clock.svg") << QString();
        QTest::newRow("spacer") << "SpacerElement" << 1 << "height" << QVariant(25) << QString();
        QTest::newRow("description") << "DescriptionElement" << 2 << "description" << QVariant("Place the target")
                                     << QString();
        QTest::newRow("description with images") << "DescriptionComponent" << 3 << "images"
                                                 << QVariant(QStringList { "a.png", "b.png" }) << QString();
        QTest::newRow("url") << "UrlElement" << 7 << "url" << QVariant("https://example.invalid/manual") << QString();
        QTest::newRow("spin box") << "SpinBoxComponent" << 9 << "spinTo" << QVariant(100)
                                  << "spinValueChanged(int) spinFromChanged(int) spinToChanged(int) stepChanged(int) "
                                     "iconTextChanged(QString) spinTextChanged(QString) emitButtonClicked() "
                                     "editingFinished() vTextChanged(QString)";
        QTest::newRow("double spin box") << "DoubleSpinBoxComponent" << 10 << "step" << QVariant(0.5) << QString();
        QTest::newRow("switch") << "SwitchComponent" << 11 << "switchText" << QVariant("Laser on")
                                << "statusChanged(bool) iconTextChanged(QString) switchTextChanged(QString)";
        QTest::newRow("label") << "LabelComponent" << 13 << "xPos" << QVariant::fromValue<uchar>(12) << QString();
        QTest::newRow("button") << "ButtonComponent" << 14 << "labelText" << QVariant("Press to teach")
                                << "buttonTextChanged(QString) iconTextChanged(QString) labelTextChanged(QString)";
        QTest::newRow("buttons") << "ButtonsComponent" << 15 << "columns" << QVariant::fromValue<uchar>(3)
                                 << "selectedChanged(uchar) namesChanged(QStringList) iconTextChanged(QString)";
        QTest::newRow("box") << "BoxComponent" << 16 << "buttonColor" << QVariant("white")
                             << "buttonTextChanged(QString) buttonColorChanged(QString) labelTextChanged(QString) "
                                "iconTextChanged(QString)";
        QTest::newRow("check box") << "CheckBoxComponent" << 17 << "spinText" << QVariant("Averaging") << QString();
        QTest::newRow("combo box") << "ComboBoxComponent" << 18 << "helpText" << QVariant("Choose the mode")
                                   << "selectedIndexChanged(int) itemListChanged(QStringList) "
                                      "labelTextChanged(QString) helpTextChanged(QString)";
        // Kept as shipped: the signal display reports the double spin box type, not Signal (19).
        QTest::newRow("signal reports 10") << "SignalComponent" << 10 << "iconText" << QVariant("signal")
                                           << "buttonTextChanged(QString) buttonColorChanged(QString) "
                                              "labelTextChanged(QString) iconTextChanged(QString) "
                                              "backgroundColorChanged() backgroundColorChanged1() "
                                              "backgroundColorChanged2() backgroundColorChanged3() "
                                              "dataColorChanged() stateChanged(QString)";
        // clang-format on
    }

    // The type each class reports, one property that shows the constructor
    // arguments landed where they belong, and the order of its signals.
    void constructedState()
    {
        QFETCH(QString, className);
        QFETCH(QString, propertyName);
        QFETCH(QString, signalList);
        QObject owner;
        Element *element = createElement(className, &owner);
        QVERIFY(element);
        QTEST(int(element->typeID()), "type");
        QVERIFY(element->enabled() && element->visible());
        QTEST(element->property(propertyName.toLatin1()), "value");
        const QMetaObject *mo = element->metaObject();
        QStringList signalsFound;
        for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
            if (mo->method(i).methodType() == QMetaMethod::Signal)
                signalsFound << QString::fromLatin1(mo->method(i).methodSignature());
        }
        if (!signalList.isEmpty())
            QCOMPARE(signalsFound.join(QLatin1Char(' ')), signalList);
    }

    // Setters that neither restore() nor translate() reach; those two tables cover the others.
    void propertyPattern_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("propertyName");
        QTest::addColumn<QString>("notifyName");
        QTest::addColumn<QVariant>("newValue");
        // clang-format off
        QTest::newRow("url address") << "UrlElement" << "url" << "urlChanged" << QVariant("https://example.invalid/b");
        QTest::newRow("spin value unclamped") << "SpinBoxComponent" << "spinValue" << "spinValueChanged"
                                              << QVariant(1000);
        QTest::newRow("spin from") << "SpinBoxComponent" << "spinFrom" << "spinFromChanged" << QVariant(-3);
        QTest::newRow("spin to") << "SpinBoxComponent" << "spinTo" << "spinToChanged" << QVariant(50);
        QTest::newRow("spin step") << "SpinBoxComponent" << "step" << "stepChanged" << QVariant(5);
        QTest::newRow("spin typed text") << "SpinBoxComponent" << "textInput" << "vTextChanged" << QVariant("42");
        QTest::newRow("label text") << "LabelComponent" << "labelText" << "textChanged" << QVariant("Height");
        QTest::newRow("box colour") << "BoxComponent" << "buttonColor" << "buttonColorChanged" << QVariant("green");
        QTest::newRow("box button") << "BoxComponent" << "buttonText" << "buttonTextChanged" << QVariant("Stop");
        QTest::newRow("check to") << "CheckBoxComponent" << "spinTo" << "spinToChanged" << QVariant(3);
        QTest::newRow("signal label") << "SignalComponent" << "labelText" << "labelTextChanged" << QVariant("Level");
        QTest::newRow("signal colour") << "SignalComponent" << "buttonColor" << "buttonColorChanged" << QVariant("red");
        QTest::newRow("element enabled") << "SpacerElement" << "enabled" << "enabledChanged" << QVariant(false);
        QTest::newRow("element visible") << "TitleComponent" << "visible" << "visibleChanged" << QVariant(false);
        // clang-format on
    }

    // Writing the present value is silent; a new value is stored and announced once, with the value.
    void propertyPattern()
    {
        QFETCH(QString, className);
        QFETCH(QString, propertyName);
        QFETCH(QString, notifyName);
        QFETCH(QVariant, newValue);
        const QByteArray name = propertyName.toLatin1();
        QObject owner;
        Element *element = createElement(className, &owner);
        const QMetaProperty property = metaProperty(element, name);
        QVERIFY(property.isWritable());
        QCOMPARE(property.notifySignal().name(), notifyName.toLatin1());
        const auto spy = notifySpy(element, property);

        QVERIFY(element->setProperty(name, element->property(name)));
        QCOMPARE(spy->count(), 0);
        QVERIFY(element->setProperty(name, newValue));
        QVERIFY(element->setProperty(name, newValue));
        QCOMPARE(element->property(name), newValue);
        QCOMPARE(spy->count(), 1);
        QCOMPARE(spy->at(0).at(0), newValue);
    }

    void fuzzyDouble_data()
    {
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("next");
        QTest::addColumn<bool>("emits");
        // clang-format off
        QTest::newRow("1 vs 1 + 1e-14") << 1.0 << 1.0 + 1e-14 << false;
        QTest::newRow("1 vs 1 + 1e-11") << 1.0 << 1.0 + 1e-11 << true;
        QTest::newRow("relative at large values") << 1e9 << 1e9 + 1e-4 << false;
        QTest::newRow("negative values") << -5.0 << -5.0 * (1.0 + 1e-13) << false;
        QTest::newRow("zero vs zero") << 0.0 << 0.0 << false;
        QTest::newRow("zero vs tiny is a change") << 0.0 << 1e-300 << true;
        // clang-format on
    }

    // Every double of the spin box compares fuzzily; a value judged equal is not stored either.
    void fuzzyDouble()
    {
        QFETCH(double, start);
        QFETCH(double, next);
        QFETCH(bool, emits);
        QObject owner;
        DoubleSpinBoxComponent box(&owner, start, start, start, start, QString(), QString());
        for (const char *name : { "spinValue", "spinFrom", "spinTo", "step" }) {
            const auto spy = notifySpy(&box, metaProperty(&box, name));
            QVERIFY(box.setProperty(name, next));
            QVERIFY2(spy->count() == (emits ? 1 : 0), name);
            QCOMPARE(box.property(name).toDouble(), emits ? next : start);
        }
    }

    void restore_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("propertyName");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("changed");
        // clang-format off
        QTest::newRow("spin box") << "SpinBoxComponent" << "spinValue" << QVariant(5) << QVariant(9);
        QTest::newRow("double spin box") << "DoubleSpinBoxComponent" << "spinValue" << QVariant(1.5) << QVariant(3.0);
        QTest::newRow("switch") << "SwitchComponent" << "status" << QVariant(false) << QVariant(true);
        QTest::newRow("buttons") << "ButtonsComponent" << "selected"
                                 << QVariant::fromValue<uchar>(1) << QVariant::fromValue<uchar>(2);
        QTest::newRow("check box") << "CheckBoxComponent" << "spinValue" << QVariant(1) << QVariant(0);
        QTest::newRow("combo box") << "ComboBoxComponent" << "selectedIndex" << QVariant(0) << QVariant(2);
        // clang-format on
    }

    // Untouched: nothing to put back. Changed: put back and announced once, then never again.
    void restore()
    {
        QFETCH(QString, className);
        QFETCH(QString, propertyName);
        QFETCH(QVariant, stored);
        QFETCH(QVariant, changed);
        const QByteArray name = propertyName.toLatin1();
        QObject owner;
        Element *element = createElement(className, &owner);
        const auto spy = notifySpy(element, metaProperty(element, name));
        element->restore();
        QCOMPARE(spy->count(), 0);

        QVERIFY(element->setProperty(name, changed));
        spy->clear();
        element->restore();
        element->restore();
        QCOMPARE(element->property(name), stored);
        QCOMPARE(spy->count(), 1);
        QCOMPARE(spy->at(0).at(0), stored);
    }

    void translateTexts_data()
    {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("propertyName");
        QTest::addColumn<QVariant>("expected");
        // clang-format off
        QTest::newRow("title") << "TitleComponent" << "title" << QVariant("de:Exposure");
        QTest::newRow("description") << "DescriptionElement" << "description" << QVariant("de:Place the target");
        QTest::newRow("url text") << "UrlElement" << "text" << QVariant("de:Manual");
        QTest::newRow("double text") << "DoubleSpinBoxComponent" << "spinText" << QVariant("de:Offset");
        QTest::newRow("switch text") << "SwitchComponent" << "switchText" << QVariant("de:Laser on");
        QTest::newRow("switch icon") << "SwitchComponent" << "iconText" << QVariant("de:laser");
        QTest::newRow("label text") << "LabelComponent" << "labelText" << QVariant("de:Distance");
        QTest::newRow("label icon") << "LabelComponent" << "iconText" << QVariant("de:ruler");
        QTest::newRow("button text") << "ButtonComponent" << "buttonText" << QVariant("de:Teach");
        QTest::newRow("button label") << "ButtonComponent" << "labelText" << QVariant("de:Press to teach");
        QTest::newRow("buttons names") << "ButtonsComponent" << "names"
                                       << QVariant(QStringList { "de:Low", "de:Mid", "de:High" });
        QTest::newRow("box label") << "BoxComponent" << "labelText" << QVariant("de:Status");
        QTest::newRow("check text") << "CheckBoxComponent" << "spinText" << QVariant("de:Averaging");
        QTest::newRow("combo items") << "ComboBoxComponent" << "itemList"
                                     << QVariant(QStringList { "de:Standard", "de:Fast", "de:Precise" });
        QTest::newRow("combo help") << "ComboBoxComponent" << "helpText" << QVariant("de:Choose the mode");
        QTest::newRow("signal icon") << "SignalComponent" << "iconText" << QVariant("de:signal");
        // clang-format on
    }

    // Each text is looked up again from its source: once per real change, and
    // back to the source when the translator goes away.
    void translateTexts()
    {
        QFETCH(QString, className);
        QFETCH(QString, propertyName);
        const QByteArray name = propertyName.toLatin1();
        QFETCH(QVariant, expected);
        QObject owner;
        Element *element = createElement(className, &owner);
        const QMetaProperty property = metaProperty(element, name);
        QVERIFY(property.isWritable());
        const auto spy = notifySpy(element, property);
        QSignalSpy language(element, &Element::languageChanged);
        const QVariant source = element->property(name);

        element->translate(); // no translator: sources stay
        QCOMPARE(spy->count(), 0);

        PrefixTranslator german;
        QCoreApplication::installTranslator(&german);
        element->translate();
        element->translate();
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(spy->count(), 1);
        QCOMPARE(spy->at(0).at(0), expected);
        QCOMPARE(element->property(name), expected);
        // A component's own translate replaces the base one.
        QCOMPARE(language.count(), 0);

        element->translate();
        QCOMPARE(spy->count(), 2);
        QCOMPARE(element->property(name), source);
    }

    void spinBoxRetranslatesSpinTextFirst()
    {
        QObject owner;
        SpinBoxComponent box(&owner, 1, 0, 2, 1, QStringLiteral("icon"), QStringLiteral("spin"));
        QStringList order;
        connect(&box, &SpinBoxComponent::spinTextChanged, [&order](const QString &t) { order << t; });
        connect(&box, &SpinBoxComponent::iconTextChanged, [&order](const QString &t) { order << t; });
        PrefixTranslator german;
        QCoreApplication::installTranslator(&german);
        box.translate();
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(order, (QStringList { "de:spin", "de:icon" }));
    }

    void spinBoxViewSlots()
    {
        QObject owner;
        SpinBoxComponent box(&owner, 1, 0, 2, 1, QString(), QString());
        QSignalSpy button(&box, &SpinBoxComponent::emitButtonClicked);
        // The slot of the same name hides the signal from name lookups; the
        // element's own signal must fire all the same.
        QSignalSpy clicked(&box, &Element::elementClicked);
        QSignalSpy text(&box, &SpinBoxComponent::vTextChanged);
        QSignalSpy finished(&box, &SpinBoxComponent::editingFinished);

        // The view calls the slots by name, as QML and text connects do.
        QVERIFY(QMetaObject::invokeMethod(&box, "elementClicked"));
        QCOMPARE(button.count(), 1);
        QCOMPARE(clicked.count(), 1);

        QVERIFY(QMetaObject::invokeMethod(&box, "vTestFinished", Q_ARG(QString, QStringLiteral("12"))));
        QVERIFY(QMetaObject::invokeMethod(&box, "vTestFinished", Q_ARG(QString, QStringLiteral("12"))));
        QCOMPARE(box.textInput(), QStringLiteral("12"));
        QCOMPARE(text.count(), 1);
        QCOMPARE(finished.count(), 2);
    }

    void signalComponentQuirks()
    {
        QObject owner;
        SignalComponent signal(&owner, QStringLiteral("first"), QStringLiteral("icon"), QStringLiteral("third"));
        QCOMPARE(signal.labelText(), QStringLiteral("test"));
        QCOMPARE(signal.buttonText(), QStringLiteral("67847"));
        QCOMPARE(signal.buttonColor(), QString());
        QCOMPARE(int(signal.nisDefaultText()), 0);

        // Background colours start white and are announced on every write, even of the same colour.
        for (const char *name : { "backgroundColor", "backgroundColor1", "backgroundColor2", "backgroundColor3" }) {
            QCOMPARE(signal.property(name).toString(), QStringLiteral("white"));
            const auto spy = notifySpy(&signal, metaProperty(&signal, name));
            signal.setProperty(name, QStringLiteral("white"));
            signal.setProperty(name, QStringLiteral("white"));
            signal.setProperty(name, QStringLiteral("#00ff00"));
            QVERIFY2(spy->count() == 3, name);
            QCOMPARE(signal.property(name).toString(), QStringLiteral("#00ff00"));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Components)
#include "tst_components.moc"
