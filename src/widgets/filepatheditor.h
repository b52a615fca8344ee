// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_FILEPATHEDITOR_H
#define UTILS_FILEPATHEDITOR_H

#include "utils_export.h"

#include <QWidget>

#include <memory>

class QEvent;

namespace Utils {

/*!
    \brief The editor of a file-path property: a line edit for the path and a
    "..." button that looks for a file in a file dialog.

    \sa FileEditFactory
*/
class UTILS_EXPORT FilePathEditor : public QWidget
{
    Q_OBJECT

public:
    explicit FilePathEditor(QWidget *parent = nullptr);
    ~FilePathEditor() override;

    //! Shows \a filePath in the line edit; emits nothing.
    void setFilePath(const QString &filePath);
    //! The text of the line edit.
    QString filePath() const;
    //! The name filter the file dialog offers, e.g. "Images (*.png *.jpg)".
    void setFilter(const QString &filter);
    //! The name filter; empty at first.
    QString filter() const;

Q_SIGNALS:
    /*!
        The user changed the path: at every keystroke that edits the line edit,
        and when a file is chosen in the dialog (even the one shown already).
    */
    void filePathChanged(const QString &filePath);

protected:
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    /*!
        Runs a modal file dialog offering the filter. When it is accepted, the
        first file chosen goes into the line edit and filePathChanged() is
        emitted; a cancelled dialog changes nothing.
    */
    void choosePath();

private:
    Q_DISABLE_COPY(FilePathEditor)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_FILEPATHEDITOR_H
