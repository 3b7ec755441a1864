#pragma once

#include "tests/support/programwindow.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QByteArray>
#include <QFont>

/// A window of this process laid out like the running program's: it tells where to click.
class ProgramTwin
{
public:
    /// @param settings what the program has been started with, without the head line
    explicit ProgramTwin(const QByteArray &settings)
    {
        world.writeSettings(settings);
        world.start();
    }

    /// Makes this process look like the program; once, before the first twin.
    static void takeOnItsLooks()
    {
        QApplication::setStyle(new DarkStyle); // the application takes ownership
        QFont font = QApplication::font();
        font.setPixelSize(12);
        QApplication::setFont(font);
    }

    /// Clicks the middle of a widget of the program with the real pointer.
    void click(const char *name) const
    {
        ProgramWindow::click(ProgramWindow::onScreen(*world.window, name));
    }

private:
    TestWindow world;
};
