// SPDX-License-Identifier: LGPL-2.1-or-later
#include <assistant/abstractmanager.h>
#include <assistant/comboboxcomponent.h>
#include <assistant/descriptionelement.h>
#include <assistant/page.h>
#include <assistant/spacerelement.h>
#include <assistant/spinboxcomponent.h>
#include <assistant/switchcomponent.h>
#include <assistant/titlecomponent.h>

#include <QCoreApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using namespace Assistant;

namespace {

class TestAssistant : public AbstractManager
{
public:
    explicit TestAssistant(QObject *parent = nullptr)
        : AbstractManager(false, parent)
    { }
    void buildContent() override { }
    using AbstractManager::appendContent;
    using AbstractManager::setContent;

    Page *addPage(const QString &name, const QList<QObject *> &elements = {})
    {
        auto *page = new Page(this);
        page->setObjectName(name);
        page->setElements(elements);
        appendContent(page);
        return page;
    }
};

QStringList ownMethods(const QMetaObject *mo, QMetaMethod::MethodType type)
{
    QStringList result;
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        if (mo->method(i).methodType() == type)
            result << QString::fromLatin1(mo->method(i).methodSignature());
    }
    return result;
}

} // namespace

class tst_AbstractManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageDefaults();
    void pageSetElements();
    void pageAppendElements();
    void pageInsertElementsAt_data();
    void pageInsertElementsAt();
    void pageRemoveAndClear();
    void elementEnabledVisible();
    void managerInterface();
    void pageKinds_data();
    void pageKinds();
    void sameIndexIsIgnored();
    void badIndexesAreIgnored();
    void resetViewRestoresCurrentPage();
    void translateOrder();
    void lastPageContent();
    void germanLanguageSwitch();
    void clearContent();
};

void tst_AbstractManager::pageDefaults()
{
    Page page(nullptr);
    QCOMPARE(page.minimumSize(), QSize(370, 2160));
    QCOMPARE(page.property("minimumSize").toSize(), QSize(370, 2160));
    QVERIFY(page.elements().isEmpty());
    page.setMinimumSize(QSize(400, 800));
    QCOMPARE(page.minimumSize(), QSize(400, 800));
}

void tst_AbstractManager::pageSetElements()
{
    QObject owner;
    Page page(nullptr);
    auto *a = new SpacerElement(1, &owner);
    auto *b = new SpacerElement(2, &owner);
    QSignalSpy spy(&page, &Page::elementsChanged);
    page.setElements({ a, b });
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QObjectList>(), (QObjectList { a, b }));
    page.setElements({ a, b });
    QCOMPARE(spy.count(), 1);
    page.setElements({ b, a });
    QCOMPARE(spy.count(), 2);
    // The page lists its elements; it does not adopt them.
    QCOMPARE(a->parent(), &owner);
}

void tst_AbstractManager::pageAppendElements()
{
    QObject owner;
    Page page(nullptr);
    auto *a = new SpacerElement(1, &owner);
    auto *b = new SpacerElement(2, &owner);
    page.setElements({ a });
    QSignalSpy spy(&page, &Page::elementsChanged);

    QCOMPARE(page.appendElements({}), QObjectList { a });
    QCOMPARE(spy.count(), 0);

    // Already there: announced anyway, list unchanged.
    QCOMPARE(page.appendElements({ a }), QObjectList { a });
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QObjectList>(), QObjectList { a });

    QCOMPARE(page.appendElements({ b, a, b }), (QObjectList { a, b }));
    QCOMPARE(spy.count(), 2);
    QCOMPARE(page.elements(), (QObjectList { a, b }));
}

void tst_AbstractManager::pageInsertElementsAt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("expected");
    QTest::newRow("front") << 0 << true << "xyab";
    QTest::newRow("middle") << 1 << true << "axyb";
    QTest::newRow("at the count") << 2 << true << "abxy";
    QTest::newRow("past the count") << 3 << false << "ab";
    QTest::newRow("negative") << -1 << false << "ab";
}

void tst_AbstractManager::pageInsertElementsAt()
{
    QFETCH(int, index);
    QFETCH(bool, accepted);
    QFETCH(QString, expected);
    QObject owner;
    Page page(nullptr);
    QHash<QObject *, QChar> names;
    QObjectList made;
    for (QChar c : QStringLiteral("abxy")) {
        auto *e = new SpacerElement(0, &owner);
        names.insert(e, c);
        made << e;
    }
    page.setElements({ made[0], made[1] });
    QSignalSpy spy(&page, &Page::elementsChanged);
    const QObjectList result = page.insertElementsAt({ made[2], made[3] }, index);
    QString order;
    for (QObject *o : result)
        order += names.value(o);
    QCOMPARE(order, expected);
    QCOMPARE(result, page.elements());
    QCOMPARE(spy.count(), accepted ? 1 : 0);
}

