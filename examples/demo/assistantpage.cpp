// SPDX-License-Identifier: LGPL-2.1-or-later
#include "assistantpage.h"

#include <assistant/buttoncomponent.h>
#include <assistant/buttonscomponent.h>
#include <assistant/comboboxcomponent.h>
#include <assistant/descriptionelement.h>
#include <assistant/labelcomponent.h>
#include <assistant/page.h>
#include <assistant/spacerelement.h>
#include <assistant/spinboxcomponent.h>
#include <assistant/switchcomponent.h>
#include <assistant/titlecomponent.h>
#include <assistant/urlelement.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QRandomGenerator>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

using namespace Assistant;

namespace {

const char *const kContext = "AssistantManager";

/*!
    The demo's own German texts. A host ships its assistant texts in its own
    catalogue, in the same "AssistantManager" context as the library's; a
    small table stands in for that catalogue here.
*/
class DemoGermanTexts : public QTranslator
{
public:
    DemoGermanTexts()
    {
        const char *const pairs[][2] = {
            { "Teach-in", "Einlernen" },
            { "This assistant teaches the switching point of the laser distance sensor in two steps.",
                "Dieser Assistent lernt den Schaltpunkt des Laserdistanzsensors in zwei Schritten ein." },
            { "Open the sensor manual", "Sensorhandbuch öffnen" },
            { "Teach the switching point", "Schaltpunkt einlernen" },
            { "Place the target at the switching distance, set the sensor up and press Teach.",
                "Das Objekt in den Schaltabstand bringen, den Sensor einstellen und Einlernen drücken." },
            { "Exposure time", "Belichtungszeit" },
            { "Laser on", "Laser an" },
            { "Mode", "Modus" },
            { "Standard", "Standard" },
            { "Fast", "Schnell" },
            { "High precision", "Hohe Genauigkeit" },
            { "How the mode trades speed for noise", "Wie der Modus Geschwindigkeit gegen Rauschen tauscht" },
            { "Low", "Niedrig" },
            { "Medium", "Mittel" },
            { "High", "Hoch" },
            { "Teach", "Einlernen" },
            { "Sensitivity", "Empfindlichkeit" },
            { "Switching point not taught yet", "Schaltpunkt noch nicht eingelernt" },
            { "Back", "Zurück" },
            { "Next", "Weiter" },
            { "Reset", "Zurücksetzen" },
            { "Step %1 of %2", "Schritt %1 von %2" },
            { "Saved: %1", "Gespeichert: %1" },
            { "exposure %1 ms, laser %2, mode %3, sensitivity %4",
                "Belichtung %1 ms, Laser %2, Modus %3, Empfindlichkeit %4" },
            { "on", "an" },
            { "off", "aus" },
        };
        for (const auto &pair : pairs)
            m_texts.insert(QString::fromUtf8(pair[0]), QString::fromUtf8(pair[1]));
    }

    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, kContext) != 0)
            return QString();
        return m_texts.value(QString::fromUtf8(sourceText));
    }
    bool isEmpty() const override { return false; }

private:
    QHash<QString, QString> m_texts;
};

