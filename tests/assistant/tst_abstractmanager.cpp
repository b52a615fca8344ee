// SPDX-License-Identifier: LGPL-2.1-or-later
#include <assistant/abstractmanager.h>
#include <assistant/comboboxcomponent.h>
#include <assistant/descriptionelement.h>
#include <assistant/page.h>
#include <assistant/spacerelement.h>
#include <assistant/spinboxcomponent.h>
#include <assistant/switchcomponent.h>

#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace Assistant;

namespace {

class TestAssistant : public AbstractManager
{
public:
    TestAssistant()
        : AbstractManager(false, nullptr)
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
    void pageListOperations_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("argument");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<bool>("emits");
        // clang-format off
        QTest::newRow("set same list") << "set" << "ab" << 0 << "ab" << false;
        QTest::newRow("set reordered") << "set" << "ba" << 0 << "ba" << true;
        QTest::newRow("append nothing") << "append" << "" << 0 << "ab" << false;
        // Already there: announced anyway, list unchanged.
        QTest::newRow("append present") << "append" << "a" << 0 << "ab" << true;
        QTest::newRow("append skips duplicates") << "append" << "xax" << 0 << "abx" << true;
        QTest::newRow("insert at front") << "insert" << "xy" << 0 << "xyab" << true;
        QTest::newRow("insert in the middle") << "insert" << "xy" << 1 << "axyb" << true;
        QTest::newRow("insert at the count") << "insert" << "xy" << 2 << "abxy" << true;
        QTest::newRow("insert past the count") << "insert" << "xy" << 3 << "ab" << false;
        QTest::newRow("insert at negative index") << "insert" << "xy" << -1 << "ab" << false;
        QTest::newRow("remove ignores strangers") << "remove" << "ax" << 0 << "b" << true;
        // clang-format on
    }

    // A page starting with elements "ab" (spacers named by letter); every list
    // operation returns the whole list and announces it when it changed.
    void pageListOperations()
    {
        QFETCH(QString, operation);
        QFETCH(QString, argument);
        QFETCH(int, index);
        QFETCH(QString, expected);
        QFETCH(bool, emits);
        QObject owner;
        QHash<QChar, QObject *> byName;
        for (QChar c : QStringLiteral("abxy"))
            byName.insert(c, new SpacerElement(0, &owner));
        const auto elements = [&byName](const QString &names) {
            QObjectList list;
            for (QChar c : names)
                list << byName.value(c);
            return list;
        };
        Page page(nullptr);
        page.setElements(elements(QStringLiteral("ab")));
        QSignalSpy spy(&page, &Page::elementsChanged);

        const QObjectList given = elements(argument);
        if (operation == QLatin1String("set"))
            page.setElements(given);
        else if (operation == QLatin1String("append"))
            QCOMPARE(page.appendElements(given), elements(expected));
        else if (operation == QLatin1String("insert"))
            QCOMPARE(page.insertElementsAt(given, index), elements(expected));
        else
            QCOMPARE(page.removeElements(given), elements(expected));
        QCOMPARE(page.elements(), elements(expected));
        QCOMPARE(spy.count(), emits ? 1 : 0);
        if (emits)
            QCOMPARE(spy.at(0).at(0).value<QObjectList>(), elements(expected));

        page.clearElements();
        QVERIFY(page.elements().isEmpty());
        QCOMPARE(spy.count(), emits ? 1 : 0);
        // The page lists its elements; it does not adopt them.
        QCOMPARE(byName.value(QLatin1Char('a'))->parent(), &owner);
    }

