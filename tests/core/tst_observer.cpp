// placeholder
#include <QtTest>
class tst_Observer : public QObject { Q_OBJECT private Q_SLOTS: void x() { QVERIFY(true); } };
QTEST_GUILESS_MAIN(tst_Observer)
#include "tst_observer.moc"
