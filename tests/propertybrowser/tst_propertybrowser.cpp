// SPDX-License-Identifier: LGPL-2.1-or-later
#include "qtpropertybrowser.h"
#include "qttreepropertybrowser.h"

#include "testhelpers.h"
#include "treebrowserdriver.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <memory>

using TestSupport::TreeBrowserDriver;

namespace {

//! Text values; a property named "group" only groups others and has none.
class TextManager : public QtAbstractPropertyManager
{
public:
    QString value(const QtProperty *property) const { return m_values.value(property); }
    void setValue(QtProperty *property, const QString &value)
    {
        m_values.insert(property, value);
        Q_EMIT propertyChanged(property);
    }
    int known() const { return m_values.size(); }

protected:
    bool hasValue(const QtProperty *property) const override { return property->propertyName() != "group"; }
    QString valueText(const QtProperty *property) const override { return value(property); }
    void initializeProperty(QtProperty *property) override { m_values.insert(property, QString()); }
    void uninitializeProperty(QtProperty *property) override { m_values.remove(property); }

private:
    QMap<const QtProperty *, QString> m_values;
};

//! Line edits with the value; counts the editors and logs what browsers ask of it.
class LineFactory : public QtAbstractEditorFactory<TextManager>
{
public:
    LineFactory()
        : QtAbstractEditorFactory<TextManager>(nullptr)
    { }
    int created = 0;
    QStringList log;

protected:
    void connectPropertyManager(TextManager *) override { log << "connect"; }
    QWidget *createEditor(TextManager *manager, QtProperty *property, QWidget *parent) override
    {
        ++created;
        return new QLineEdit(manager->value(property), parent);
    }
    void disconnectPropertyManager(TextManager *) override { log << "disconnect"; }
};

QString nameOf(const QtProperty *property)
{
    return property ? property->propertyName() : QStringLiteral("-");
}

/*!
    Properties a to e (values A to E) and g (named "group") of one manager, the
    manager's signals in order, and a script of changes: "a<b" adds b under a,
    "a<c@b" inserts c after b ("@-": first), "a-b" removes b from a, "~b" deletes
    b, "b=X" sets a value, "a*z" renames, "b!" disables, "~manager" deletes the
    manager; in a browser "+a" adds a, "+c@a" inserts c after a, "-a" removes a,
    "clear" clears.
*/
struct Scene
{
    QStringList log;
    std::unique_ptr<TextManager> manager { new TextManager };
    QMap<QString, QtProperty *> properties;

    Scene()
    {
        for (const QString key : { "a", "b", "c", "d", "e", "g" }) {
            properties.insert(key, manager->addProperty(key == "g" ? QStringLiteral("group") : key));
            manager->setValue(properties.value(key), key.toUpper());
        }
        QtAbstractPropertyManager *m = manager.get();
        QObject::connect(
            m, &QtAbstractPropertyManager::propertyInserted, [this](auto *property, auto *parent, auto *after) {
                log << "inserted " + nameOf(property) + " in " + nameOf(parent) + " after " + nameOf(after);
            });
        QObject::connect(m, &QtAbstractPropertyManager::propertyRemoved,
            [this](auto *property, auto *parent) { log << "removed " + nameOf(property) + " from " + nameOf(parent); });
        QObject::connect(m, &QtAbstractPropertyManager::propertyChanged,
            [this](auto *property) { log << "changed " + nameOf(property); });
        QObject::connect(m, &QtAbstractPropertyManager::propertyDestroyed,
            [this](auto *property) { log << "destroyed " + nameOf(property); });
    }

    QtProperty *at(const QString &key) const { return properties.value(key); }

    void run(const QString &script, QtAbstractPropertyBrowser *browser = nullptr)
    {
        for (const QString &op : script.split(' ', Qt::SkipEmptyParts)) {
            const QStringList parts = op.mid(op.front().isLetter() ? 2 : 1).split('@');
            QtProperty *first = at(op.left(1));
            QtProperty *after = parts.size() > 1 ? at(parts.at(1)) : nullptr;
            if (op == "clear") {
                browser->clear();
            } else if (op == "~manager") {
                manager.reset();
                properties.clear();
            } else if (op.startsWith('~')) {
                delete properties.take(op.mid(1));
            } else if (op.startsWith('+')) {
                parts.size() > 1 ? browser->insertProperty(at(parts[0]), after) : browser->addProperty(at(parts[0]));
            } else if (op.startsWith('-')) {
                browser->removeProperty(at(op.mid(1)));
            } else if (op.endsWith('!')) {
                first->setEnabled(false);
            } else if (op.at(1) == '=') {
                manager->setValue(first, op.mid(2));
            } else if (op.at(1) == '*') {
                first->setPropertyName(op.mid(2));
            } else if (op.at(1) == '<' && parts.size() > 1) {
                first->insertSubProperty(at(parts[0]), after);
            } else if (op.at(1) == '<') {
                first->addSubProperty(at(parts[0]));
            } else {
                first->removeSubProperty(at(parts[0]));
            }
        }
    }

