// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/buttoneditor.h"
#include "widgets/buttonfactory.h"
#include "widgets/buttonmanager.h"
#include "widgets/fileeditfactory.h"
#include "widgets/filepatheditor.h"
#include "widgets/filepathmanager.h"

#include "qttreepropertybrowser.h"

#include "filedialogdriver.h"
#include "treebrowserdriver.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using TestSupport::TreeBrowserDriver;
using Utils::ButtonEditor;
using Utils::ButtonFactory;
using Utils::ButtonManager;
using Utils::FileEditFactory;
using Utils::FilePathEditor;
using Utils::FilePathManager;

namespace {

/*!
    A host's property panel in a shown tree browser: a button property "Teach"
    (text "Start") and a path property "Path" (filter "Text (*.txt)"). The log
    has the managers' signals in order ("value Teach Stop") and the
    filePathChanged() of editors opened with open() ("edit /b").
*/
struct Panel
{
    ButtonManager buttons;
    FilePathManager paths;
    ButtonFactory buttonFactory;
    FileEditFactory pathFactory;
    QtTreePropertyBrowser browser;
    TreeBrowserDriver driver { &browser };
    QtProperty *teach = buttons.addProperty("Teach");
    QtProperty *path = paths.addProperty("Path");
    QStringList log;

    explicit Panel(const QString &start = QStringLiteral("/tmp/a.txt"))
    {
        buttons.setValue(teach, "Start");
        paths.setValue(path, start);
        paths.setFilter(path, "Text (*.txt)");
        browser.setFactoryForManager(&buttons, &buttonFactory);
        browser.setFactoryForManager(&paths, &pathFactory);
        browser.addProperty(teach);
        browser.addProperty(path);
        browser.resize(500, 200);
        browser.show();

        const auto note = [this](const char *what, QtProperty *property, const QString &text = QString()) {
            log << QString("%1 %2 %3").arg(what, property->propertyName(), text).trimmed();
        };
        for (QtAbstractPropertyManager *manager :
            std::initializer_list<QtAbstractPropertyManager *> { &buttons, &paths })
            QObject::connect(
                manager, &QtAbstractPropertyManager::propertyChanged, [=](auto *p) { note("changed", p); });
        QObject::connect(&buttons, &ButtonManager::valueChanged, [=](auto *p, auto &t) { note("value", p, t); });
        QObject::connect(&buttons, &ButtonManager::buttonClicked, [=](auto *p) { note("clicked", p); });
        QObject::connect(&paths, &FilePathManager::valueChanged, [=](auto *p, auto &t) { note("value", p, t); });
        QObject::connect(&paths, &FilePathManager::filterChanged, [=](auto *p, auto &t) { note("filter", p, t); });
    }

    //! Opens the editor of the row named \a name by clicking the row.
    template <typename Editor> Editor *open(const QString &name)
    {
        driver.click(name);
        auto *editor = driver.openEditor<Editor>();
        if (auto *pathEditor = qobject_cast<FilePathEditor *>(editor))
            QObject::connect(pathEditor, &FilePathEditor::filePathChanged, [this](auto &t) { log << "edit " + t; });
        return editor;
    }

    //! The texts of the log entries that start with \a what, joined by '|'.
    QString texts(const QString &what) const
    {
        QStringList texts;
        for (const QString &entry : log) {
            if (entry.startsWith(what + " "))
                texts << entry.section(' ', what == "edit" ? 1 : 2);
        }
        return texts.join('|');
    }
};

} // namespace

