// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_OUTPUTSELECTOR_H
#define UTILS_OUTPUTSELECTOR_H

#include "utils_export.h"

#include <QWidget>

#include <memory>

namespace Utils {

/*!
    \brief Chooses one of the sensor's switching outputs, numbered from 1 as
    the threshold managers number them.

    The selector shows the label "Output" and one button per output, "1" to
    "n", of which the chosen one is pressed. The host sets n (setOutputCount(),
    1 to 32, default 1); output() is always within 1..n, so it can be passed to
    Utils::ThresholdDataManager and its siblings as it is.

    The user chooses with a click on a button or, while the selector has the
    focus, with the keys: Left or Down for the previous output, Right or Up for
    the next, Home for the first, End for the last, and the digits 1 to 9 for
    that output. Nothing wraps around, and keys for outputs outside 1..n are
    ignored.

    setOutput() ignores numbers outside 1..n. Lowering n below the chosen
    output chooses n. outputChanged() and outputCountChanged() are emitted
    only on a real change. Texts are translated (context Utils::OutputSelector)
    and again on a language change.
*/
class UTILS_EXPORT OutputSelector : public QWidget
{
    Q_OBJECT
    //! The chosen output, 1..outputCount().
    Q_PROPERTY(int output READ output WRITE setOutput NOTIFY outputChanged USER true)
    //! The number of switching outputs, 1..32.
    Q_PROPERTY(int outputCount READ outputCount WRITE setOutputCount NOTIFY outputCountChanged)

public:
    //! The most outputs a selector offers.
    static constexpr int kMaximumOutputs = 32;

    explicit OutputSelector(QWidget *parent = nullptr);
    ~OutputSelector() override;

    int output() const;
    int outputCount() const;
    //! Sets the number of outputs, clamped to 1..32.
    void setOutputCount(int count);

public Q_SLOTS:
    //! Chooses \a output; a number outside 1..outputCount() is ignored.
    void setOutput(int output);

Q_SIGNALS:
    //! The chosen output changed; \a output is one-based.
    void outputChanged(int output);
    void outputCountChanged(int count);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void rebuildButtons();
    void retranslate();

    Q_DISABLE_COPY(OutputSelector)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_OUTPUTSELECTOR_H
