#pragma once

#include <QObject>

class QWidget;

/// Remembers whether the mouse or anything else worked some widgets last: where the focus goes from
/// there is marked for those who came by the keyboard alone.
class LastInput : public QObject
{
    Q_OBJECT

public:
    explicit LastInput(QObject *parent = nullptr);

    void watch(QWidget &widget);
    bool wasMouse() const { return mouse; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool mouse = false;
};