    void managerInterface()
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
        // Deliberately not empty: concrete assistants override the text they show.
        QCOMPARE(manager.toolTip(), QString(QChar(0x0001)));
        QVERIFY(mo->property(mo->indexOfProperty("isDefault")).isConstant());
        QVERIFY(!manager.isDefaultText());
        manager.setDefaltText(true);
        QVERIFY(manager.property("isDefaultText").toBool());
    }

    void pageKinds_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("password");
        // clang-format off
        QTest::newRow("password change") << "intro" << "PASSWORD_CHANGE" << 1 << true;
        QTest::newRow("save") << "PASSWORD_CHANGE" << "SAVE" << 2 << false;
        QTest::newRow("teach") << "SAVE" << "TEACH_PAGE" << 3 << false;
        QTest::newRow("other") << "TEACH_PAGE" << "intro" << 0 << false;
        QTest::newRow("names are case-sensitive") << "TEACH_PAGE" << "save" << 0 << false;
        // The entry page keeps whatever code the page before it set.
        QTest::newRow("entry after teach keeps 3") << "TEACH_PAGE" << "PASSWORD_ENTRY" << 3 << true;
        QTest::newRow("entry after change keeps 1") << "PASSWORD_CHANGE" << "PASSWORD_ENTRY" << 1 << true;
        // clang-format on
    }

    void pageKinds()
    {
        QFETCH(QString, before);
        QFETCH(QString, name);
        TestAssistant manager;
        manager.addPage(QStringLiteral("start"));
        manager.addPage(before);
        manager.addPage(name)->setMinimumSize(QSize(500, 900));
        QSignalSpy sizes(&manager, &AbstractManager::minimumSizeChanged);

        manager.setCurrentPageIndex(1);
        manager.setCurrentPageIndex(2);
        QTEST(manager.property("nisDefaultText").toInt(), "code");
        QTEST(manager.passwordPage(), "password");
        QCOMPARE(sizes.count(), 2);
        QCOMPARE(sizes.at(0).at(0).toSize(), QSize(370, 2160));
        QCOMPARE(sizes.at(1).at(0).toSize(), QSize(500, 900));
    }

    // The present index, indexes outside the content and entries that are no page change nothing.
    void ignoredPageChanges()
    {
        TestAssistant manager;
        manager.addPage(QStringLiteral("TEACH_PAGE"));
        auto *notAPage = new QObject(&manager);
        notAPage->setObjectName(QStringLiteral("SAVE"));
        manager.appendContent(notAPage);
        manager.appendContent(nullptr);
        QSignalSpy sizes(&manager, &AbstractManager::minimumSizeChanged);
        manager.setCurrentPageIndex(0);
        QCOMPARE(sizes.count(), 0);
        QCOMPARE(int(manager.nisDefaultText()), 0);

        // Classifying directly works for the page already current.
        manager.updateMinimumSize(0);
        QCOMPARE(int(manager.nisDefaultText()), 3);

        for (unsigned char index : { 1, 2, 255 })
            manager.updateMinimumSize(index);
        manager.setCurrentPageIndex(200);
        QCOMPARE(sizes.count(), 1);
        QCOMPARE(int(manager.nisDefaultText()), 3);
        QCOMPARE(int(manager.currentPageIndex()), 200);
        manager.resetView(); // out of range: nothing to restore, nothing to crash on
    }

    void resetViewRestoresCurrentPage()
    {
        TestAssistant manager;
        auto *spin = new SpinBoxComponent(&manager, 5, 0, 10, 1, QString(), QString());
        auto *toggle = new SwitchComponent(&manager, true, QString(), QString());
        auto *combo = new ComboBoxComponent(&manager, { "a", "b" }, 1, QString(), QString());
        manager.addPage(QStringLiteral("first"), { spin, new QObject(&manager), nullptr, toggle });
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

        manager.setCurrentPageIndex(1);
        manager.resetView();
        QCOMPARE(order, (QStringList { "spin", "switch", "combo" }));

        // A null page is skipped.
        manager.setContent({ nullptr, nullptr });
        manager.resetView();
    }

    void translateOrder()
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
        // Spacers keep the base translate, which only tells bindings.
        for (SpacerElement *e : { a, b, c })
            connect(e, &Element::languageChanged, [&order, e] { order << QString::number(e->height()); });
        manager.translate();
        QCOMPARE(order, (QStringList { "manager", "2", "1", "3" }));
    }

    void lastPageContentAndClear()
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
        QList<int> types;
        for (QObject *object : page->elements()) {
            QCOMPARE(object->parent(), &manager);
            types << qobject_cast<Element *>(object)->typeID();
        }
        QCOMPARE(types,
            (QList<int> { Element::Spacer, Element::Title, Element::Spacer, Element::Description, Element::Spacer }));
        const auto heightOf = [page](int i) { return qobject_cast<SpacerElement *>(page->elements().at(i))->height(); };
        QCOMPARE((QList<int> { heightOf(0), heightOf(2), heightOf(4) }), (QList<int> { 40, 30, 40 }));
        // The title "Save" is checked through QML; the blank before the question mark is kept.
        QCOMPARE(qobject_cast<DescriptionElement *>(page->elements().at(3))->description(),
            QStringLiteral("Do you want to save the settings ?"));

        // Clearing drops the list, once; the pages stay with their parent.
        QPointer<Page> kept(page);
        manager.clearContent();
        manager.clearContent();
        QVERIFY(manager.content().isEmpty());
        QVERIFY(kept);
        QCOMPARE(content.count(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_AbstractManager)
#include "tst_abstractmanager.moc"
