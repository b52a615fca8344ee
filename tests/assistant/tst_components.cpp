// SPDX-License-Identifier: LGPL-2.1-or-later
#include "componentfactory.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Assistant;
using TestSupport::createElement;

namespace {

//! Answers every assistant text with "de:" in front, and nothing in other contexts.
class PrefixTranslator : public QTranslator
{
public:
    QString translate(
        const char *context, const char *sourceText, const char *disambiguation = nullptr, int n = -1) const override
    {
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        if (qstrcmp(context, "AssistantManager") != 0)
            return QString();
        return QStringLiteral("de:") + QString::fromUtf8(sourceText);
    }
    bool isEmpty() const override { return false; }
};

QStringList ownSignals(const QMetaObject *mo)
{
    QStringList result;
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        const QMetaMethod method = mo->method(i);
        if (method.methodType() == QMetaMethod::Signal)
            result << QString::fromLatin1(method.methodSignature());
    }
    return result;
}

QSignalSpy *notifySpy(QObject *object, const QMetaProperty &property)
{
    return new QSignalSpy(
        object, QByteArray(QByteArray::number(QSIGNAL_CODE) + property.notifySignal().methodSignature()));
}

} // namespace

class tst_Components : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeIds_data();
    void typeIds();
    void signalOrder_data();
    void signalOrder();
    void propertyPattern_data();
    void propertyPattern();
    void fuzzyDouble_data();
    void fuzzyDouble();
    void restore_data();
    void restore();
    void translateTexts_data();
    void translateTexts();
    void spinBoxRetranslatesSpinTextFirst();
    void spinBoxViewSlots();
    void signalComponentQuirks();
    void constantsKeepConstructorValues();
};

void tst_Components::typeIds_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<int>("type");
    QTest::newRow("title") << "TitleComponent" << 0;
    QTest::newRow("spacer") << "SpacerElement" << 1;
    QTest::newRow("description") << "DescriptionElement" << 2;
    QTest::newRow("description with images") << "DescriptionComponent" << 3;
    QTest::newRow("url") << "UrlElement" << 7;
    QTest::newRow("spin box") << "SpinBoxComponent" << 9;
    QTest::newRow("double spin box") << "DoubleSpinBoxComponent" << 10;
    QTest::newRow("switch") << "SwitchComponent" << 11;
    QTest::newRow("label") << "LabelComponent" << 13;
    QTest::newRow("button") << "ButtonComponent" << 14;
    QTest::newRow("buttons") << "ButtonsComponent" << 15;
    QTest::newRow("box") << "BoxComponent" << 16;
    QTest::newRow("check box") << "CheckBoxComponent" << 17;
    QTest::newRow("combo box") << "ComboBoxComponent" << 18;
    // Kept as shipped: the signal display reports the double spin box type, not Signal (19).
    QTest::newRow("signal reports 10") << "SignalComponent" << 10;
}

void tst_Components::typeIds()
{
    QFETCH(QString, className);
    QFETCH(int, type);
    QObject owner;
    Element *element = createElement(className, &owner);
    QVERIFY(element);
    QCOMPARE(int(element->typeID()), type);
    QCOMPARE(element->property("typeID").toInt(), type);
    QVERIFY(element->enabled());
    QVERIFY(element->visible());
}

void tst_Components::signalOrder_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QStringList>("signalList");
    QTest::newRow("box") << "BoxComponent"
                         << QStringList { "buttonTextChanged(QString)", "buttonColorChanged(QString)",
                                "labelTextChanged(QString)", "iconTextChanged(QString)" };
    QTest::newRow("button") << "ButtonComponent"
                            << QStringList { "buttonTextChanged(QString)", "iconTextChanged(QString)",
                                   "labelTextChanged(QString)" };
    QTest::newRow("buttons") << "ButtonsComponent"
                             << QStringList { "selectedChanged(uchar)", "namesChanged(QStringList)",
                                    "iconTextChanged(QString)" };
    QTest::newRow("combo box") << "ComboBoxComponent"
                               << QStringList { "selectedIndexChanged(int)", "itemListChanged(QStringList)",
                                      "labelTextChanged(QString)", "helpTextChanged(QString)" };
    QTest::newRow("switch") << "SwitchComponent"
                            << QStringList { "statusChanged(bool)", "iconTextChanged(QString)",
                                   "switchTextChanged(QString)" };
    QTest::newRow("signal") << "SignalComponent"
                            << QStringList { "buttonTextChanged(QString)", "buttonColorChanged(QString)",
                                   "labelTextChanged(QString)", "iconTextChanged(QString)", "backgroundColorChanged()",
                                   "backgroundColorChanged1()", "backgroundColorChanged2()",
                                   "backgroundColorChanged3()", "dataColorChanged()", "stateChanged(QString)" };
    QTest::newRow("spin box") << "SpinBoxComponent"
                              << QStringList { "spinValueChanged(int)", "spinFromChanged(int)", "spinToChanged(int)",
                                     "stepChanged(int)", "iconTextChanged(QString)", "spinTextChanged(QString)",
                                     "emitButtonClicked()", "editingFinished()", "vTextChanged(QString)" };
}

