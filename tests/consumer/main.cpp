// SPDX-License-Identifier: LGPL-2.1-or-later
// The smallest host: one header of every subsystem from the installed tree.
#include <utils/assistant/element.h>
#include <utils/charts/valueovertime.h>
#include <utils/core/log.h>
#include <utils/core/observer.h>
#include <utils/plot/plot.h>
#include <utils/telegrams/tamarindprotocolheader.h>
#include <utils/thresholds/thresholdsdata.h>
#include <utils/version.h>

#include "snippets.h"

#include <QApplication>
#include <QMainWindow>
#include <QPlainTextEdit>

#include <cstdio>

namespace {
class Counter : public Utils::Observer
{
public:
    void update(void *) override { ++calls; }
    int calls = 0;
};
} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    Utils::ThresholdsData thresholds;
    Counter counter;
    thresholds.attach(&counter);
    thresholds.notify();

    auto *log = Utils::LoggingSystem::Log::requestInstance();
    log->vLog(Utils::LoggingSystem::Log::eInfo, "Consumer", "linked %d", counter.calls);
    Utils::LoggingSystem::Log::releaseInstance(false);

    QMainWindow window;
    QPlainTextEdit logView;
    showSensorWindow(&window, &logView);
    const bool logged = logView.toPlainText().startsWith(QStringLiteral("utils " UTILS_VERSION_STRING));
    onSample(makeSensorChart(&window), 120.0);

    Utils::Plot plot;
    plot.resize(400, 300);
    const bool painted = !plot.grab().isNull();

    Utils::TamarindProtocolHeader header(std::string("0201050014000300FF000000"));
    Assistant::Element::registerQmlElement();

    Utils::ValueOverTime series;
    series.vAppend(5.0, 1000.0);
    series.vAppend(5.0, 1000.0);

    std::printf("consumer ok %d %d %s %s\n", counter.calls, painted ? 1 : 0,
                thresholds.toHexString(Utils::ThresholdsData::Red).c_str(), Utils::oVersionString());
    return counter.calls == 1 && painted && logged && header.u16ProtocolLenght() == 20
                   && Utils::u32Version() == UTILS_VERSION && series.size() == 1
               ? 0
               : 1;
}
