// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DEMO_ASSISTANTPAGE_H
#define DEMO_ASSISTANTPAGE_H

#include "demopage.h"

#include <assistant/abstractmanager.h>

#include <memory>

class QComboBox;
class QLabel;
class QQuickWidget;
class QTimer;
class QTranslator;

namespace Assistant {
class ButtonComponent;
class ButtonsComponent;
class ComboBoxComponent;
class LabelComponent;
class SpinBoxComponent;
class SwitchComponent;
} // namespace Assistant

/*!
    A concrete assistant as a host writes one: the teach-in of the simulated
    laser distance sensor. An introduction, the teach page (exposure, laser,
    mode, sensitivity and the teach button) and the library's closing save
    page.
*/
class DemoTeachAssistant : public Assistant::AbstractManager
{
    Q_OBJECT

public:
    explicit DemoTeachAssistant(QObject *parent = nullptr);

    void buildContent() override;
    void saveSettings() override;

    //! The view's "Save" on the closing page.
    Q_INVOKABLE void save();
    //! Simulates a reading of the sensor for the teach button.
    void setLiveDistance(double millimetres);

    Assistant::SpinBoxComponent *exposure() const { return m_exposure; }
    Assistant::SwitchComponent *laser() const { return m_laser; }
    Assistant::ComboBoxComponent *mode() const { return m_mode; }
    Assistant::ButtonsComponent *sensitivity() const { return m_sensitivity; }
    Assistant::ButtonComponent *teachButton() const { return m_teach; }
    QString savedSummary() const { return m_saved; }

Q_SIGNALS:
    void settingsSaved(const QString &summary);

public Q_SLOTS:
    void onElementClicked() override;

private:
    QString summary() const;

    Assistant::SpinBoxComponent *m_exposure = nullptr;
    Assistant::SwitchComponent *m_laser = nullptr;
    Assistant::ComboBoxComponent *m_mode = nullptr;
    Assistant::ButtonsComponent *m_sensitivity = nullptr;
    Assistant::ButtonComponent *m_teach = nullptr;
    Assistant::LabelComponent *m_taught = nullptr;
    double m_liveDistance = 0.0;
    QString m_saved;
};

//! The assistant in a QML view, with the model's values shown beside it from C++.
class AssistantPage : public DemoPage
{
    Q_OBJECT

public:
    explicit AssistantPage(QWidget *parent = nullptr);
    ~AssistantPage() override;

    QString title() const override { return tr("Assistant"); }
    void start() override;
    void writeArtifacts(const QDir &outputDir, QStringList *written) override;

private:
    void setGerman(bool german);
    void showModel();
    bool showPage(int index);

    DemoTeachAssistant *m_assistant;
    QQuickWidget *m_view;
    QComboBox *m_language;
    QLabel *m_model;
    QTimer *m_sensor;
    std::unique_ptr<QTranslator> m_libraryGerman;
    std::unique_ptr<QTranslator> m_demoGerman;
};

#endif // DEMO_ASSISTANTPAGE_H
