#include "system/testing/desktop.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/testsystem.h"

#include <QImage>
#include <QTest>

namespace {

/// The edge of the title buttons as the screen shows it, from the distance of their pictures; 0
/// where they are not to be seen.
int shownTitleButton(const QRect &window)
{
    constexpr int spacing = 6;
    constexpr QSize corner(170, 120);
    const QImage pixels = Desktop::picture(
        {window.topRight() + QPoint(-1 - corner.width(), 2), corner}); // within the window's border
    if (pixels.size() != corner) {
        return 0;
    }
    const QRgb background = pixels.pixel(0, 0);
    int bottom = 0; // of the header row, where the border of the backlight frame begins
    while (bottom < corner.height() && pixels.pixel(0, bottom) == background) {
        ++bottom;
    }
    QVector<int> edges; // first column of a picture, first one behind it, and so on
    for (int x = 0; x < corner.width(); ++x) {
        bool drawn = false;
        for (int y = 0; y < bottom; ++y) {
            drawn = drawn || pixels.pixel(x, y) != background;
        }
        if (drawn != (edges.size() % 2 != 0)) {
            edges += x;
        }
    }
    if (edges.size() != 4) {
        return 0;
    }
    return (edges.at(2) + edges.at(3) - edges.at(0) - edges.at(1)) / 2 - spacing;
}

} // namespace

/// The program on displays of every density, which the desktop's own settings tell it.
class TestDisplayDpi : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void sizes_data();
    void sizes();

private:
    std::optional<int> desktopsOwn;
};

void TestDisplayDpi::initTestCase()
{
    if (TestSystem::isPersonsOwn()) {
        QSKIP("changes the scale of the screen");
    }
    // What overrides the desktop.
    qunsetenv("QT_FONT_DPI");
    desktopsOwn = TestSystem::displayDpi();
}

void TestDisplayDpi::cleanupTestCase()
{
    if (!TestSystem::isPersonsOwn()) {
        TestSystem::setDisplayDpi(desktopsOwn);
        QVERIFY(TestSystem::displayDpi() == desktopsOwn);
    }
}

void TestDisplayDpi::sizes_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QSize>("least");
    QTest::addColumn<QSize>("most");
    QTest::addColumn<int>("titleButton");
    // As wide as the form opens; as tall as the band says.
    for (const int dpi : {96, 241, 264, 287}) {
        QTest::addRow("%d", dpi) << dpi << QSize(630, 630) << QSize(630, 630) << 25;
    }
    for (const int dpi : {97, 120}) {
        QTest::addRow("%d", dpi) << dpi << QSize(630, 680) << QSize(630, 680) << 30;
    }
    // The font, which is the desktop's, may want more, yet less than the next band.
    for (const int dpi : {121, 144}) {
        QTest::addRow("%d", dpi) << dpi << QSize(720, 780) << QSize(799, 889) << 34;
    }
    QTest::newRow("168") << 168 << QSize(800, 890) << QSize(899, 959) << 38;
    QTest::newRow("192") << 192 << QSize(900, 960) << QSize(940, 1009) << 42;
    QTest::newRow("216") << 216 << QSize(920, 1010) << QSize(999, 1049) << 48;
    QTest::newRow("240") << 240 << QSize(980, 1050) << QSize(1199, 1199) << 48;
    // The form's greatest height is below these minimums, which win.
    for (const int dpi : {288, 335}) {
        QTest::addRow("%d", dpi) << dpi << QSize(1200, 1250) << QSize(1400, 1250) << 52;
    }
    QTest::newRow("336") << 336 << QSize(1200, 1250) << QSize(1400, 1250) << 56;
}

void TestDisplayDpi::sizes()
{
    QFETCH(int, dpi);
    QFETCH(QSize, least);
    QFETCH(QSize, most);
    QFETCH(int, titleButton);
    TestSystem::setDisplayDpi(dpi);
    ProgramProcess program;
    QVERIFY(program.startAndServe());
    QRect window;
    // The screen may show it before it has its size, and the tool stumbles over windows that go
    // while it looks at all there are.
    const bool fits = QTest::qWaitFor(
        [&] {
            window = ProgramWindow::geometry();
            return window.size().expandedTo(least) == window.size()
                   && window.size().boundedTo(most) == window.size();
        },
        patienceMs);
    const QByteArray found =
        QByteArray::number(window.width()) + 'x' + QByteArray::number(window.height());
    QVERIFY2(fits, found.constData());
    QVERIFY2(program.log().contains("Logical DPI: " + QByteArray::number(dpi)),
             program.log().constData());

    int shown = 0;
    const auto isRight = [&] {
        shown = shownTitleButton(window);
        return shown == titleButton;
    };
    if (!isRight()) {
        // A corner that the display does not reach, or that is not painted yet.
        Desktop::move(ProgramWindow::shown(), {0, 0});
        window.moveTopLeft({0, 0});
        QVERIFY2(QTest::qWaitFor(isRight, patienceMs), QByteArray::number(shown).constData());
    }
    // It has not gone through the right size on its way to another.
    QTest::qWait(300);
    QCOMPARE(ProgramWindow::geometry().size(), window.size());
}

QTEST_MAIN(TestDisplayDpi)
#include "tst_displaydpi.moc"
