#pragma once

#include "tests/support/lightinglines.h"
#include "tests/support/pictures.h"
#include "tests/support/testwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QTest>

namespace DimWorldLines {
using LightingLines::wake;
const QString &dark = LightingLines::off;
const QString red = QStringLiteral("4026597120,4043309056,4060086272,4076863488,0");
} // namespace DimWorldLines

/// A window with auto-dim on and a red left zone, whose polls the test makes by hand.
class DimWorld : public TestWindow
{
public:
    static constexpr std::size_t aKey = 65;
    static constexpr std::size_t leftButton = 1;

    /// With auto-dim on. The event loop must not run long: the settings are applied once more a
    /// second after the window was made.
    void startDimming(const QByteArray &more = "brightlevel=100\n")
    {
        writeDimSettings(more);
        start().brightnessapply();
        get<QCheckBox>("CheckBox_AutoDim")->click();
    }
    /// The same when that second is over and both wake lines of the start have been sent.
    void serveDimming()
    {
        writeDimSettings("brightlevel=100\n");
        construct();
        QTRY_COMPARE(leftWord(), QStringLiteral("4026597120"));
        readLine();
        readLine();
        QCOMPARE(readLine(), DimWorldLines::red);
        get<QCheckBox>("CheckBox_AutoDim")->click();
    }
    /// The time between two polls passes, and the words follow the slider before the next.
    void poll()
    {
        clock += 100;
        window->timerDone();
        window->brightnessapply();
    }
    void pollUntilDimmed()
    {
        clock += 3'600'000;
        for (int count = 0; count < 50; ++count) {
            window->timerDone();
        }
        window->brightnessapply();
        QCOMPARE(shown(), 0);
    }
    void pollWithPress(std::size_t code)
    {
        platform.presses.set(code);
        poll();
    }
    int shown() const { return get<QSlider>("horizontalSlider")->value(); }
    bool enabled() const { return get<QSlider>("horizontalSlider")->isEnabled(); }
    QString label() const { return get<QLabel>("label_2")->text(); }
    QString leftWord() const { return window->lightingState().leftWord; }
    bool wakePending() const { return window->wakeSequence().wakePending; }

private:
    void writeDimSettings(const QByteArray &more)
    {
        writeSettings("backlight_on=true\nZone1Color=255 0 0\n" + more);
        writePictures();
    }
};