QString tr8(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

DemoTeachAssistant::DemoTeachAssistant(QObject *parent)
    : AbstractManager(false, parent)
{
    setDefaltText(false);
}

void DemoTeachAssistant::buildContent()
{
    clearContent();

    auto *intro = new Page(this);
    intro->setObjectName(QStringLiteral("INTRO"));
    intro->setMinimumSize(QSize(370, 600));
    intro->setElements({
        new SpacerElement(20, this),
        new TitleComponent(this, tr8(QT_TRANSLATE_NOOP("AssistantManager", "Teach-in")), QString(), QString()),
        new SpacerElement(10, this),
        new DescriptionElement(this,
            tr8(QT_TRANSLATE_NOOP("AssistantManager",
                "This assistant teaches the switching point of the laser "
                "distance sensor in two steps."))),
        new UrlElement(this, tr8(QT_TRANSLATE_NOOP("AssistantManager", "Open the sensor manual")),
            QStringLiteral("https://example.invalid/manual.pdf"), QString()),
    });

    m_exposure = new SpinBoxComponent(
        this, 40, 5, 500, 5, QStringLiteral("ms"), tr8(QT_TRANSLATE_NOOP("AssistantManager", "Exposure time")));
    m_laser = new SwitchComponent(this, true, QString(), tr8(QT_TRANSLATE_NOOP("AssistantManager", "Laser on")));
    m_mode = new ComboBoxComponent(this,
        { tr8(QT_TRANSLATE_NOOP("AssistantManager", "Standard")), tr8(QT_TRANSLATE_NOOP("AssistantManager", "Fast")),
            tr8(QT_TRANSLATE_NOOP("AssistantManager", "High precision")) },
        0, tr8(QT_TRANSLATE_NOOP("AssistantManager", "Mode")),
        tr8(QT_TRANSLATE_NOOP("AssistantManager", "How the mode trades speed for noise")));
    m_sensitivity = new ButtonsComponent(this, 1,
        { tr8(QT_TRANSLATE_NOOP("AssistantManager", "Low")), tr8(QT_TRANSLATE_NOOP("AssistantManager", "Medium")),
            tr8(QT_TRANSLATE_NOOP("AssistantManager", "High")) },
        tr8(QT_TRANSLATE_NOOP("AssistantManager", "Sensitivity")), 3, 6);
    m_teach
        = new ButtonComponent(this, tr8(QT_TRANSLATE_NOOP("AssistantManager", "Teach")), QString(), QString(), false);
    m_taught = new LabelComponent(
        this, tr8(QT_TRANSLATE_NOOP("AssistantManager", "Switching point not taught yet")), QString(), 0);
    connect(m_teach, &Element::elementClicked, this, &DemoTeachAssistant::onElementClicked);

    auto *teach = new Page(this);
    teach->setObjectName(QStringLiteral("TEACH_PAGE"));
    teach->setMinimumSize(QSize(370, 640));
    teach->setElements({
        new SpacerElement(10, this),
        new TitleComponent(
            this, tr8(QT_TRANSLATE_NOOP("AssistantManager", "Teach the switching point")), QString(), QString()),
        new DescriptionElement(this,
            tr8(QT_TRANSLATE_NOOP("AssistantManager",
                "Place the target at the switching distance, set the "
                "sensor up and press Teach."))),
        new SpacerElement(6, this),
        m_exposure,
        m_laser,
        m_mode,
        m_sensitivity,
        m_teach,
        m_taught,
    });

    setContent({ intro, teach });
    buildLastPageContent(QString(), QString());
}

void DemoTeachAssistant::onElementClicked()
{
    if (sender() != m_teach)
        return;
    // The taught value is shown, not translated: it has no source text.
    m_taught->setText(tr("Switching point taught at %1 mm").arg(m_liveDistance, 0, 'f', 1));
    Q_EMIT modelDataChanged();
}

void DemoTeachAssistant::setLiveDistance(double millimetres)
{
    m_liveDistance = millimetres;
}

QString DemoTeachAssistant::summary() const
{
    return QCoreApplication::translate(kContext, "exposure %1 ms, laser %2, mode %3, sensitivity %4")
        .arg(m_exposure->spinValue())
        .arg(QCoreApplication::translate(kContext, m_laser->status() ? "on" : "off"))
        .arg(m_mode->itemList().value(m_mode->selectedIndex()))
        .arg(m_sensitivity->names().value(m_sensitivity->selected()));
}

void DemoTeachAssistant::saveSettings()
{
    m_saved = summary();
    Q_EMIT settingsSaved(m_saved);
}

void DemoTeachAssistant::save()
{
    saveSettings();
}

AssistantPage::AssistantPage(QWidget *parent)
    : DemoPage(parent)
    , m_assistant(new DemoTeachAssistant(this))
    , m_view(new QQuickWidget(this))
    , m_language(new QComboBox(this))
    , m_model(new QLabel(this))
    , m_sensor(new QTimer(this))
    , m_libraryGerman(new QTranslator)
    , m_demoGerman(new DemoGermanTexts)
{
    setObjectName(QStringLiteral("assistant"));
    Element::registerQmlElement();
    m_assistant->buildContent();
    m_libraryGerman->load(QStringLiteral(":/translations/utils_de.qm"));

    m_view->setResizeMode(QQuickWidget::SizeRootObjectToView);
    m_view->rootContext()->setContextProperty(QStringLiteral("assistant"), m_assistant);
    m_view->setSource(QUrl(QStringLiteral("qrc:/assistant/Assistant.qml")));
    for (const QQmlError &error : m_view->errors())
        qWarning("%s", qPrintable(error.toString()));
    m_view->setMinimumSize(420, 560);

    m_language->addItem(QStringLiteral("English"));
    m_language->addItem(QStringLiteral("Deutsch"));
    m_model->setWordWrap(true);
    m_model->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_model->setTextFormat(Qt::RichText);

    auto *side = new QVBoxLayout;
    side->addWidget(new QLabel(tr("Language"), this));
    side->addWidget(m_language);
    side->addSpacing(12);
    side->addWidget(new QLabel(tr("<b>The model as C++ sees it</b>"), this));
    side->addWidget(m_model, 1);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_view, 2);
    layout->addLayout(side, 1);

    connect(m_language, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        [this](int index) { setGerman(index == 1); });
    connect(m_assistant->exposure(), &SpinBoxComponent::spinValueChanged, this, &AssistantPage::showModel);
    connect(m_assistant->laser(), &SwitchComponent::statusChanged, this, &AssistantPage::showModel);
    connect(m_assistant->mode(), &ComboBoxComponent::selectedIndexChanged, this, &AssistantPage::showModel);
    connect(m_assistant->mode(), &ComboBoxComponent::itemListChanged, this, &AssistantPage::showModel);
    connect(m_assistant->sensitivity(), &ButtonsComponent::selectedChanged, this, &AssistantPage::showModel);
    connect(m_assistant->sensitivity(), &ButtonsComponent::namesChanged, this, &AssistantPage::showModel);
    connect(m_assistant, &DemoTeachAssistant::settingsSaved, this, &AssistantPage::showModel);
    connect(m_assistant, &DemoTeachAssistant::modelDataChanged, this, &AssistantPage::showModel);
    connect(m_assistant, &AbstractManager::minimumSizeChanged, this, &AssistantPage::showModel);
    // Feed the teach button with a distance that wanders like a real reading.
    connect(m_sensor, &QTimer::timeout, this,
        [this]() { m_assistant->setLiveDistance(120.0 + QRandomGenerator::global()->bounded(8.0)); });
    showModel();
}

