#pragma once

#include <QObject>

class QMouseEvent;
class QSlider;

/// Lets a click with the left button in the groove of a horizontal slider set the value there; the
/// handle can be dragged on at once. A click on the handle moves nothing, and whatever else the
/// slider does stays as it is.
class GrooveClick : public QObject
{
    Q_OBJECT

public:
    /// Watches and is owned by @p slider.
    explicit GrooveClick(QSlider *slider);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void goTo(const QPoint &position);

    QSlider *slider;
};
