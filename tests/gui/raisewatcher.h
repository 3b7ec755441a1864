#pragma once

#include <QEvent>
#include <QWidget>

/// Counts how often a window is asked to come to the front.
class RaiseWatcher : public QObject
{
public:
    explicit RaiseWatcher(QWidget &watchedWindow)
        : window(watchedWindow)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::ZOrderChange) {
            ++count;
            wasVisible = window.isVisible();
        }
        return false;
    }

    int count = 0;
    bool wasVisible = false; ///< the last time

private:
    QWidget &window;
};