void tst_AbstractManager::pageRemoveAndClear()
{
    QObject owner;
    Page page(nullptr);
    auto *a = new SpacerElement(1, &owner);
    auto *b = new SpacerElement(2, &owner);
    auto *stranger = new SpacerElement(3, &owner);
    page.setElements({ a, b });
    QSignalSpy spy(&page, &Page::elementsChanged);
    QCOMPARE(page.removeElements({ a, stranger }), QObjectList { b });
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<QObjectList>(), QObjectList { b });
    page.clearElements();
    QVERIFY(page.elements().isEmpty());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(b->parent(), &owner);
}

void tst_AbstractManager::elementEnabledVisible()
{
    SpacerElement element(10, nullptr);
    QSignalSpy enabled(&element, &Element::enabledChanged);
    QSignalSpy visible(&element, &Element::visibleChanged);
    QSignalSpy language(&element, &Element::languageChanged);
    element.setEnabled(true);
    element.setVisible(true);
    QCOMPARE(enabled.count() + visible.count(), 0);
    element.setEnabled(false);
    element.setVisible(false);
    element.setVisible(false);
    QCOMPARE(enabled.count(), 1);
    QCOMPARE(enabled.at(0).at(0).toBool(), false);
    QCOMPARE(visible.count(), 1);
    QCOMPARE(element.getForceTranslate(), QString());
    // An element without texts keeps the base translate: it only tells bindings.
    element.translate();
    QCOMPARE(language.count(), 1);
}

void tst_AbstractManager::managerInterface()
{
    const QMetaObject *mo = &AbstractManager::staticMetaObject;
    QCOMPARE(ownMethods(mo, QMetaMethod::Signal),
        (QStringList { "buttonTextChanged(QString)", "contentChanged(QObjectList)", "doEnableAssistant(bool)",
            "doEnableResetViewButton(bool)", "doSetTextViewButton(QString)", "minimumSizeChanged(QSize)",
            "modelDataChanged()", "doSetCurrentPage(int)", "languageChanged()" }));
    QCOMPARE(ownMethods(mo, QMetaMethod::Slot),
        (QStringList { "clearContent()", "resetView()", "resetViewClose()", "translate()", "setDefaltText(bool)",
            "keyPressed(int)", "onElementClicked()", "setCurrentPageIndex(uchar)", "sendDelayedRequest()" }));
    QCOMPARE(ownMethods(&Element::staticMetaObject, QMetaMethod::Signal),
        (QStringList { "elementClicked()", "languageChanged()", "enabledChanged(bool)", "visibleChanged(bool)" }));

    TestAssistant manager;
    QCOMPARE(manager.toolTip(), QString(QChar(0x0001)));
    QVERIFY(!manager.isDefault());
    QVERIFY(AbstractManager::staticMetaObject.property(mo->indexOfProperty("isDefault")).isConstant());
    QVERIFY(!manager.isDefaultText());
    manager.setDefaltText(true);
    QVERIFY(manager.property("isDefaultText").toBool());
    QCOMPARE(int(manager.currentPageIndex()), 0);
    QCOMPARE(int(manager.nisDefaultText()), 0);
    QVERIFY(!manager.passwordPage());
}

void tst_AbstractManager::pageKinds_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("password");
    QTest::newRow("password change") << "intro"
                                     << "PASSWORD_CHANGE" << 1 << true;
    QTest::newRow("save") << "PASSWORD_CHANGE"
                          << "SAVE" << 2 << false;
    QTest::newRow("teach") << "SAVE"
                           << "TEACH_PAGE" << 3 << false;
    QTest::newRow("other") << "TEACH_PAGE"
                           << "intro" << 0 << false;
    QTest::newRow("names are case-sensitive") << "TEACH_PAGE"
                                              << "save" << 0 << false;
    // The entry page keeps whatever code the page before it set.
    QTest::newRow("entry after teach keeps 3") << "TEACH_PAGE"
                                               << "PASSWORD_ENTRY" << 3 << true;
    QTest::newRow("entry after save keeps 2") << "SAVE"
                                              << "PASSWORD_ENTRY" << 2 << true;
    QTest::newRow("entry after change keeps 1") << "PASSWORD_CHANGE"
                                                << "PASSWORD_ENTRY" << 1 << true;
    QTest::newRow("entry after other keeps 0") << "intro"
                                               << "PASSWORD_ENTRY" << 0 << true;
}

