// SPDX-License-Identifier: LGPL-2.1-or-later
#include "modaldialogdriver.h"
#include "testhelpers.h"
#include "widgets/filterlineedit.h"
#include "widgets/iconbutton.h"

#include <QMenu>
#include <QtTest>

using Utils::FancyLineEdit;
using Utils::FilterLineEdit;

namespace {

float opacity(const FancyLineEdit &edit, FancyLineEdit::Side side)
{
    return static_cast<Utils::IconButton *>(edit.button(side))->iconOpacity();
}

QList<QPropertyAnimation *> animations(const FancyLineEdit &edit)
{
    return edit.button(FancyLineEdit::Right)->findChildren<QPropertyAnimation *>();
}

} // namespace

class tst_LineEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Typing the first character fades the clear button in over 160 ms, deleting the last fades it out;
    // a change between two texts starts nothing.
    void clearButtonFades()
    {
        FilterLineEdit edit;
        edit.show();
        QVERIFY(QTest::qWaitForWindowExposed(&edit));
        QCOMPARE(edit.placeholderText(), QStringLiteral("Filter"));
        QCOMPARE(edit.button(FancyLineEdit::Right)->toolTip(), QStringLiteral("Clear text"));
        QVERIFY(!edit.buttonPixmap(FancyLineEdit::Right).isNull()); // the resource fallback at least
        QCOMPARE(opacity(edit, FancyLineEdit::Right), 0.0f);

        QTest::keyClick(&edit, Qt::Key_A);
        QCOMPARE(animations(edit).size(), 1);
        QCOMPARE(animations(edit).first()->duration(), 160);
        QCOMPARE(animations(edit).first()->endValue().toFloat(), 1.0f);
        QTRY_COMPARE_WITH_TIMEOUT(opacity(edit, FancyLineEdit::Right), 1.0f, 1000);
        QTRY_VERIFY(animations(edit).isEmpty()); // deleted when done

        QTest::keyClick(&edit, Qt::Key_B);
        QVERIFY(animations(edit).isEmpty());

        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(animations(edit).size(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(opacity(edit, FancyLineEdit::Right), 0.0f, 1000);
    }

    // filterChanged only on a real change; the clear button empties the field.
    void filterChangedOnlyOnChange()
    {
        FilterLineEdit edit;
        edit.show();
        QSignalSpy changed(&edit, &FilterLineEdit::filterChanged);
        QTest::keyClicks(&edit, QStringLiteral("warn"));
        edit.setText(QStringLiteral("warn"));
        QCOMPARE(changed.count(), 4);
        QTest::mouseClick(edit.button(FancyLineEdit::Right), Qt::LeftButton);
        QCOMPARE(edit.text(), QString());
        QCOMPARE(changed.count(), 5);
        QCOMPARE(changed.last().first().toString(), QString());
    }

    // A side with a menu opens it and reports no click; the other side reports its click.
    void buttonsAndMenus()
    {
        FancyLineEdit edit;
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        edit.setButtonPixmap(FancyLineEdit::Left, pixmap);
        edit.setButtonPixmap(FancyLineEdit::Right, pixmap);
        edit.setButtonVisible(FancyLineEdit::Left, true);
        edit.setButtonVisible(FancyLineEdit::Right, true);
        QMenu menu;
        menu.addAction(QStringLiteral("Regular expression"));
        edit.setButtonMenu(FancyLineEdit::Left, &menu);
        QVERIFY(TestSupport::show(&edit, QSize(200, 24)));

        QSignalSpy side(&edit, &FancyLineEdit::buttonClicked);
        QSignalSpy left(&edit, &FancyLineEdit::leftButtonClicked);
        QSignalSpy right(&edit, &FancyLineEdit::rightButtonClicked);
        const auto opened = TestSupport::whenModal<QMenu>([](QMenu *popup) { popup->close(); }, 2000,
                                                         &QApplication::activePopupWidget);
        QTest::mouseClick(edit.button(FancyLineEdit::Left), Qt::LeftButton);
        QTRY_VERIFY(*opened);
        QCOMPARE(side.count() + left.count(), 0);
        QTest::mouseClick(edit.button(FancyLineEdit::Right), Qt::LeftButton);
        QCOMPARE(side.count(), 1);
        QCOMPARE(side.first().first().value<FancyLineEdit::Side>(), FancyLineEdit::Right);
        QCOMPARE(right.count(), 1);

        // The text keeps clear of both buttons: pixmap width + 8; each button's strip is that + 4 wide.
        QCOMPARE(edit.textMargins(), QMargins(24, 0, 24, 0));
        QCOMPARE(edit.button(FancyLineEdit::Left)->geometry(), QRect(0, 0, 28, edit.height()));
        QCOMPARE(edit.button(FancyLineEdit::Right)->geometry().right(), edit.width() - 1);
        edit.setButtonVisible(FancyLineEdit::Left, false);
        QCOMPARE(edit.textMargins(), QMargins(0, 0, 24, 0));
        // Right to left: the logical right button sits at the left edge.
        edit.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(edit.textMargins(), QMargins(24, 0, 0, 0));
        QCOMPARE(edit.button(FancyLineEdit::Right)->geometry().left(), 0);
    }
};

QTEST_MAIN(tst_LineEdits)
#include "tst_lineedits.moc"