void tst_Components::signalOrder()
{
    QFETCH(QString, className);
    QFETCH(QStringList, signalList);
    QObject owner;
    Element *element = createElement(className, &owner);
    QCOMPARE(ownSignals(element->metaObject()), signalList);
}

void tst_Components::propertyPattern_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QByteArray>("propertyName");
    QTest::addColumn<QByteArray>("notifySignal");
    QTest::addColumn<QVariant>("newValue");

    QTest::newRow("title") << "TitleComponent" << QByteArray("title") << QByteArray("titleChanged(QString)")
                           << QVariant("Gain");
    QTest::newRow("description") << "DescriptionElement" << QByteArray("description")
                                 << QByteArray("descriptionChanged(QString)") << QVariant("Other");
    QTest::newRow("extended description") << "DescriptionComponent" << QByteArray("description")
                                          << QByteArray("descriptionChanged(QString)") << QVariant("Other");
    QTest::newRow("url text") << "UrlElement" << QByteArray("text") << QByteArray("textChanged(QString)")
                              << QVariant("Help");
    QTest::newRow("url address") << "UrlElement" << QByteArray("url") << QByteArray("urlChanged(QString)")
                                 << QVariant("https://example.invalid/other");
    QTest::newRow("spin value") << "SpinBoxComponent" << QByteArray("spinValue") << QByteArray("spinValueChanged(int)")
                                << QVariant(7);
    QTest::newRow("spin value outside range")
        << "SpinBoxComponent" << QByteArray("spinValue") << QByteArray("spinValueChanged(int)") << QVariant(1000);
    QTest::newRow("spin from") << "SpinBoxComponent" << QByteArray("spinFrom") << QByteArray("spinFromChanged(int)")
                               << QVariant(-3);
    QTest::newRow("spin to") << "SpinBoxComponent" << QByteArray("spinTo") << QByteArray("spinToChanged(int)")
                             << QVariant(50);
    QTest::newRow("spin step") << "SpinBoxComponent" << QByteArray("step") << QByteArray("stepChanged(int)")
                               << QVariant(5);
    QTest::newRow("spin text") << "SpinBoxComponent" << QByteArray("spinText") << QByteArray("spinTextChanged(QString)")
                               << QVariant("Gain");
    QTest::newRow("spin icon") << "SpinBoxComponent" << QByteArray("iconText") << QByteArray("iconTextChanged(QString)")
                               << QVariant("s");
    QTest::newRow("spin typed text") << "SpinBoxComponent" << QByteArray("textInput")
                                     << QByteArray("vTextChanged(QString)") << QVariant("42");
    QTest::newRow("double value") << "DoubleSpinBoxComponent" << QByteArray("spinValue")
                                  << QByteArray("spinValueChanged(double)") << QVariant(2.25);
    QTest::newRow("double from") << "DoubleSpinBoxComponent" << QByteArray("spinFrom")
                                 << QByteArray("spinFromChanged(double)") << QVariant(-1.0);
    QTest::newRow("double to") << "DoubleSpinBoxComponent" << QByteArray("spinTo")
                               << QByteArray("spinToChanged(double)") << QVariant(20.0);
    QTest::newRow("double step") << "DoubleSpinBoxComponent" << QByteArray("step") << QByteArray("stepChanged(double)")
                                 << QVariant(0.1);
    QTest::newRow("double text") << "DoubleSpinBoxComponent" << QByteArray("spinText")
                                 << QByteArray("spinTextChanged(QString)") << QVariant("Zero");
    QTest::newRow("switch status") << "SwitchComponent" << QByteArray("status") << QByteArray("statusChanged(bool)")
                                   << QVariant(true);
    QTest::newRow("switch text") << "SwitchComponent" << QByteArray("switchText")
                                 << QByteArray("switchTextChanged(QString)") << QVariant("Laser off");
    QTest::newRow("switch icon") << "SwitchComponent" << QByteArray("iconText")
                                 << QByteArray("iconTextChanged(QString)") << QVariant("x");
    QTest::newRow("label text") << "LabelComponent" << QByteArray("labelText") << QByteArray("textChanged(QString)")
                                << QVariant("Height");
    QTest::newRow("label icon") << "LabelComponent" << QByteArray("iconText") << QByteArray("iconTextChanged(QString)")
                                << QVariant("y");
    QTest::newRow("button text") << "ButtonComponent" << QByteArray("buttonText")
                                 << QByteArray("buttonTextChanged(QString)") << QVariant("Again");
    QTest::newRow("button label") << "ButtonComponent" << QByteArray("labelText")
                                  << QByteArray("labelTextChanged(QString)") << QVariant("Once more");
    QTest::newRow("buttons selected") << "ButtonsComponent" << QByteArray("selected")
                                      << QByteArray("selectedChanged(uchar)") << QVariant::fromValue<uchar>(2);
    QTest::newRow("buttons names") << "ButtonsComponent" << QByteArray("names")
                                   << QByteArray("namesChanged(QStringList)") << QVariant(QStringList { "Off", "On" });
    QTest::newRow("box colour") << "BoxComponent" << QByteArray("buttonColor")
                                << QByteArray("buttonColorChanged(QString)") << QVariant("green");
    QTest::newRow("box button") << "BoxComponent" << QByteArray("buttonText")
                                << QByteArray("buttonTextChanged(QString)") << QVariant("Stop");
    QTest::newRow("box label") << "BoxComponent" << QByteArray("labelText") << QByteArray("labelTextChanged(QString)")
                               << QVariant("Run");
    QTest::newRow("check value") << "CheckBoxComponent" << QByteArray("spinValue")
                                 << QByteArray("spinValueChanged(int)") << QVariant(0);
    QTest::newRow("check to") << "CheckBoxComponent" << QByteArray("spinTo") << QByteArray("spinToChanged(int)")
                              << QVariant(3);
    QTest::newRow("combo index") << "ComboBoxComponent" << QByteArray("selectedIndex")
                                 << QByteArray("selectedIndexChanged(int)") << QVariant(2);
    QTest::newRow("combo items") << "ComboBoxComponent" << QByteArray("itemList")
                                 << QByteArray("itemListChanged(QStringList)") << QVariant(QStringList { "A" });
    QTest::newRow("combo help") << "ComboBoxComponent" << QByteArray("helpText")
                                << QByteArray("helpTextChanged(QString)") << QVariant("Pick one");
    QTest::newRow("signal label") << "SignalComponent" << QByteArray("labelText")
                                  << QByteArray("labelTextChanged(QString)") << QVariant("Level");
    QTest::newRow("signal button colour") << "SignalComponent" << QByteArray("buttonColor")
                                          << QByteArray("buttonColorChanged(QString)") << QVariant("red");
    QTest::newRow("element enabled") << "SpacerElement" << QByteArray("enabled") << QByteArray("enabledChanged(bool)")
                                     << QVariant(false);
    QTest::newRow("element visible") << "TitleComponent" << QByteArray("visible") << QByteArray("visibleChanged(bool)")
                                     << QVariant(false);
}