AssistantPage::~AssistantPage()
{
    // The view's bindings read the assistant: the view goes first.
    delete m_view;
    m_view = nullptr;
    QCoreApplication::removeTranslator(m_libraryGerman.get());
    QCoreApplication::removeTranslator(m_demoGerman.get());
}

void AssistantPage::start()
{
    m_sensor->start(100);
    m_assistant->setLiveDistance(123.4);
    showPage(1);
    // What a user would do on the teach page; the view follows the model.
    m_assistant->exposure()->setSpinValue(65);
    m_assistant->mode()->setSelectedIndex(2);
    Q_EMIT m_assistant->teachButton()->elementClicked();
}

bool AssistantPage::showPage(int index)
{
    // The view listens for doSetCurrentPage and makes the page current itself.
    Q_EMIT m_assistant->doSetCurrentPage(index);
    return m_assistant->currentPageIndex() == index;
}

void AssistantPage::setGerman(bool german)
{
    QCoreApplication::removeTranslator(m_libraryGerman.get());
    QCoreApplication::removeTranslator(m_demoGerman.get());
    if (german) {
        QCoreApplication::installTranslator(m_libraryGerman.get());
        QCoreApplication::installTranslator(m_demoGerman.get());
    }
    m_assistant->translate();
    // The view's own button texts use qsTranslate in the same context.
    m_view->engine()->retranslate();
}

void AssistantPage::showModel()
{
    // The manager classifies the current page by its object name (nisDefaultText).
    QString kind;
    switch (m_assistant->nisDefaultText()) {
    case 1:
        kind = tr("password change page");
        break;
    case 2:
        kind = tr("save page");
        break;
    case 3:
        kind = tr("teach-in page");
        break;
    default:
        kind = tr("settings page");
        break;
    }
    QString text = tr("Page %1 of %2: %3%4<br><br>")
                       .arg(m_assistant->currentPageIndex() + 1)
                       .arg(m_assistant->content().size())
                       .arg(kind)
                       .arg(m_assistant->passwordPage() ? tr(" (password)") : QString());
    text += tr("Exposure: %1 ms<br>Laser: %2<br>Mode: %3<br>Sensitivity: %4")
                .arg(m_assistant->exposure()->spinValue())
                .arg(m_assistant->laser()->status() ? tr("on") : tr("off"))
                .arg(m_assistant->mode()->itemList().value(m_assistant->mode()->selectedIndex()))
                .arg(m_assistant->sensitivity()->names().value(m_assistant->sensitivity()->selected()));
    if (!m_assistant->savedSummary().isEmpty())
        text += tr("<br><br>Saved: %1").arg(m_assistant->savedSummary());
    m_model->setText(text);
}

void AssistantPage::writeArtifacts(const QDir &outputDir, QStringList *written)
{
    // The closing page, in German, as a second picture of the view.
    m_language->setCurrentIndex(1);
    showPage(m_assistant->content().size() - 1);
    m_assistant->save();
    QEventLoop loop;
    QTimer::singleShot(200, &loop, &QEventLoop::quit);
    loop.exec();
    const QString path = outputDir.absoluteFilePath(QStringLiteral("demo-assistant-save-de.png"));
    if (m_view->grabFramebuffer().save(path))
        *written << path;
}

DEMO_REGISTER_PAGE(AssistantPage, 50)
