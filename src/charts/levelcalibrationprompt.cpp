// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/levelcalibrationprompt.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace Utils {

namespace {

// The sensor's lens as the user should make it: dark under a cover, bright before a white target.
QPixmap pictogram(LevelCalibrationPrompt::Level level)
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(110, 110, 110), 3));
    painter.setBrush(level == LevelCalibrationPrompt::BlackLevel ? QColor(20, 20, 20) : QColor(Qt::white));
    painter.drawEllipse(QRectF(4.5, 4.5, 39.0, 39.0));
    return pixmap;
}

} // namespace

struct LevelCalibrationPrompt::Private
{
    LevelCalibrationPrompt::Level level = BlackLevel;
    bool hasReading = false;
    double reading[3] = {0.0, 0.0, 0.0};
    QLabel *heading = nullptr;
    QLabel *instruction = nullptr;
    QLabel *step = nullptr;
    QLabel *readingLabel = nullptr;
    QPushButton *confirm = nullptr;
    QPushButton *cancel = nullptr;
};

LevelCalibrationPrompt::LevelCalibrationPrompt(Level level, QWidget *parent)
    : QDialog(parent)
    , d(std::make_unique<Private>())
{
    d->level = level;
    setModal(true);
    auto *picture = new QLabel(this);
    picture->setPixmap(pictogram(level));
    picture->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    d->heading = new QLabel(this);
    QFont bold = d->heading->font();
    bold.setBold(true);
    if (bold.pointSizeF() > 0.0)
        bold.setPointSizeF(bold.pointSizeF() * 1.15);
    d->heading->setFont(bold);
    d->instruction = new QLabel(this);
    d->instruction->setWordWrap(true);
    d->step = new QLabel(this);
    d->step->setWordWrap(true);
    d->readingLabel = new QLabel(this);
    d->readingLabel->setObjectName(QStringLiteral("readingLabel"));

    auto *buttons = new QDialogButtonBox(this);
    d->confirm = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
    d->confirm->setObjectName(QStringLiteral("confirmButton"));
    d->confirm->setDefault(true);
    d->cancel = buttons->addButton(QString(), QDialogButtonBox::RejectRole);
    d->cancel->setObjectName(QStringLiteral("cancelButton"));
    bool ok = true;
    ok &= bool(connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept));
    ok &= bool(connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject));
    Q_ASSERT(ok);
    Q_UNUSED(ok)

    auto *layout = new QGridLayout(this);
    layout->setHorizontalSpacing(12);
    layout->addWidget(picture, 0, 0, 4, 1);
    layout->addWidget(d->heading, 0, 1);
    layout->addWidget(d->instruction, 1, 1);
    layout->addWidget(d->step, 2, 1);
    layout->addWidget(d->readingLabel, 3, 1);
    layout->addWidget(buttons, 4, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    retranslate();
    setMinimumWidth(380);
}

LevelCalibrationPrompt::~LevelCalibrationPrompt() = default;

LevelCalibrationPrompt::Level LevelCalibrationPrompt::eLevel() const
{
    return d->level;
}

void LevelCalibrationPrompt::vSetReading(const double &red, const double &green, const double &blue)
{
    if (d->hasReading && d->reading[0] == red && d->reading[1] == green && d->reading[2] == blue)
        return;
    d->hasReading = true;
    d->reading[0] = red;
    d->reading[1] = green;
    d->reading[2] = blue;
    showReading();
}

void LevelCalibrationPrompt::vClearReading()
{
    if (!d->hasReading)
        return;
    d->hasReading = false;
    showReading();
}

bool LevelCalibrationPrompt::hasReading() const
{
    return d->hasReading;
}

QList<double> LevelCalibrationPrompt::oReading() const
{
    if (!d->hasReading)
        return {};
    return {d->reading[0], d->reading[1], d->reading[2]};
}

QString LevelCalibrationPrompt::oInstruction() const
{
    return d->level == BlackLevel ? tr("Cover the sensor so that no light reaches it.")
                                  : tr("Present a white target to the sensor at its working distance.");
}

void LevelCalibrationPrompt::retranslate()
{
    const QString title = d->level == BlackLevel ? tr("Black level calibration") : tr("White level calibration");
    setWindowTitle(title);
    d->heading->setText(title);
    d->instruction->setText(oInstruction());
    d->step->setText(tr("When the reading below is steady, click Confirm."));
    d->confirm->setText(tr("Confirm"));
    d->cancel->setText(tr("Cancel"));
    showReading();
}

void LevelCalibrationPrompt::showReading()
{
    d->confirm->setEnabled(d->hasReading);
    if (!d->hasReading) {
        d->readingLabel->setText(tr("Waiting for a reading from the sensor..."));
        return;
    }
    // Whole counts are what the user compares; the level keeps the exact reading.
    d->readingLabel->setText(tr("Reading: R %1  G %2  B %3")
                                 .arg(d->reading[0], 0, 'f', 0)
                                 .arg(d->reading[1], 0, 'f', 0)
                                 .arg(d->reading[2], 0, 'f', 0));
}

void LevelCalibrationPrompt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

} // namespace Utils