// Writing the present value is silent; a new value is stored and announced once, with the value.
void tst_Components::propertyPattern()
{
    QFETCH(QString, className);
    QFETCH(QByteArray, propertyName);
    QFETCH(QByteArray, notifySignal);
    QFETCH(QVariant, newValue);

    QObject owner;
    Element *element = createElement(className, &owner);
    const QMetaObject *mo = element->metaObject();
    const QMetaProperty property = mo->property(mo->indexOfProperty(propertyName.constData()));
    QVERIFY(property.isValid());
    QVERIFY(property.isWritable());
    QVERIFY(property.hasNotifySignal());
    QCOMPARE(property.notifySignal().methodSignature(), notifySignal);

    std::unique_ptr<QSignalSpy> spy(notifySpy(element, property));
    QVERIFY(spy->isValid());
    const QVariant before = element->property(propertyName.constData());
    QVERIFY(element->setProperty(propertyName.constData(), before));
    QCOMPARE(spy->count(), 0);

    QVERIFY(before != newValue);
    QVERIFY(element->setProperty(propertyName.constData(), newValue));
    QCOMPARE(element->property(propertyName.constData()), newValue);
    QCOMPARE(spy->count(), 1);
    if (property.notifySignal().parameterCount() == 1)
        QCOMPARE(spy->at(0).at(0), newValue);

    QVERIFY(element->setProperty(propertyName.constData(), newValue));
    QCOMPARE(spy->count(), 1);
}

