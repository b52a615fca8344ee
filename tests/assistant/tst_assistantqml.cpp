// SPDX-License-Identifier: LGPL-2.1-or-later
// The assistant model seen through a real QML engine, as the host's view sees it.
#include "testhelpers.h"

#include <assistant/abstractmanager.h>
#include <assistant/buttonscomponent.h>
#include <assistant/comboboxcomponent.h>
#include <assistant/doublespinboxcomponent.h>
#include <assistant/page.h>
#include <assistant/spinboxcomponent.h>
#include <assistant/switchcomponent.h>

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QTest>

#include <memory>

using namespace Assistant;

namespace {

//! A two-page teach-in followed by the closing save page.
class TeachAssistant : public AbstractManager
{
public:
    TeachAssistant()
        : AbstractManager(true, nullptr)
    { }

    void buildContent() override
    {
        spin = new SpinBoxComponent(this, 20, 1, 100, 1, "ms", "Exposure");
        level = new DoubleSpinBoxComponent(this, 0.5, 0.0, 1.0, 0.05, QString(), "Level");
        laser = new SwitchComponent(this, false, QString(), "Laser");
        mode = new ComboBoxComponent(this, { "Standard", "Fast" }, 0, "Mode", QString());
        speed = new ButtonsComponent(this, 0, { "Slow", "Fast" }, QString(), 2, 4);
        auto *page = new Page(this);
        page->setObjectName(QStringLiteral("TEACH_PAGE"));
        page->setElements({ spin, level, laser, mode, speed });
        setContent({ page });
        buildLastPageContent(QString(), QString());
    }

    SpinBoxComponent *spin = nullptr;
    DoubleSpinBoxComponent *level = nullptr;
    SwitchComponent *laser = nullptr;
    ComboBoxComponent *mode = nullptr;
    ButtonsComponent *speed = nullptr;
};

} // namespace