    //! The properties that have sub-properties: "a[b c] b[c]".
    QString structure() const
    {
        QStringList texts;
        for (QtProperty *property : properties) {
            QStringList children;
            for (QtProperty *child : property->subProperties())
                children << nameOf(child);
            if (!children.isEmpty())
                texts << nameOf(property) + "[" + children.join(' ') + "]";
        }
        return texts.join(' ');
    }
};

//! The browser's items written as TreeBrowserDriver::dump() writes its rows.
QString itemDump(const QList<QtBrowserItem *> &items)
{
    QStringList texts;
    for (const QtBrowserItem *item : items) {
        const QtProperty *property = item->property();
        texts << property->propertyName() + "=" + (property->hasValue() ? property->valueText() : QString())
                + (item->children().isEmpty() ? QString() : "{" + itemDump(item->children()) + "}");
    }
    return texts.join(' ');
}

//! The first item, at any depth, of the property named \a name.
QtBrowserItem *findItem(const QList<QtBrowserItem *> &items, const QString &name)
{
    for (QtBrowserItem *item : items) {
        if (item->property()->propertyName() == name)
            return item;
        if (QtBrowserItem *child = findItem(item->children(), name))
            return child;
    }
    return nullptr;
}

//! A shown tree browser whose manager's properties get line edits.
struct Browser
{
    Scene scene;
    LineFactory factory;
    QtTreePropertyBrowser browser;
    TreeBrowserDriver driver { &browser };

    explicit Browser(const QString &script)
    {
        browser.setFactoryForManager(scene.manager.get(), &factory);
        browser.resize(400, 300);
        browser.show();
        scene.run(script, &browser);
    }
};

} // namespace