void tst_AbstractManager::pageKinds()
{
    QFETCH(QString, before);
    QFETCH(QString, name);
    QFETCH(int, code);
    QFETCH(bool, password);
    TestAssistant manager;
    manager.addPage(QStringLiteral("start"));
    manager.addPage(before);
    Page *target = manager.addPage(name);
    target->setMinimumSize(QSize(500, 900));
    QSignalSpy sizes(&manager, &AbstractManager::minimumSizeChanged);

    manager.setCurrentPageIndex(1);
    manager.setCurrentPageIndex(2);
    QCOMPARE(int(manager.currentPageIndex()), 2);
    QCOMPARE(int(manager.nisDefaultText()), code);
    QCOMPARE(manager.property("nisDefaultText").toInt(), code);
    QCOMPARE(manager.passwordPage(), password);
    QCOMPARE(sizes.count(), 2);
    QCOMPARE(sizes.at(0).at(0).toSize(), QSize(370, 2160));
    QCOMPARE(sizes.at(1).at(0).toSize(), QSize(500, 900));
}

void tst_AbstractManager::sameIndexIsIgnored()
{
    TestAssistant manager;
    manager.addPage(QStringLiteral("TEACH_PAGE"));
    QSignalSpy sizes(&manager, &AbstractManager::minimumSizeChanged);
    manager.setCurrentPageIndex(0);
    QCOMPARE(sizes.count(), 0);
    QCOMPARE(int(manager.nisDefaultText()), 0);
    // Classifying directly works for the page already current.
    manager.updateMinimumSize(0);
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(int(manager.nisDefaultText()), 3);
}

void tst_AbstractManager::badIndexesAreIgnored()
{
    TestAssistant manager;
    manager.addPage(QStringLiteral("TEACH_PAGE"));
    auto *notAPage = new QObject(&manager);
    notAPage->setObjectName(QStringLiteral("SAVE"));
    manager.appendContent(notAPage);
    manager.appendContent(nullptr);
    QSignalSpy sizes(&manager, &AbstractManager::minimumSizeChanged);
    manager.updateMinimumSize(0);
    QCOMPARE(sizes.count(), 1);
    manager.updateMinimumSize(1);
    manager.updateMinimumSize(2);
    manager.updateMinimumSize(255);
    manager.setCurrentPageIndex(200);
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(int(manager.nisDefaultText()), 3);
    QCOMPARE(int(manager.currentPageIndex()), 200);
    manager.resetView(); // out of range: nothing to restore, nothing to crash on
}

void tst_AbstractManager::resetViewRestoresCurrentPage()
{
    TestAssistant manager;
    auto *spin = new SpinBoxComponent(&manager, 5, 0, 10, 1, QString(), QString());
    auto *toggle = new SwitchComponent(&manager, true, QString(), QString());
    auto *combo
        = new ComboBoxComponent(&manager, { QStringLiteral("a"), QStringLiteral("b") }, 1, QString(), QString());
    auto *plain = new QObject(&manager);
    manager.addPage(QStringLiteral("first"), { spin, plain, nullptr, toggle });
    manager.addPage(QStringLiteral("second"), { combo });
    spin->setSpinValue(9);
    toggle->setStatus(false);
    combo->setSelectedIndex(0);

    QStringList order;
    connect(spin, &SpinBoxComponent::spinValueChanged, [&order] { order << QStringLiteral("spin"); });
    connect(toggle, &SwitchComponent::statusChanged, [&order] { order << QStringLiteral("switch"); });
    connect(combo, &ComboBoxComponent::selectedIndexChanged, [&order] { order << QStringLiteral("combo"); });
    manager.resetView();
    QCOMPARE(order, (QStringList { "spin", "switch" }));
    QCOMPARE(spin->spinValue(), 5);
    QVERIFY(toggle->status());
    QCOMPARE(combo->selectedIndex(), 0);

    manager.setCurrentPageIndex(1);
    manager.resetView();
    manager.resetView();
    QCOMPARE(order, (QStringList { "spin", "switch", "combo" }));
    QCOMPARE(combo->selectedIndex(), 1);

    // A null page is skipped.
    manager.setContent({ nullptr, nullptr });
    manager.resetView();
}