void tst_Components::fuzzyDouble_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("next");
    QTest::addColumn<bool>("emits");
    QTest::newRow("1 vs 1 + 1e-14") << 1.0 << 1.0 + 1e-14 << false;
    QTest::newRow("1 vs 1 + 1e-11") << 1.0 << 1.0 + 1e-11 << true;
    QTest::newRow("relative at large values") << 1e9 << 1e9 + 1e-4 << false;
    QTest::newRow("negative values") << -5.0 << -5.0 * (1.0 + 1e-13) << false;
    QTest::newRow("zero vs zero") << 0.0 << 0.0 << false;
    QTest::newRow("zero vs tiny is a change") << 0.0 << 1e-300 << true;
    QTest::newRow("sign change") << 1e-20 << -1e-20 << true;
}

void tst_Components::fuzzyDouble()
{
    QFETCH(double, start);
    QFETCH(double, next);
    QFETCH(bool, emits);
    QObject owner;
    DoubleSpinBoxComponent box(&owner, start, start, start, start, QString(), QString());
    QSignalSpy values(&box, &DoubleSpinBoxComponent::spinValueChanged);
    QSignalSpy froms(&box, &DoubleSpinBoxComponent::spinFromChanged);
    QSignalSpy tos(&box, &DoubleSpinBoxComponent::spinToChanged);
    QSignalSpy steps(&box, &DoubleSpinBoxComponent::stepChanged);
    box.setSpinValue(next);
    box.setSpinFrom(next);
    box.setSpinTo(next);
    box.setStep(next);
    QCOMPARE(values.count(), emits ? 1 : 0);
    QCOMPARE(froms.count(), emits ? 1 : 0);
    QCOMPARE(tos.count(), emits ? 1 : 0);
    QCOMPARE(steps.count(), emits ? 1 : 0);
    // A value judged equal is not stored either.
    QCOMPARE(box.spinValue(), emits ? next : start);
}

void tst_Components::restore_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QByteArray>("propertyName");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("changed");
    QTest::newRow("spin box") << "SpinBoxComponent" << QByteArray("spinValue") << QVariant(5) << QVariant(9);
    QTest::newRow("double spin box") << "DoubleSpinBoxComponent" << QByteArray("spinValue") << QVariant(1.5)
                                     << QVariant(3.0);
    QTest::newRow("switch") << "SwitchComponent" << QByteArray("status") << QVariant(false) << QVariant(true);
    QTest::newRow("buttons") << "ButtonsComponent" << QByteArray("selected") << QVariant::fromValue<uchar>(1)
                             << QVariant::fromValue<uchar>(2);
    QTest::newRow("check box") << "CheckBoxComponent" << QByteArray("spinValue") << QVariant(1) << QVariant(0);
    QTest::newRow("combo box") << "ComboBoxComponent" << QByteArray("selectedIndex") << QVariant(0) << QVariant(2);
}

void tst_Components::restore()
{
    QFETCH(QString, className);
    QFETCH(QByteArray, propertyName);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, changed);
    QObject owner;
    Element *element = createElement(className, &owner);
    const QMetaObject *mo = element->metaObject();
    const QMetaProperty property = mo->property(mo->indexOfProperty(propertyName.constData()));
    std::unique_ptr<QSignalSpy> spy(notifySpy(element, property));

    // Untouched: nothing to put back.
    element->restore();
    QCOMPARE(spy->count(), 0);

    element->setProperty(propertyName.constData(), changed);
    spy->clear();
    element->restore();
    QCOMPARE(element->property(propertyName.constData()), stored);
    QCOMPARE(spy->count(), 1);
    QCOMPARE(spy->at(0).at(0), stored);
    element->restore();
    QCOMPARE(spy->count(), 1);

    // The stored value is the constructor's, whatever happened since.
    element->setProperty(propertyName.constData(), changed);
    element->restore();
    QCOMPARE(element->property(propertyName.constData()), stored);
}

