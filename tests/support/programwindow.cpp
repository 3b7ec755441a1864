#include "tests/support/programwindow.h"

#include "system/testing/desktop.h"
#include "tests/support/guitest.h"
#include "tests/support/patience.h"

#include <QTest>

quintptr ProgramWindow::shown()
{
    const QVector<quintptr> found = Desktop::shownWindows(QStringLiteral("^Lumikey$"));
    return found.size() == 1 ? found.first() : 0;
}

QRect ProgramWindow::geometry()
{
    const quintptr window = shown();
    return window == 0 ? QRect() : Desktop::geometry(window);
}

QImage ProgramWindow::picture()
{
    return Desktop::picture(geometry());
}

void ProgramWindow::click(const QPoint &onScreen)
{
    Desktop::click(onScreen);
}

void ProgramWindow::drag(const QPoint &from, const QPoint &to)
{
    // Steps with pauses: a press and a jump may arrive as one event.
    constexpr int pauseMs = 100;
    Desktop::movePointer(from);
    Desktop::pressButton(Desktop::Button::Left);
    for (const QPoint &place : {(from + to) / 2, to}) {
        QTest::qWait(pauseMs);
        Desktop::movePointer(place);
    }
    QTest::qWait(pauseMs);
    Desktop::releaseButton(Desktop::Button::Left);
}

QPoint ProgramWindow::onScreen(QWidget &twin, const char *name, const QPoint &offset)
{
    QRect place;
    if (!QTest::qWaitFor(
            [&place] {
                place = geometry();
                return !place.isEmpty();
            },
            patienceMs)) {
        qFatal("the program shows no window to click on");
    }
    twin.resize(place.size());
    twin.grab(); // lays everything out without showing it
    const auto *const target = widget<QWidget>(twin, name);
    return place.topLeft() + target->mapTo(&twin, target->rect().center()) + offset;
}