void tst_AbstractManager::translateOrder()
{
    TestAssistant manager;
    auto *a = new SpacerElement(1, &manager);
    auto *b = new SpacerElement(2, &manager);
    auto *c = new SpacerElement(3, &manager);
    manager.addPage(QStringLiteral("one"), { b, a });
    manager.appendContent(new QObject(&manager));
    manager.addPage(QStringLiteral("two"), { c });
    QStringList order;
    connect(&manager, &AbstractManager::languageChanged, [&order] { order << QStringLiteral("manager"); });
    for (SpacerElement *e : { a, b, c })
        connect(e, &Element::languageChanged, [&order, e] { order << QString::number(e->height()); });
    manager.translate();
    QCOMPARE(order, (QStringList { "manager", "2", "1", "3" }));
}

void tst_AbstractManager::lastPageContent()
{
    TestAssistant manager;
    manager.addPage(QStringLiteral("intro"));
    QSignalSpy content(&manager, &AbstractManager::contentChanged);
    manager.buildLastPageContent(QStringLiteral("ignored"), QStringLiteral("also ignored"));
    QCOMPARE(content.count(), 1);
    QCOMPARE(manager.content().size(), 2);
    QCOMPARE(content.at(0).at(0).value<QObjectList>(), manager.content());

    auto *page = qobject_cast<Page *>(manager.content().at(1));
    QVERIFY(page);
    QCOMPARE(page->objectName(), QStringLiteral("SAVE"));
    QCOMPARE(page->parent(), &manager);
    const QObjectList elements = page->elements();
    QCOMPARE(elements.size(), 5);
    const int heights[] = { 40, -1, 30, -1, 40 };
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(elements.at(i)->parent(), &manager);
        if (heights[i] >= 0) {
            auto *spacer = qobject_cast<SpacerElement *>(elements.at(i));
            QVERIFY(spacer);
            QCOMPARE(spacer->height(), heights[i]);
        }
    }
    auto *title = qobject_cast<TitleComponent *>(elements.at(1));
    QVERIFY(title);
    QCOMPARE(title->title(), QStringLiteral("Save"));
    auto *description = qobject_cast<DescriptionElement *>(elements.at(3));
    QVERIFY(description);
    QCOMPARE(int(description->typeID()), int(Element::Description));
    QCOMPARE(description->description(), QStringLiteral("Do you want to save the settings ?"));

    manager.setCurrentPageIndex(1);
    QCOMPARE(int(manager.nisDefaultText()), 2);
}

// The German catalogue built into the library, switched on and off at run time.
void tst_AbstractManager::germanLanguageSwitch()
{
    TestAssistant manager;
    manager.buildLastPageContent(QString(), QString());
    auto *page = qobject_cast<Page *>(manager.content().constFirst());
    auto *title = qobject_cast<TitleComponent *>(page->elements().at(1));
    auto *description = qobject_cast<DescriptionElement *>(page->elements().at(3));
    QSignalSpy titles(title, &TitleComponent::titleChanged);
    QSignalSpy descriptions(description, &DescriptionElement::descriptionChanged);

    QTranslator german;
    QVERIFY(german.load(QStringLiteral(":/translations/utils_de.qm")));
    QVERIFY(QCoreApplication::installTranslator(&german));
    manager.translate();
    manager.translate();
    QCOMPARE(titles.count(), 1);
    QCOMPARE(titles.at(0).at(0).toString(), QStringLiteral("Speichern"));
    QCOMPARE(title->title(), QStringLiteral("Speichern"));
    QCOMPARE(descriptions.count(), 1);
    QCOMPARE(description->description(), QStringLiteral("Möchten Sie die Einstellungen speichern ?"));

    QCoreApplication::removeTranslator(&german);
    manager.translate();
    QCOMPARE(titles.count(), 2);
    QCOMPARE(title->title(), QStringLiteral("Save"));
}

void tst_AbstractManager::clearContent()
{
    TestAssistant manager;
    QPointer<Page> page = manager.addPage(QStringLiteral("one"));
    QSignalSpy content(&manager, &AbstractManager::contentChanged);
    manager.clearContent();
    QVERIFY(manager.content().isEmpty());
    QVERIFY(page); // still owned by the manager
    QCOMPARE(content.count(), 1);
    manager.clearContent();
    QCOMPARE(content.count(), 1);
}

QTEST_GUILESS_MAIN(tst_AbstractManager)
#include "tst_abstractmanager.moc"
