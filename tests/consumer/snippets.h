// SPDX-License-Identifier: LGPL-2.1-or-later
// The README's examples, as functions the consumer can call.
#ifndef UTILS_CONSUMER_SNIPPETS_H
#define UTILS_CONSUMER_SNIPPETS_H

class QMainWindow;
class QPlainTextEdit;
class QWidget;

void showSensorWindow(QMainWindow *window, QPlainTextEdit *logView);
int runExchange(QWidget *window);

namespace Utils {
namespace Charts {
class GenericChart;
}
} // namespace Utils
Utils::Charts::GenericChart *makeSensorChart(QMainWindow *window);
void onSample(Utils::Charts::GenericChart *chart, double distance);
void exportRecording(Utils::Charts::GenericChart *chart, QWidget *parent);

#endif // UTILS_CONSUMER_SNIPPETS_H
