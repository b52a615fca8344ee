// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/filepatheditor.h"

#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace Utils {

struct FilePathEditor::Private
{
    QLineEdit *lineEdit;
    QPushButton *button;
    QString filter;
};

FilePathEditor::FilePathEditor(QWidget *parent)
    : QWidget(parent)
    , d(new Private { new QLineEdit(this), new QPushButton(this), {} })
{
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    layout->addWidget(d->lineEdit);
    layout->addWidget(d->button);
    d->button->setText(tr("..."));

    // textEdited, not textChanged: only the user's keystrokes are reported, not setFilePath().
    const bool edited
        = connect(d->lineEdit, SIGNAL(textEdited(const QString &)), this, SIGNAL(filePathChanged(const QString &)));
    Q_ASSERT(edited);
    Q_UNUSED(edited)
    connect(d->button, &QPushButton::clicked, this, &FilePathEditor::choosePath);
}

FilePathEditor::~FilePathEditor() = default;

void FilePathEditor::setFilePath(const QString &filePath)
{
    d->lineEdit->setText(filePath);
}

QString FilePathEditor::filePath() const
{
    return d->lineEdit->text();
}

void FilePathEditor::setFilter(const QString &filter)
{
    d->filter = filter;
}

QString FilePathEditor::filter() const
{
    return d->filter;
}

void FilePathEditor::choosePath()
{
    QFileDialog dialog(nullptr, QString(), QString(), QString());
    dialog.setNameFilter(d->filter);
    // The browser may close this editor while the dialog runs its own event loop.
    const QPointer<FilePathEditor> alive(this);
    if (dialog.exec() != QDialog::Accepted || !alive)
        return;
    const QStringList files = dialog.selectedFiles();
    if (files.isEmpty())
        return;
    d->lineEdit->setText(files.first());
    Q_EMIT filePathChanged(files.first());
}

void FilePathEditor::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->button->setText(tr("..."));
    QWidget::changeEvent(event);
}

} // namespace Utils