void tst_Components::translateTexts_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QByteArray>("propertyName");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("title") << "TitleComponent" << QByteArray("title") << QVariant("de:Exposure");
    QTest::newRow("description") << "DescriptionElement" << QByteArray("description")
                                 << QVariant("de:Place the target");
    QTest::newRow("extended description")
        << "DescriptionComponent" << QByteArray("description") << QVariant("de:Look here");
    QTest::newRow("url text") << "UrlElement" << QByteArray("text") << QVariant("de:Manual");
    QTest::newRow("spin text") << "SpinBoxComponent" << QByteArray("spinText") << QVariant("de:Exposure time");
    QTest::newRow("spin icon") << "SpinBoxComponent" << QByteArray("iconText") << QVariant("de:ms");
    QTest::newRow("double text") << "DoubleSpinBoxComponent" << QByteArray("spinText") << QVariant("de:Offset");
    QTest::newRow("switch text") << "SwitchComponent" << QByteArray("switchText") << QVariant("de:Laser on");
    QTest::newRow("label text") << "LabelComponent" << QByteArray("labelText") << QVariant("de:Distance");
    QTest::newRow("button text") << "ButtonComponent" << QByteArray("buttonText") << QVariant("de:Teach");
    QTest::newRow("button label") << "ButtonComponent" << QByteArray("labelText") << QVariant("de:Press to teach");
    QTest::newRow("buttons names") << "ButtonsComponent" << QByteArray("names")
                                   << QVariant(QStringList { "de:Low", "de:Mid", "de:High" });
    QTest::newRow("box label") << "BoxComponent" << QByteArray("labelText") << QVariant("de:Status");
    QTest::newRow("check text") << "CheckBoxComponent" << QByteArray("spinText") << QVariant("de:Averaging");
    QTest::newRow("combo items") << "ComboBoxComponent" << QByteArray("itemList")
                                 << QVariant(QStringList { "de:Standard", "de:Fast", "de:Precise" });
    QTest::newRow("combo help") << "ComboBoxComponent" << QByteArray("helpText") << QVariant("de:Choose the mode");
    QTest::newRow("signal icon") << "SignalComponent" << QByteArray("iconText") << QVariant("de:signal");
}

// Each text is looked up again from its source: once per real change, and
// back to the source when the translator goes away.
void tst_Components::translateTexts()
{
    QFETCH(QString, className);
    QFETCH(QByteArray, propertyName);
    QFETCH(QVariant, expected);
    QObject owner;
    Element *element = createElement(className, &owner);
    const QMetaObject *mo = element->metaObject();
    const QMetaProperty property = mo->property(mo->indexOfProperty(propertyName.constData()));
    std::unique_ptr<QSignalSpy> spy(notifySpy(element, property));
    QSignalSpy language(element, &Element::languageChanged);
    const QVariant source = element->property(propertyName.constData());

    element->translate(); // no translator: sources stay
    QCOMPARE(spy->count(), 0);

    PrefixTranslator german;
    QCoreApplication::installTranslator(&german);
    element->translate();
    element->translate();
    QCoreApplication::removeTranslator(&german);
    QCOMPARE(spy->count(), 1);
    QCOMPARE(element->property(propertyName.constData()), expected);
    // A component's own translate replaces the base one.
    QCOMPARE(language.count(), 0);

    element->translate();
    QCOMPARE(spy->count(), 2);
    QCOMPARE(element->property(propertyName.constData()), source);
}

void tst_Components::spinBoxRetranslatesSpinTextFirst()
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

void tst_Components::spinBoxViewSlots()
{
    QObject owner;
    SpinBoxComponent box(&owner, 1, 0, 2, 1, QString(), QString());
    QSignalSpy button(&box, &SpinBoxComponent::emitButtonClicked);
    // The slot of the same name hides the signal from name lookups; the
    // element's own signal must fire all the same.
    QSignalSpy clicked(&box, &Element::elementClicked);
    QSignalSpy text(&box, &SpinBoxComponent::vTextChanged);
    QSignalSpy finished(&box, &SpinBoxComponent::editingFinished);
    QVERIFY(clicked.isValid());

    // The view calls the slot by name, as QML and text connects do.
    QVERIFY(QMetaObject::invokeMethod(&box, "elementClicked"));
    QCOMPARE(button.count(), 1);
    QCOMPARE(clicked.count(), 1);

    QVERIFY(QMetaObject::invokeMethod(&box, "vTestFinished", Q_ARG(QString, QStringLiteral("12"))));
    QVERIFY(QMetaObject::invokeMethod(&box, "vTestFinished", Q_ARG(QString, QStringLiteral("12"))));
    QCOMPARE(box.textInput(), QStringLiteral("12"));
    QCOMPARE(text.count(), 1);
    QCOMPARE(text.at(0).at(0).toString(), QStringLiteral("12"));
    QCOMPARE(finished.count(), 2);
}

