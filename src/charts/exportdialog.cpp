// SPDX-License-Identifier: LGPL-2.1-or-later
#include "charts/exportdialog.h"

#include "charts/csvtext_p.h"

#include "charts/valueovertime.h"

#include <QCheckBox>
#include <QDate>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ctime>
#include <limits>
#include <vector>

namespace Utils {

namespace {

constexpr int previewRows = 10;
//! The most decimals a double has (the smallest subnormal is 2^-1074).
constexpr int maxPrecision = 1074;

} // namespace

//! The form: the widgets the dialog is built from, by their object names.
struct ExportDialogUi
{
    QGroupBox *GB_Separator = nullptr;
    QCheckBox *CB_Tab = nullptr;
    QCheckBox *CB_Semicolon = nullptr;
    QCheckBox *CB_Space = nullptr;
    QCheckBox *CB_Comma = nullptr;
    QCheckBox *CB_Other = nullptr;
    QLineEdit *LN_Other = nullptr;
    QGroupBox *GB_Location = nullptr;
    QLineEdit *LE_Location = nullptr;
    QPushButton *PB_Select = nullptr;
    QGroupBox *GB_OutputPreview = nullptr;
    QTextEdit *TB_OutputPreview = nullptr;
    QDialogButtonBox *buttonBox = nullptr;

    void setupUi(QDialog *dialog)
    {
        auto named = [](auto *widget, const char *name) {
            widget->setObjectName(QLatin1String(name));
            return widget;
        };
        dialog->setObjectName(QStringLiteral("ExportDialog"));
        dialog->resize(420, 460);
        auto *layout = new QVBoxLayout(dialog);

        GB_Separator = named(new QGroupBox(dialog), "GB_Separator");
        auto *separators = new QGridLayout(GB_Separator);
        CB_Tab = named(new QCheckBox(GB_Separator), "CB_Tab");
        CB_Semicolon = named(new QCheckBox(GB_Separator), "CB_Semicolon");
        CB_Space = named(new QCheckBox(GB_Separator), "CB_Space");
        CB_Comma = named(new QCheckBox(GB_Separator), "CB_Comma");
        CB_Other = named(new QCheckBox(GB_Separator), "CB_Other");
        LN_Other = named(new QLineEdit(GB_Separator), "LN_Other");
        separators->addWidget(CB_Tab, 0, 0);
        separators->addWidget(CB_Semicolon, 0, 1);
        separators->addWidget(CB_Space, 0, 2);
        separators->addWidget(CB_Comma, 1, 0);
        separators->addWidget(CB_Other, 1, 1);
        separators->addWidget(LN_Other, 1, 2);
        layout->addWidget(GB_Separator);

        GB_Location = named(new QGroupBox(dialog), "GB_Location");
        auto *location = new QHBoxLayout(GB_Location);
        LE_Location = named(new QLineEdit(GB_Location), "LE_Location");
        // The path comes from the file chooser only.
        LE_Location->setReadOnly(true);
        PB_Select = named(new QPushButton(GB_Location), "PB_Select");
        PB_Select->setAutoDefault(false);
        location->addWidget(LE_Location);
        location->addWidget(PB_Select);
        layout->addWidget(GB_Location);

        GB_OutputPreview = named(new QGroupBox(dialog), "GB_OutputPreview");
        auto *preview = new QVBoxLayout(GB_OutputPreview);
        TB_OutputPreview = named(new QTextEdit(GB_OutputPreview), "TB_OutputPreview");
        TB_OutputPreview->setReadOnly(true);
        TB_OutputPreview->setLineWrapMode(QTextEdit::NoWrap);
        preview->addWidget(TB_OutputPreview);
        layout->addWidget(GB_OutputPreview, 1);

        buttonBox = named(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog), "buttonBox");
        layout->addWidget(buttonBox);
    }
};

struct ExportDialog::Private
{
    QList<const ValueOverTime *> *data = nullptr;
    QList<QString> *headers = nullptr;
    QString delimiter = QStringLiteral(",");
    int precision = 0;
    QString fileName;
    ExportDialogUi ui;

    const ValueOverTime *series(int index) const { return data && index < data->size() ? data->at(index) : nullptr; }
    int rowCount() const
    {
        const ValueOverTime *first = series(0);
        return first ? first->size() : 0;
    }
};

