// SPDX-License-Identifier: LGPL-2.1-or-later
// The code README.md shows under "Sensor telegrams", compiled by the package tests.
#include "snippets.h"

#include <utils/telegrams/dataframesender.h>

#include <QWidget>

#include <string>

namespace {
// Stands in for the host's serial port.
struct Port
{
    void write(const std::string &frame) { last = frame; }
    std::string last;
};
} // namespace

int runExchange(QWidget *window)
{
    Port port;
//! [telegrams]
std::list<Utils::DataSequence> steps{{"020105001400030001000000", "^0201", {}, 500.0}};
Utils::DataFrameSender sender(&steps, window);
QObject::connect(&sender, &Utils::DataFrameSender::vSendData,
                 [&](std::string frame) { port.write(frame); });
// wherever the port reads a reply: sender.vDataReceived(reply);
const int ok = sender.nStart();   // 1 after the last step, 0 on a time-out or a wrong reply
//! [telegrams]
    return ok;
}