class tst_PropertyBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subProperties_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("structure");
        QTest::addColumn<QString>("emitted");

        const auto row = [](const char *name, const char *script, const char *structure, const char *emitted) {
            QTest::newRow(name) << QString(script) << QString(structure) << QString(emitted);
        };
        row("appended in order", "a<b a<c", "a[b c]", "inserted b in a after -|inserted c in a after b");
        row("inserted after a sub-property", "a<b a<c a<d@b", "a[b d c]",
            "inserted b in a after -|inserted c in a after b|inserted d in a after b");
        row("no predecessor: first", "a<b a<c@-", "a[c b]", "inserted b in a after -|inserted c in a after -");
        row("predecessor not a sub-property: first", "a<b a<c@d", "a[c b]",
            "inserted b in a after -|inserted c in a after -");
        row("inserted twice", "a<b a<b", "a[b]", "inserted b in a after -");
        row("not under itself", "a<a", "", "");
        row("not under its own sub-property", "a<b b<c c<a", "a[b] b[c]",
            "inserted b in a after -|inserted c in b after -");
        row("under two parents", "a<c b<c", "a[c] b[c]", "inserted c in a after -|inserted c in b after -");
        row("removed, not deleted", "a<b a-b b<c", "b[c]",
            "inserted b in a after -|removed b from a|inserted c in b after -");
        row("removing a stranger", "a-b", "", "");
        row("deleted: leaves every parent first", "a<c b<c ~c", "",
            "inserted c in a after -|inserted c in b after -|removed c from a|removed c from b|destroyed c");
        row("deleted parent: sub-properties live on", "a<b ~a c<b", "c[b]",
            "inserted b in a after -|destroyed a|inserted b in c after -");
        row("renamed and disabled once each", "a*z a*z a! a!", "", "changed z|changed z");
    }

    void subProperties()
    {
        QFETCH(QString, script);
        QFETCH(QString, structure);

        Scene scene;
        scene.log.clear();
        scene.run(script);
        QCOMPARE(scene.structure(), structure);
        QTEST(scene.log.join('|'), "emitted");
    }

    void managerOwnsProperties()
    {
        auto *manager = new TextManager;
        int changed = 0;
        QObject::connect(manager, &QtAbstractPropertyManager::propertyChanged, [&]() { ++changed; });
        QtProperty *a = manager->addProperty("a");
        QtProperty *b = manager->addProperty();
        QCOMPARE(nameOf(a) + nameOf(b), "a");
        QCOMPARE(a->propertyManager(), manager);
        QCOMPARE(manager->properties(), (QSet<QtProperty *> { a, b }));
        QCOMPARE(manager->known(), 2);
        QCOMPARE(changed, 0);

        // The manager still answers for a property while it is being destroyed.
        manager->setValue(a, "A");
        QStringList destroyed;
        QObject::connect(manager, &QtAbstractPropertyManager::propertyDestroyed,
            [&](QtProperty *property) { destroyed << nameOf(property) + "=" + property->valueText(); });
        delete a;
        QCOMPARE(manager->properties(), QSet<QtProperty *> { b });
        QCOMPARE(manager->known(), 1);
        manager->clear();
        QVERIFY(manager->properties().isEmpty());
        QCOMPARE(manager->known(), 0);
        manager->addProperty("d");
        delete manager;
        QCOMPARE(destroyed, (QStringList { "a=A", "=", "d=" }));
    }

    void rows_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("rows");

        const auto row = [](const char *name, const char *script, const char *rows) {
            QTest::newRow(name) << QString(script) << QString(rows);
        };
        row("sub-properties as child rows", "a<b b<c +a", "a=A{b=B{c=C}}");
        row("added at the end", "+a +b", "a=A b=B");
        row("inserted after a top-level property", "+a +b +c@a", "a=A c=C b=B");
        row("predecessor not at the top: first", "+a +c@d", "c=C a=A");
        row("at the top once", "+a +a", "a=A");
        row("later sub-property under every row of its parent", "a<b +a +b b<c", "a=A{b=B{c=C}} b=B{c=C}");
        row("inserted sub-property keeps its place", "a<b a<c +a a<d@b", "a=A{b=B d=D c=C}");
        row("removed sub-property", "a<b a<c +a a-b", "a=A{c=C}");
        row("deleted property leaves every row", "+a +b a<b ~b", "a=A");
        row("deleted parent takes its sub-rows", "a<b +a +c ~a", "c=C");
        row("removed from the top and back", "a<b +a -a +a", "a=A{b=B}");
        row("cleared", "+a +b clear", "");
        row("value and name follow", "a<b +a b=X a*z", "z=A{b=X}");
        row("a group shows no value", "g<a +g", "group={a=A}");
        row("deleted manager", "+a +b ~manager", "");
    }

    void rows()
    {
        QFETCH(QString, script);
        QFETCH(QString, rows);

        Browser view(script);
        QCOMPARE(view.driver.dump(), rows);
        QCOMPARE(itemDump(view.browser.topLevelItems()), rows);
        QList<QtProperty *> top;
        for (const QtBrowserItem *item : view.browser.topLevelItems()) {
            QCOMPARE(item->parent(), nullptr);
            QCOMPARE(view.browser.topLevelItem(item->property()), item);
            top << item->property();
        }
        QCOMPARE(view.browser.properties(), top);
    }

    void editorOpens_data()
    {
        QTest::addColumn<QString>("setup");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("how");
        QTest::addColumn<QString>("text"); // of the editor; empty: no editor
        QTest::addColumn<bool>("focused");

        // clang-format off
        QTest::newRow("made current in code") << "a<b +a +c" << "b" << "code" << "B" << false;
        QTest::newRow("clicked") << "a<b +a +c" << "b" << "click" << "B" << false;
        QTest::newRow("double-clicked") << "a<b +a +c" << "b" << "double click" << "B" << true;
        QTest::newRow("reached by the arrow key") << "a<b +a +c" << "b" << "key down" << "B" << false;
        QTest::newRow("a group") << "+g" << "group" << "double click" << "" << false;
        QTest::newRow("under a disabled parent") << "a<b +a a!" << "b" << "code" << "" << false;
        QTest::newRow("manager without a factory") << "other" << "x" << "double click" << "" << false;
        QTest::newRow("factory deleted") << "+a deleted factory" << "a" << "double click" << "" << false;
        // clang-format on
    }

    void editorOpens()
    {
        QFETCH(QString, setup);
        QFETCH(QString, row);
        QFETCH(QString, how);
        QFETCH(QString, text);

        Browser view("");
        TextManager other;
        if (setup == "other") {
            view.browser.addProperty(other.addProperty("x"));
        } else if (setup.endsWith("deleted factory")) {
            view.scene.run("+a", &view.browser);
            // A factory may go before the browsers that use it.
            auto *factory = new LineFactory;
            view.browser.setFactoryForManager(view.scene.manager.get(), factory);
            delete factory;
        } else {
            view.scene.run(setup, &view.browser);
        }
        QApplication::setActiveWindow(&view.browser);
        QVERIFY(QTest::qWaitForWindowActive(&view.browser));
        view.factory.created = 0;

        QtBrowserItem *item = findItem(view.browser.topLevelItems(), row);
        if (how == "code") {
            view.browser.setCurrentItem(item);
        } else if (how == "click") {
            view.driver.click(row);
        } else if (how == "double click") {
            view.driver.doubleClick(row);
        } else {
            view.driver.click("a");
            QTest::keyClick(view.driver.tree(), Qt::Key_Down);
        }
        QCOMPARE(view.browser.currentItem(), item);
        QPointer<QLineEdit> editor = view.driver.openEditor<QLineEdit>();
        if (text.isEmpty()) {
            QCOMPARE(editor.data(), nullptr);
            QCOMPARE(view.factory.created, 0);
            return;
        }
        QVERIFY(editor);
        QCOMPARE(editor->text(), text);
        QCOMPARE(view.driver.tree()->itemWidget(view.driver.row(row), 1), editor.data());
        QTEST(editor->hasFocus(), "focused");

        // One editor at a time.
        const int created = view.factory.created;
        view.driver.click("c");
        QTRY_VERIFY(!editor);
        QCOMPARE(view.driver.openEditor<QLineEdit>()->text(), "C");
        QCOMPARE(view.factory.created, created + 1);
    }

    void editorCloses_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("stillCurrent");

        // clang-format off
        QTest::newRow("sub-property removed") << "a-b" << true << false;
        QTest::newRow("property deleted") << "~b" << true << false;
        QTest::newRow("parent taken off the browser") << "-a" << true << false;
        QTest::newRow("browser cleared") << "clear" << true << false;
        QTest::newRow("manager deleted") << "~manager" << true << false;
        QTest::newRow("property disabled") << "b!" << true << true;
        QTest::newRow("parent disabled") << "a!" << true << true;
        QTest::newRow("value changed") << "b=X" << false << true;
        QTest::newRow("sibling removed") << "a-c" << false << true;
        // clang-format on
    }

    void editorCloses()
    {
        QFETCH(QString, script);
        QFETCH(bool, closes);

        Browser view("a<b a<c +a");
        view.driver.click("b");
        QPointer<QWidget> editor = view.driver.openEditor();
        QVERIFY(editor);

        view.scene.run(script, &view.browser);
        QTEST(view.browser.currentItem() != nullptr, "stillCurrent");
        if (closes) {
            QCOMPARE(view.driver.openEditor(), nullptr);
            QTRY_VERIFY(!editor);
        } else {
            QTest::qWait(20);
            QCOMPARE(view.driver.openEditor(), editor.data());
        }
    }

    void sharedFactory()
    {
        Scene scene;
        LineFactory factory;
        auto first = std::make_unique<QtTreePropertyBrowser>();
        QtTreePropertyBrowser second;
        first->setFactoryForManager(scene.manager.get(), &factory);
        second.setFactoryForManager(scene.manager.get(), &factory);
        first->setFactoryForManager(scene.manager.get(), &factory);
        second.addProperty(scene.at("a"));

        // The factory keeps serving the browser that is left.
        first.reset();
        second.setCurrentItem(second.topLevelItem(scene.at("a")));
        QCOMPARE(factory.created, 1);
        QCOMPARE(factory.log, QStringList { "connect" });

        // The last browser lets go: the factory forgets the manager.
        second.unsetFactoryForManager(scene.manager.get());
        QCOMPARE(factory.log, (QStringList { "connect", "disconnect" }));
        QVERIFY(factory.propertyManagers().isEmpty());

        // A manager that goes is forgotten without being disconnected.
        second.setFactoryForManager(scene.manager.get(), &factory);
        QCOMPARE(factory.propertyManagers(), QSet<TextManager *> { scene.manager.get() });
        scene.manager.reset();
        QVERIFY(factory.propertyManagers().isEmpty());
        QCOMPARE(factory.log, (QStringList { "connect", "disconnect", "connect" }));
    }

    void headerTexts()
    {
        QtTreePropertyBrowser browser;
        QTreeWidgetItem *header = TreeBrowserDriver(&browser).tree()->headerItem();
        QCOMPARE(header->text(0) + "|" + header->text(1), "Property|Value");

        {
            TestSupport::GermanTranslation german;
            QTRY_COMPARE(header->text(0) + "|" + header->text(1), "Eigenschaft|Wert");
        }
        QTRY_COMPARE(header->text(0), "Property");
    }
};

QTEST_MAIN(tst_PropertyBrowser)

#include "tst_propertybrowser.moc"