ExportDialog::ExportDialog(
    QList<const ValueOverTime *> *data, QList<QString> *headers, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , d(new Private)
{
    d->data = data;
    d->headers = headers;
    ExportDialogUi &ui = d->ui;
    ui.setupUi(this);
    vRetranslateUi();
    ui.CB_Comma->setChecked(true);
    ui.buttonBox->setEnabled(false);

    for (QCheckBox *box : { ui.CB_Tab, ui.CB_Semicolon, ui.CB_Space, ui.CB_Comma, ui.CB_Other })
        connect(box, &QCheckBox::stateChanged, this, &ExportDialog::vDelimiterUpdated);
    connect(ui.LN_Other, &QLineEdit::textChanged, this, &ExportDialog::vDelimiterUpdated);
    connect(ui.PB_Select, &QPushButton::clicked, this, &ExportDialog::vSelectFileDialog);
    connect(ui.buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, &ExportDialog::vFinished);

    if (!data) {
        accept();
        return;
    }
    vRefreshOutputData();
}

ExportDialog::~ExportDialog() = default;

void ExportDialog::setPrecision(int precision)
{
    if (precision < 0)
        precision = 6;
    precision = std::min(precision, maxPrecision);
    if (precision == d->precision)
        return;
    d->precision = precision;
    vRefreshOutputData();
}

int ExportDialog::precision() const
{
    return d->precision;
}

QString ExportDialog::delimiter() const
{
    return d->delimiter;
}

QString ExportDialog::fileName() const
{
    return d->fileName;
}

void ExportDialog::vDelimiterUpdated()
{
    const ExportDialogUi &ui = d->ui;
    QString delimiter;
    if (ui.CB_Tab->isChecked())
        delimiter += QLatin1Char('\t');
    if (ui.CB_Comma->isChecked())
        delimiter += QLatin1Char(',');
    if (ui.CB_Semicolon->isChecked())
        delimiter += QLatin1Char(';');
    if (ui.CB_Space->isChecked())
        delimiter += QLatin1Char(' ');
    // Through Latin-1 on purpose: characters outside it become '?'.
    if (ui.CB_Other->isChecked())
        delimiter += QString::fromLatin1(ui.LN_Other->text().toLatin1());
    d->delimiter = delimiter;
    vRefreshOutputData();
}

void ExportDialog::vSelectFileDialog()
{
    const QString proposed
        = QStringLiteral("export-%1.csv").arg(QDate::currentDate().toString(QStringLiteral("dd-MM-yyyy")));
    const QString chosen = QFileDialog::getSaveFileName(this, tr("Save As..."), proposed, QStringLiteral("*.csv"));
    if (chosen.isEmpty())
        return;
    d->fileName = chosen;
    d->ui.LE_Location->setText(chosen);
    d->ui.buttonBox->setEnabled(true);
}

void ExportDialog::vFinished(int result)
{
    if (result != QDialog::Accepted || d->fileName.isEmpty())
        return;
    // Failure is reported by bSaveToFile's result only; the dialog shows no message.
    bSaveToFile(oExportData(0, -1));
}

void ExportDialog::vRefreshOutputData()
{
    QTextEdit *preview = d->ui.TB_OutputPreview;
    preview->clear();
    preview->setPlainText(QString::fromUtf8(oExportData(0, std::min(d->rowCount(), previewRows))));
}

QByteArray ExportDialog::oExportData(int first, int last)
{
    QList<const ValueOverTime *> columns;
    if (d->data)
        columns = *d->data;
    const QStringList titles = d->headers ? QStringList(*d->headers) : QStringList();
    return Text::csv(columns, d->headers ? &titles : nullptr, d->delimiter, d->precision, first, last);
}

bool ExportDialog::bSaveToFile(const QByteArray &data)
{
    if (d->fileName.isEmpty())
        return false;
    // Written beside the target and renamed over it only when complete, so a
    // full disk or a lost write leaves the previous file as it was.
    QSaveFile file(d->fileName);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(data) != data.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

void ExportDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        vRetranslateUi();
    QDialog::changeEvent(event);
}

void ExportDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // A dialog without data has nothing to offer: exec() and show() end at once.
    if (!d->data)
        QMetaObject::invokeMethod(
            this, [this]() { accept(); }, Qt::QueuedConnection);
}

void ExportDialog::vRetranslateUi()
{
    ExportDialogUi &ui = d->ui;
    setWindowTitle(tr("Dialog"));
    ui.GB_Separator->setTitle(tr("Separated by"));
    ui.CB_Tab->setText(tr("Tab"));
    ui.CB_Semicolon->setText(tr("Semicolon"));
    ui.CB_Space->setText(tr("Space"));
    ui.CB_Comma->setText(tr("Comma"));
    ui.CB_Other->setText(tr("Other"));
    ui.GB_Location->setTitle(tr("Location"));
    ui.PB_Select->setText(tr("Select"));
    ui.GB_OutputPreview->setTitle(tr("Output Preview"));
}

} // namespace Utils