class tst_PropertyEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void managerSignals_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("emitted");
        QTest::addColumn<QString>("values");

        const auto row = [](const char *name, const char *change, const char *emitted, const char *values) {
            QTest::newRow(name) << QString(change) << QString(emitted) << QString(values);
        };
        const char *before = "Start|/tmp/a.txt|Text (*.txt)";
        row("new button text", "text Teach Stop", "changed Teach|value Teach Stop", "Stop|/tmp/a.txt|Text (*.txt)");
        row("the same button text", "text Teach Start", "", before);
        row("button text of another manager's property", "text Path /b", "", before);
        row("click", "click Teach", "changed Teach|clicked Teach", before);
        row("click on another manager's property", "click Path", "", before);
        row("new path", "path Path /b", "changed Path|value Path /b", "Start|/b|Text (*.txt)");
        row("the same path", "path Path /tmp/a.txt", "", before);
        row("path of another manager's property", "path Teach /b", "", before);
        row("new filter: no propertyChanged", "filter Path All (*)", "filter Path All (*)", "Start|/tmp/a.txt|All (*)");
        row("the same filter", "filter Path Text (*.txt)", "", before);
    }

    void managerSignals()
    {
        QFETCH(QString, change);
        QFETCH(QString, values);

        Panel panel;
        panel.log.clear();
        const QString what = change.section(' ', 0, 0);
        QtProperty *property = change.section(' ', 1, 1) == "Teach" ? panel.teach : panel.path;
        const QString text = change.section(' ', 2);
        if (what == "text")
            panel.buttons.setValue(property, text);
        else if (what == "click")
            panel.buttons.emitClicked(property);
        else if (what == "path")
            panel.paths.setValue(property, text);
        else
            panel.paths.setFilter(property, text);

        QTEST(panel.log.join('|'), "emitted");
        QCOMPARE(panel.buttons.value(panel.teach) + "|" + panel.paths.value(panel.path) + "|"
                + panel.paths.filter(panel.path),
            values);
        QCOMPARE(panel.teach->valueText() + "|" + panel.path->valueText(), values.section('|', 0, 1));
    }

    void buttonClick()
    {
        Panel panel;
        panel.log.clear();
        auto *editor = panel.open<ButtonEditor>("Teach");
        QVERIFY(editor);
        QCOMPARE(editor->button()->text(), "Start");

        QTest::mouseClick(editor->button(), Qt::LeftButton);
        QCOMPARE(panel.log, (QStringList { "changed Teach", "clicked Teach" }));
    }

    void typing_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("keys"); // '<' is the left arrow, '^' Ctrl+A
        QTest::addColumn<QString>("edits");
        QTest::addColumn<QString>("values");

        // clang-format off
        QTest::newRow("every keystroke") << "" << "ab" << "a|ab" << "a|ab";
        // The editor typed in is not set again, which would move the cursor to the end.
        QTest::newRow("in the middle") << "" << "ac<bd" << "a|ac|abc|abdc" << "a|ac|abc|abdc";
        QTest::newRow("a selection typed over with the same text") << "x" << "^x" << "x" << "";
        // clang-format on
    }

    void typing()
    {
        QFETCH(QString, start);
        QFETCH(QString, keys);
        QFETCH(QString, edits);

        Panel panel(start);
        auto *editor = panel.open<FilePathEditor>("Path");
        QVERIFY(editor);
        panel.log.clear();

        auto *lineEdit = editor->findChild<QLineEdit *>();
        for (const QChar key : keys) {
            if (key == '<')
                QTest::keyClick(lineEdit, Qt::Key_Left);
            else if (key == '^')
                QTest::keyClick(lineEdit, Qt::Key_A, Qt::ControlModifier);
            else
                QTest::keyClicks(lineEdit, key);
        }
        QCOMPARE(panel.texts("edit"), edits);
        QTEST(panel.texts("value"), "values");
        QCOMPARE(panel.paths.value(panel.path), edits.section('|', -1));
        QCOMPARE(editor->filePath(), edits.section('|', -1));
    }

    void fileDialog_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("emitted");

        // clang-format off
        QTest::newRow("cancelled") << "" << "";
        QTest::newRow("another file") << "b.txt" << "changed Path|value Path b.txt|edit b.txt";
        // The editor reports the file chosen; the manager sees no change.
        QTest::newRow("the file already set") << "a.txt" << "edit a.txt";
        // clang-format on
    }

    void fileDialog()
    {
        QFETCH(QString, answer);

        QTemporaryDir dir;
        for (const char *name : { "a.txt", "b.txt" }) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        Panel panel(dir.filePath("a.txt"));
        auto *editor = panel.open<FilePathEditor>("Path");
        QVERIFY(editor);
        panel.log.clear();

        QString seen;
        const auto look = [&](QFileDialog *dialog) {
            seen = dialog->nameFilters().join('|') + (dialog->parentWidget() ? " with parent" : "");
        };
        const auto shown = answer.isEmpty() ? TestSupport::cancelFileDialog(look)
                                            : TestSupport::answerFileDialog(dir.filePath(answer), look);
        auto *button = editor->findChild<QPushButton *>();
        QCOMPARE(button->text(), "...");
        QTest::mouseClick(button, Qt::LeftButton);

        QVERIFY(*shown);
        QCOMPARE(seen, "Text (*.txt)");
        QTEST(panel.log.join('|').remove(dir.path() + "/"), "emitted");
        const QString path = dir.filePath(answer == "b.txt" ? "b.txt" : "a.txt");
        QCOMPARE(editor->filePath(), path);
        QCOMPARE(panel.paths.value(panel.path), path);
    }

    void outsideChanges_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QString>("shown");

        // clang-format off
        QTest::newRow("path") << "path" << "/b|Text (*.txt)";
        QTest::newRow("filter") << "filter" << "/tmp/a.txt|All (*)";
        QTest::newRow("typed in another browser") << "typed" << "/tmp/a.txtz|Text (*.txt)";
        // Only path editors follow: a button editor keeps the text it opened with.
        QTest::newRow("button text") << "text" << "Start";
        // clang-format on
    }

    void outsideChanges()
    {
        QFETCH(QString, change);
        QFETCH(QString, shown);

        Panel panel;
        QtTreePropertyBrowser other;
        other.setFactoryForManager(&panel.paths, &panel.pathFactory);
        other.addProperty(panel.path);
        other.show();
        QWidget *editor = panel.open<QWidget>(change == "text" ? "Teach" : "Path");
        QVERIFY(editor);

        if (change == "path") {
            panel.paths.setValue(panel.path, "/b");
        } else if (change == "filter") {
            panel.paths.setFilter(panel.path, "All (*)");
        } else if (change == "typed") {
            TreeBrowserDriver otherDriver(&other);
            otherDriver.click("Path");
            QTest::keyClicks(otherDriver.openEditor<FilePathEditor>()->findChild<QLineEdit *>(), "z");
        } else {
            panel.buttons.setValue(panel.teach, "Stop");
            QCOMPARE(panel.driver.row("Teach")->text(1), "Stop");
        }

        if (auto *pathEditor = qobject_cast<FilePathEditor *>(editor))
            QCOMPARE(pathEditor->filePath() + "|" + pathEditor->filter(), shown);
        else
            QCOMPARE(qobject_cast<ButtonEditor *>(editor)->text(), shown);
    }

    void closedEditorIsForgotten()
    {
        Panel panel;
        QPointer<FilePathEditor> editor = panel.open<FilePathEditor>("Path");
        QVERIFY(editor);
        panel.driver.click("Teach");
        QTRY_VERIFY(!editor);

        // The factory must not reach the deleted editor.
        panel.paths.setValue(panel.path, "/b");
        panel.paths.setFilter(panel.path, "All (*)");
        editor = panel.open<FilePathEditor>("Path");
        QCOMPARE(editor->filePath() + "|" + editor->filter(), "/b|All (*)");
    }
};

QTEST_MAIN(tst_PropertyEditors)

#include "tst_propertyeditors.moc"
