// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef UTILS_CONNECTIONSTATUS_H
#define UTILS_CONNECTIONSTATUS_H

#include "utils_export.h"

#include <QColor>
#include <QWidget>

#include <memory>

namespace Utils {

/*!
    \brief Shows whether the sensor is connected: a coloured state lamp and
    the text "Sensor Connected" or "Sensor disconnected".

    The two texts are written exactly so (the capital C of the first one
    included), translated in the context Utils::ConnectionStatus and again
    when the application's language changes. The lamp is green while
    connected and red while not; both colours can be set, also from a style
    sheet (qproperty-connectedColor, qproperty-disconnectedColor).

    The host sets the state (setConnected()); a new indicator shows
    "Sensor disconnected". connectedChanged() is emitted only when the state
    really changes. The indicator takes no input.
*/
class UTILS_EXPORT ConnectionStatus : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool connected READ isConnected WRITE setConnected NOTIFY connectedChanged)
    Q_PROPERTY(QColor connectedColor READ connectedColor WRITE setConnectedColor)
    Q_PROPERTY(QColor disconnectedColor READ disconnectedColor WRITE setDisconnectedColor)
    Q_PROPERTY(QString text READ text)

public:
    explicit ConnectionStatus(QWidget *parent = nullptr);
    ~ConnectionStatus() override;

    bool isConnected() const;
    //! "Sensor Connected" or "Sensor disconnected", in the current language.
    QString text() const;
    //! The lamp colour in the connected state (default RGB 0, 170, 60).
    void setConnectedColor(const QColor &color);
    QColor connectedColor() const;
    //! The lamp colour in the disconnected state (default RGB 210, 40, 40).
    void setDisconnectedColor(const QColor &color);
    QColor disconnectedColor() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void setConnected(bool connected);

Q_SIGNALS:
    void connectedChanged(bool connected);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    int lampDiameter() const;
    void textChanged();

    Q_DISABLE_COPY(ConnectionStatus)
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace Utils

#endif // UTILS_CONNECTIONSTATUS_H
