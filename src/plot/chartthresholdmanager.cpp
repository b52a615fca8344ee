// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plot/chartthresholdmanager.h"

#include "plot/plotmarker.h"

#include <qwt_plot.h>

#include <QPointer>

#include <map>
#include <set>

namespace Utils {

struct ChartThresholdManager::Private
{
    std::map<std::string, ChartItem *> itemsByName;
    std::map<ChartItem *, std::string> namesByItem;
    QwtPlot *plot = nullptr;
    bool allowOverlapping = true;
    // The markers are also children of the plot's canvas: a plot destroyed
    // before the manager takes them along, and they must not be deleted twice.
    std::map<ChartItem *, QPointer<PlotMarker>> alive;

    bool isAlive(ChartItem *item) const
    {
        const auto it = alive.find(item);
        return it != alive.end() && !it->second.isNull();
    }
};

ChartThresholdManager::ChartThresholdManager(QwtPlot *plot)
    : d(new Private)
{
    d->plot = plot;
}

ChartThresholdManager::~ChartThresholdManager()
{
    // An item replaced in the name map still sits in the reverse index, so
    // collect from both to delete every item exactly once.
    std::set<ChartItem *> items;
    for (const auto &entry : d->itemsByName)
        items.insert(entry.second);
    for (const auto &entry : d->namesByItem)
        items.insert(entry.first);
    d->itemsByName.clear();
    d->namesByItem.clear();
    for (ChartItem *item : items) {
        if (!d->isAlive(item))
            continue;
        item->detach(this);
        delete item;
    }
}

ChartItem *ChartThresholdManager::addItem(const std::string &name)
{
    if (name.empty())
        return nullptr;
    auto *marker = new PlotMarker(d->plot, PlotMarker::Mode(1));
    d->itemsByName[name] = marker;
    d->namesByItem[marker] = name;
    d->alive[marker] = marker;
    marker->attach(this);
    return marker;
}

ChartItem *ChartThresholdManager::item(const std::string &name) const
{
    const auto it = d->itemsByName.find(name);
    if (it == d->itemsByName.end() || !d->isAlive(it->second))
        return nullptr;
    return it->second;
}

void ChartThresholdManager::removeItem(const std::string &name)
{
    if (name.empty())
        return;
    const auto it = d->itemsByName.find(name);
    if (it == d->itemsByName.end())
        return;
    ChartItem *victim = it->second;
    const bool alive = d->isAlive(victim);
    d->itemsByName.erase(it);
    d->namesByItem.erase(victim);
    d->alive.erase(victim);
    if (alive) {
        victim->detach(this);
        delete victim;
    }
}

void ChartThresholdManager::setItemValue(const std::string &name, const double &value)
{
    if (name.empty())
        return;
    if (ChartItem *target = item(name))
        target->setValue(value);
}

void ChartThresholdManager::setItemRange(const std::string &name, const double &lower, const double &upper)
{
    if (name.empty())
        return;
    if (auto *marker = dynamic_cast<PlotMarker *>(item(name))) {
        marker->setLowerBound(lower);
        marker->setUpperBound(upper);
    }
}

void ChartThresholdManager::setAllowOverlapping(bool allow)
{
    d->allowOverlapping = allow;
}

bool ChartThresholdManager::allowOverlapping() const
{
    return d->allowOverlapping;
}

void ChartThresholdManager::update(void *subject)
{
    // Subjects are the markers created above; they notify as Observable, so
    // find the item by its Observable base rather than casting blindly.
    ChartItem *source = nullptr;
    for (const auto &entry : d->namesByItem) {
        if (static_cast<Observable *>(entry.first) == subject) {
            source = entry.first;
            break;
        }
    }
    if (!source)
        return;
    const double v = source->value();
    const std::string name = d->namesByItem[source];
    Q_EMIT itemChanged(source, v);
    Q_EMIT itemChanged(name, v);
}

} // namespace Utils