void tst_Components::signalComponentQuirks()
{
    QObject owner;
    SignalComponent signal(&owner, QStringLiteral("first"), QStringLiteral("icon"), QStringLiteral("third"));
    QCOMPARE(int(signal.typeID()), int(Element::DoubleSpinBox));
    QCOMPARE(signal.labelText(), QStringLiteral("test"));
    QCOMPARE(signal.buttonText(), QStringLiteral("67847"));
    QCOMPARE(signal.buttonColor(), QString());
    QCOMPARE(signal.iconText(), QStringLiteral("icon"));
    QCOMPARE(int(signal.nisDefaultText()), 0);

    const struct
    {
        const char *property;
        const char *signal;
    } colours[] = { { "backgroundColor", SIGNAL(backgroundColorChanged()) },
        { "backgroundColor1", SIGNAL(backgroundColorChanged1()) },
        { "backgroundColor2", SIGNAL(backgroundColorChanged2()) },
        { "backgroundColor3", SIGNAL(backgroundColorChanged3()) } };
    for (const auto &colour : colours) {
        QCOMPARE(signal.property(colour.property).toString(), QStringLiteral("white"));
        QSignalSpy spy(&signal, colour.signal);
        QVERIFY(spy.isValid());
        // Same colour twice: both calls are announced.
        signal.setProperty(colour.property, QStringLiteral("white"));
        signal.setProperty(colour.property, QStringLiteral("white"));
        signal.setProperty(colour.property, QStringLiteral("#00ff00"));
        QCOMPARE(spy.count(), 3);
        QCOMPARE(signal.property(colour.property).toString(), QStringLiteral("#00ff00"));
    }
}

void tst_Components::constantsKeepConstructorValues()
{
    QObject owner;
    auto *title = static_cast<TitleComponent *>(createElement(QStringLiteral("TitleComponent"), &owner));
    QCOMPARE(title->icon(), QStringLiteral("clock.svg"));
    QCOMPARE(title->text(), QStringLiteral("hint"));
    auto *spacer = static_cast<SpacerElement *>(createElement(QStringLiteral("SpacerElement"), &owner));
    QCOMPARE(spacer->height(), 25);
    QCOMPARE(spacer->parent(), &owner);
    auto *images = static_cast<DescriptionComponent *>(createElement(QStringLiteral("DescriptionComponent"), &owner));
    QCOMPARE(images->images(), (QStringList { "a.png", "b.png" }));
    QVERIFY(qobject_cast<DescriptionElement *>(images));
    auto *label = static_cast<LabelComponent *>(createElement(QStringLiteral("LabelComponent"), &owner));
    QCOMPARE(int(label->xPos()), 12);
    auto *button = static_cast<ButtonComponent *>(createElement(QStringLiteral("ButtonComponent"), &owner));
    QVERIFY(button->alignRight());
    auto *buttons = static_cast<ButtonsComponent *>(createElement(QStringLiteral("ButtonsComponent"), &owner));
    QCOMPARE(int(buttons->columns()), 3);
    QCOMPARE(int(buttons->spacing()), 4);
    auto *box = static_cast<BoxComponent *>(createElement(QStringLiteral("BoxComponent"), &owner));
    QCOMPARE(box->buttonColor(), QStringLiteral("white"));

    const char *constants[] = { "icon", "height", "images", "xPos", "alignRight", "columns", "spacing" };
    for (QObject *child : owner.children()) {
        for (const char *name : constants) {
            const int index = child->metaObject()->indexOfProperty(name);
            if (index >= 0)
                QVERIFY2(child->metaObject()->property(index).isConstant(), name);
        }
    }
}

QTEST_GUILESS_MAIN(tst_Components)
#include "tst_components.moc"