class tst_AssistantQml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Element::registerQmlElement();
        m_engine = new QQmlEngine(this);
    }

    void enumValues_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("value");
        const char *names[] = { "Title", "Spacer", "Description", "DescriptionExtended", "Int_1", "NextModule",
            "CloseAssistant", "Url", "Separator", "SpinBox", "DoubleSpinBox", "Switch", "Icon", "Label", "Button",
            "Buttons", "Box", "CheckBox", "ComboBox", "Signal" };
        for (int i = 0; i < 20; ++i)
            QTest::newRow(names[i]) << QByteArray(names[i]) << i;
    }

    void enumValues()
    {
        QFETCH(QByteArray, name);
        const std::unique_ptr<QObject> object
            = load("import QtQml 2.0\nimport Element 1.0\nQtObject { property int v: Element." + name + " }");
        QVERIFY(object);
        QTEST(object->property("v").toInt(), "value");
    }

    void elementIsUncreatable()
    {
        QQmlComponent component(m_engine);
        component.setData("import QtQml 2.0\nimport Element 1.0\nElement {}", QUrl(QStringLiteral("qrc:/create.qml")));
        QVERIFY(component.isError());
        QVERIFY2(component.errorString().contains(QLatin1String("Element type object cannot be created.")),
            qPrintable(component.errorString()));
    }

    void contentBinding()
    {
        TeachAssistant manager;
        QQmlContext context(m_engine->rootContext());
        context.setContextProperty(QStringLiteral("assistant"), &manager);
        const std::unique_ptr<QObject> view = load(R"(
    import QtQml 2.0
    import Element 1.0
    QtObject {
        property int pages: assistant.content.length
        property int teachElements: pages > 0 ? assistant.content[0].elements.length : -1
        property string lastTitle: pages > 1 ? assistant.content[pages - 1].elements[1].title : ""
        property bool firstIsSpinBox: teachElements > 0 && assistant.content[0].elements[0].typeID === Element.SpinBox
        property bool isDefault: assistant.isDefault
        property int sizeChanges: 0
        property var connections: Connections {
            target: assistant
            function onMinimumSizeChanged(size) { sizeChanges += 1 }
        }
        function goTo(index) { assistant.setCurrentPageIndex(index) }
        function tip() { return assistant.toolTip() }
    })",
            &context);
        QVERIFY(view);
        QCOMPARE(view->property("pages").toInt(), 0);

        manager.buildContent();
        QCOMPARE(view->property("pages").toInt(), 2);
        QCOMPARE(view->property("teachElements").toInt(), 5);
        QCOMPARE(view->property("lastTitle").toString(), QStringLiteral("Save"));
        QVERIFY(view->property("firstIsSpinBox").toBool());
        QVERIFY(view->property("isDefault").toBool());

        auto *page = qobject_cast<Page *>(manager.content().constFirst());
        page->removeElements({ manager.level });
        QCOMPARE(view->property("teachElements").toInt(), 4);

        // The view calls the manager's slots and invokables and hears its signals.
        QVERIFY(QMetaObject::invokeMethod(view.get(), "goTo", Q_ARG(QVariant, 1)));
        QCOMPARE(int(manager.nisDefaultText()), 2);
        QCOMPARE(view->property("sizeChanges").toInt(), 1);
        QVariant tip;
        QVERIFY(QMetaObject::invokeMethod(view.get(), "tip", Q_RETURN_ARG(QVariant, tip)));
        QCOMPARE(tip.toString(), QString(QChar(0x0001)));

        manager.clearContent();
        QCOMPARE(view->property("pages").toInt(), 0);
    }

    void twoWayProperties()
    {
        TeachAssistant manager;
        manager.buildContent();
        QQmlContext context(m_engine->rootContext());
        context.setContextProperty(QStringLiteral("spin"), manager.spin);
        context.setContextProperty(QStringLiteral("level"), manager.level);
        context.setContextProperty(QStringLiteral("laser"), manager.laser);
        context.setContextProperty(QStringLiteral("mode"), manager.mode);
        context.setContextProperty(QStringLiteral("speed"), manager.speed);
        const std::unique_ptr<QObject> view = load(R"(
    import QtQml 2.0
    QtObject {
        property int spinShown: spin.spinValue
        property int speedShown: speed.selected
        property string modeName: mode.itemList[mode.selectedIndex]
        function userEdits() {
            spin.spinValue = 42
            level.spinValue = 0.75
            laser.status = true
            mode.selectedIndex = 1
            speed.selected = 1
        }
    })",
            &context);
        QVERIFY(view);
        QCOMPARE(view->property("spinShown").toInt(), 20);
        QCOMPARE(view->property("modeName").toString(), QStringLiteral("Standard"));

        QVERIFY(QMetaObject::invokeMethod(view.get(), "userEdits"));
        QCOMPARE(manager.spin->spinValue(), 42);
        QCOMPARE(manager.level->spinValue(), 0.75);
        QVERIFY(manager.laser->status());
        QCOMPARE(manager.mode->selectedIndex(), 1);
        QCOMPARE(int(manager.speed->selected()), 1);
        // And the QML side follows its own writes through the notifications.
        QCOMPARE(view->property("modeName").toString(), QStringLiteral("Fast"));
        QCOMPARE(view->property("speedShown").toInt(), 1);

        // Reset from C++ reaches the view again (every component's notification is checked in C++).
        manager.resetView();
        QCOMPARE(view->property("spinShown").toInt(), 20);
        QCOMPARE(view->property("speedShown").toInt(), 0);
    }

    void languageSwitchReachesBindings()
    {
        TeachAssistant manager;
        manager.buildContent();
        QQmlContext context(m_engine->rootContext());
        context.setContextProperty(QStringLiteral("assistant"), &manager);
        const std::unique_ptr<QObject> view = load(R"(
    import QtQml 2.0
    QtObject {
        property int titleChanges: -1
        property string title: assistant.content[1].elements[1].title
        onTitleChanged: titleChanges += 1
        property string question: assistant.content[1].elements[3].description
    })",
            &context);
        QVERIFY(view);
        QCOMPARE(view->property("title").toString(), QStringLiteral("Save"));

        {
            TestSupport::GermanTranslation german;
            QVERIFY(german.isLoaded());
            manager.translate();
            manager.translate();
        }
        QCOMPARE(view->property("title").toString(), QStringLiteral("Speichern"));
        QCOMPARE(view->property("question").toString(), QStringLiteral("Möchten Sie die Einstellungen speichern?"));
        QCOMPARE(view->property("titleChanges").toInt(), 1);
    }

private:
    std::unique_ptr<QObject> load(const QByteArray &qml, QQmlContext *context = nullptr)
    {
        QQmlComponent component(m_engine);
        component.setData(qml, QUrl(QStringLiteral("qrc:/test.qml")));
        std::unique_ptr<QObject> object(component.create(context));
        if (!object)
            qWarning() << component.errorString();
        return object;
    }
    QQmlEngine *m_engine = nullptr;
};

QTEST_MAIN(tst_AssistantQml)
#include "tst_assistantqml.moc"
