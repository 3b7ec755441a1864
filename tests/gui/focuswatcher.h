#pragma once

#include <QFocusEvent>
#include <QVector>
#include <QWidget>

/// Notes why a widget has come to the focus each time.
class FocusWatcher : public QObject
{
public:
    explicit FocusWatcher(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn) {
            reasons.append(static_cast<const QFocusEvent *>(event)->reason());
        }
        return false;
    }

    QVector<Qt::FocusReason> reasons;
};
