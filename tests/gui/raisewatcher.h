#pragma once

#include <QEvent>
#include <QWidget>

/// Counts how often a window is asked to come to the front.
class RaiseWatcher : public QObject
{
public:
    explicit RaiseWatcher(QWidget &window) { window.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::ZOrderChange ? 1 : 0;
        return false;
    }

    int count = 0;
};
