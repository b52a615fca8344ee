// SPDX-License-Identifier: LGPL-2.1-or-later
#include <utils/core/log.h>
#include <utils/core/observer.h>

#include <QCoreApplication>

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
    QCoreApplication app(argc, argv);
    Utils::Observable subject;
    Counter counter;
    subject.attach(&counter);
    subject.notify();
    auto *log = Utils::LoggingSystem::Log::requestInstance();
    log->vLog(Utils::LoggingSystem::Log::eInfo, "Consumer", "linked %d", counter.calls);
    Utils::LoggingSystem::Log::releaseInstance(false);
    std::printf("consumer ok %d\n", counter.calls);
    return counter.calls == 1 ? 0 : 1;
}
