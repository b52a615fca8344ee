// placeholder
#include <QtTest>
class tst_Log : public QObject { Q_OBJECT private Q_SLOTS: void x() { QVERIFY(true); } };
QTEST_GUILESS_MAIN(tst_Log)
#include "tst_log.moc"
