// SPDX-License-Identifier: LGPL-2.1-or-later
#include "widgets/outputselector.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace Utils {

struct OutputSelector::Private
{
    int output = 1;
    int count = 1;
    QLabel *label = nullptr;
    QHBoxLayout *layout = nullptr;
    QButtonGroup *group = nullptr;
    std::vector<QToolButton *> buttons; // buttons[i] is output i + 1
};

OutputSelector::OutputSelector(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    // The selector keeps the focus itself, so that the keys act on it and not on one button.
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    d->label = new QLabel(this);
    d->layout = new QHBoxLayout(this);
    d->layout->setContentsMargins(3, 3, 3, 3);
    d->layout->setSpacing(2);
    d->layout->addWidget(d->label);
    d->layout->addSpacing(4);
    d->group = new QButtonGroup(this);
    d->group->setExclusive(true);
    const bool ok = connect(d->group, &QButtonGroup::idClicked, this, &OutputSelector::setOutput);
    Q_ASSERT(ok);
    Q_UNUSED(ok)
    rebuildButtons();
    retranslate();
}

OutputSelector::~OutputSelector() = default;

int OutputSelector::output() const
{
    return d->output;
}

int OutputSelector::outputCount() const
{
    return d->count;
}

void OutputSelector::setOutputCount(int count)
{
    count = std::clamp(count, 1, kMaximumOutputs);
    if (count == d->count)
        return;
    d->count = count;
    const bool outputLost = d->output > count;
    if (outputLost)
        d->output = count;
    rebuildButtons();
    retranslate();
    Q_EMIT outputCountChanged(count);
    if (outputLost)
        Q_EMIT outputChanged(d->output);
}

void OutputSelector::setOutput(int output)
{
    if (output < 1 || output > d->count || output == d->output) {
        // A click on the pressed button leaves it pressed; nothing else to do.
        return;
    }
    d->output = output;
    d->buttons[size_t(output - 1)]->setChecked(true);
    update();
    Q_EMIT outputChanged(output);
}

void OutputSelector::rebuildButtons()
{
    while (int(d->buttons.size()) > d->count) {
        QToolButton *button = d->buttons.back();
        d->buttons.pop_back();
        d->group->removeButton(button);
        delete button;
    }
    while (int(d->buttons.size()) < d->count) {
        const int number = int(d->buttons.size()) + 1;
        auto *button = new QToolButton(this);
        button->setObjectName(QStringLiteral("output%1").arg(number));
        button->setText(QString::number(number));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoRaise(false);
        button->setMinimumWidth(button->sizeHint().height());
        d->group->addButton(button, number);
        d->layout->addWidget(button);
        d->buttons.push_back(button);
    }
    d->buttons[size_t(d->output - 1)]->setChecked(true);
}

void OutputSelector::retranslate()
{
    d->label->setText(tr("Output"));
    for (size_t i = 0; i < d->buttons.size(); ++i)
        d->buttons[i]->setToolTip(tr("Switching output %1").arg(int(i) + 1));
    setToolTip(tr("Choose the switching output"));
}

void OutputSelector::keyPressEvent(QKeyEvent *event)
{
    int wanted = 0;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        wanted = d->output - 1;
        break;
    case Qt::Key_Right:
    case Qt::Key_Up:
        wanted = d->output + 1;
        break;
    case Qt::Key_Home:
        wanted = 1;
        break;
    case Qt::Key_End:
        wanted = d->count;
        break;
    default:
        if (event->key() >= Qt::Key_1 && event->key() <= Qt::Key_9 && !(event->modifiers() & ~Qt::KeypadModifier))
            wanted = event->key() - Qt::Key_0;
        else {
            QWidget::keyPressEvent(event);
            return;
        }
    }
    setOutput(wanted);
    event->accept();
}

void OutputSelector::paintEvent(QPaintEvent *)
{
    if (!hasFocus())
        return;
    // The focus is the selector's: the frame goes around the chosen output.
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = d->buttons[size_t(d->output - 1)]->geometry().adjusted(-2, -2, 2, 2);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void OutputSelector::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void OutputSelector::focusInEvent(QFocusEvent *event)
{
    update();
    QWidget::focusInEvent(event);
}

void OutputSelector::focusOutEvent(QFocusEvent *event)
{
    update();
    QWidget::focusOutEvent(event);
}

} // namespace Utils
