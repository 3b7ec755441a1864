#pragma once

#include "app/startup.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QFont>
#include <QTest>

/// What the tests share that CTest runs once for each DPI that counts.
namespace DpiTest {

constexpr const char *tooSmallInTheGap =
    "In the gap the form's sizes are too small for the font, on purpose.";

inline int dpi()
{
    return QApplication::desktop()->logicalDpiX();
}

/// Makes style and font what they are at the start of the program. Fails the test where the toolkit
/// has not got the DPI that CTest has told.
inline void takeOnLooks()
{
    if (qEnvironmentVariableIsSet("LUMIKEY_TEST_DPI")) {
        QCOMPARE(dpi(), qEnvironmentVariableIntValue("LUMIKEY_TEST_DPI"));
    }
    QApplication::setStyle(new DarkStyle);
    if (const auto pixelSize = fontPixelSize(dpi())) {
        QFont font = QApplication::font();
        font.setPixelSize(*pixelSize);
        QApplication::setFont(font);
    }
}

/// Unlike QTEST_MAIN, leaves the style's own lengths to the DPI.
template<class Test> int run(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace DpiTest
