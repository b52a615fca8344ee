// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plottesthelpers.h"

#include <plot/chartthreshold.h>
#include <plot/chartthresholdmanager.h>
#include <plot/plot.h>
#include <plot/plotmarker.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

using namespace PlotTest;
using Utils::ChartItem;
using Utils::ChartThresholdManager;
using Utils::PlotMarker;

//! A user drag of \a marker by \a pixels downwards.
static void dragDown(PlotMarker *marker, int pixels)
{
    const QPoint grip(20, marker->height() / 2);
    drag(marker, Qt::LeftButton, grip, grip + QPoint(0, pixels));
}

class tst_ChartThresholdManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_plot = showPlot(m_host);
        m_byItem.clear();
        m_byName.clear();
    }

    void cleanup()
    {
        m_host.reset();
    }

    void addFindAndSet()
    {
        ChartThresholdManager manager(m_plot);
        const int childrenBefore = m_plot->canvas()->findChildren<PlotMarker *>().size();
        QCOMPARE(manager.addItem(""), nullptr);
        QCOMPARE(m_plot->canvas()->findChildren<PlotMarker *>().size(), childrenBefore);

        ChartItem *item = manager.addItem("upper");
        auto *marker = dynamic_cast<PlotMarker *>(item);
        QVERIFY(marker);
        QCOMPARE(marker->mode(), PlotMarker::Mode(1));
        QVERIFY(!marker->isVisible()); // hidden until a positive value
        QCOMPARE(manager.item("lower"), nullptr);
        manager.setItemValue("upper", 120.0);
        manager.setItemRange("upper", 10.0, 90.0);
        QVERIFY(marker->isVisible());
        // Empty and unknown names are ignored.
        for (const std::string name : {"", "unknown"}) {
            manager.setItemValue(name, 5.0);
            manager.setItemRange(name, 1.0, 2.0);
            manager.removeItem(name);
        }
        QCOMPARE(manager.item("upper"), item);
        QCOMPARE(item->value(), 120.0);
        QCOMPARE(Range(marker->lower(), marker->upper()), Range(10.0, 90.0));
    }

    void dragEndEmitsBothForms()
    {
        ChartThresholdManager manager(m_plot);
        record(manager);
        auto *marker = static_cast<PlotMarker *>(manager.addItem("noise"));
        manager.addItem("other")->setValue(200.0);
        marker->setMoveable(true);
        manager.setItemValue("noise", 150.0);

        const QPoint grip(20, marker->height() / 2);
        QTest::mousePress(marker, Qt::LeftButton, Qt::NoModifier, grip);
        TestSupport::mouseMove(marker, grip + QPoint(0, 10), Qt::LeftButton);
        TestSupport::mouseMove(marker, grip + QPoint(0, 20), Qt::LeftButton);
        QVERIFY(m_byItem.empty()); // nothing from setItemValue, nor while the drag is under way
        QTest::mouseRelease(marker, Qt::LeftButton, Qt::NoModifier, grip + QPoint(0, 20));

        QVERIFY(marker->value() < 150.0);
        QVERIFY(m_byItem == ByItem({{marker, marker->value()}}));
        QVERIFY(m_byName == ByName({{"noise", marker->value()}}));
    }

    void removeItem()
    {
        ChartThresholdManager manager(m_plot);
        record(manager);
        auto *kept = static_cast<PlotMarker *>(manager.addItem("kept"));
        manager.addItem("gone");
        manager.removeItem("gone");
        QCOMPARE(manager.item("gone"), nullptr);
        QVERIFY(manager.item("kept"));

        kept->setMoveable(true);
        manager.setItemValue("kept", 100.0);
        dragDown(kept, 15);
        QVERIFY(m_byName == ByName({{"kept", kept->value()}}));
    }

    void replacedNameKeepsBothItems()
    {
        auto manager = std::make_unique<ChartThresholdManager>(m_plot);
        record(*manager);
        auto *first = static_cast<PlotMarker *>(manager->addItem("x"));
        auto *second = static_cast<PlotMarker *>(manager->addItem("x"));
        QVERIFY(first != second);
        QCOMPARE(manager->item("x"), static_cast<ChartItem *>(second));
        // The replaced item is still observed and still known by its name.
        first->setMoveable(true);
        first->setValue(100.0);
        dragDown(first, 10);
        QVERIFY(m_byItem == ByItem({{first, first->value()}}));
        QVERIFY(m_byName == ByName({{"x", first->value()}}));

        // Both are deleted with the manager.
        QPointer<PlotMarker> a(first), b(second);
        manager.reset();
        QVERIFY(a.isNull() && b.isNull());
    }

    void managerOutlivesPlot()
    {
        ChartThresholdManager manager(m_plot);
        QPointer<PlotMarker> marker(static_cast<PlotMarker *>(manager.addItem("a")));
        manager.addItem("b");
        // The markers live on the canvas: they go with the plot, and the manager
        // must neither hand them out nor delete them again.
        m_host.reset();
        QVERIFY(marker.isNull());
        QCOMPARE(manager.item("a"), nullptr);
        manager.setItemValue("a", 10.0);
        manager.setItemRange("b", 1.0, 2.0);
        manager.removeItem("b");
        QCOMPARE(manager.item("b"), nullptr);
    }

private:
    //! Records both itemChanged forms in emission order.
    void record(ChartThresholdManager &manager)
    {
        // std::string is not a registered meta type, so the name form is caught by a lambda.
        connect(&manager, qOverload<ChartItem *, double>(&ChartThresholdManager::itemChanged), this,
                [this](ChartItem *item, double v) { m_byItem.emplace_back(item, v); });
        connect(&manager, qOverload<std::string, double>(&ChartThresholdManager::itemChanged), this,
                [this](std::string name, double v) {
                    QCOMPARE(m_byItem.size(), m_byName.size() + 1); // the item form comes first
                    m_byName.emplace_back(std::move(name), v);
                });
    }

    std::unique_ptr<QWidget> m_host;
    Utils::Plot *m_plot = nullptr;
    using ByItem = std::vector<std::pair<ChartItem *, double>>;
    using ByName = std::vector<std::pair<std::string, double>>;
    ByItem m_byItem;
    ByName m_byName;
};

QTEST_MAIN(tst_ChartThresholdManager)
#include "tst_chartthresholdmanager.moc"
