// placeholder
#include <QtTest>
class tst_Probes : public QObject { Q_OBJECT private Q_SLOTS: void x() { QVERIFY(true); } };
QTEST_GUILESS_MAIN(tst_Probes)
#include "tst_probes.moc"
