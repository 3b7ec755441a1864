#include "system/testing/desktop.h"
#include "tests/e2e/programlines.h"
#include "tests/support/programprocess.h"
#include "tests/support/programtwin.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace {

/// The three zones' line with another word for the left one.
QString lineWithLeftWord(quint32 word)
{
    QStringList words = Lines::threeZones.split(QLatin1Char(','));
    words.first() = QString::number(word);
    return words.join(QLatin1Char(','));
}

/// The frame of a line, written out apart from the program's encoder: the length of what follows,
/// the length of the text, the text in two bytes a letter.
QByteArray onTheWire(const QString &line)
{
    QByteArray text;
    for (const char letter : line.toLatin1()) {
        text += '\0';
        text += letter;
    }
    const QByteArray lengths = QByteArray::number(text.size() + 4, 16).rightJustified(4, '0')
                               + QByteArray::number(text.size(), 16).rightJustified(8, '0');
    return QByteArray::fromHex(lengths) + text;
}

QStringList letters(const char *keys)
{
    QStringList names;
    for (const char key : QByteArray(keys)) {
        names += key == ' ' ? QStringLiteral("space") : QString(QLatin1Char(key));
    }
    return names;
}

/// The difference of the pixel that differs most.
QVector<int> greatestChange(const QImage &before, const QImage &after)
{
    QVector<int> greatest{0, 0, 0};
    int most = 0;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            const QRgb from = before.pixel(x, y);
            const QRgb to = after.pixel(x, y);
            const QVector<int> change{qRed(to) - qRed(from), qGreen(to) - qGreen(from),
                                      qBlue(to) - qBlue(from)};
            const int size = qAbs(change[0]) + qAbs(change[1]) + qAbs(change[2]);
            if (size > most) {
                most = size;
                greatest = change;
            }
        }
    }
    return greatest;
}

} // namespace

/// The road of one change, with a real pointer and a real keyboard: from the click to the bytes on
/// the socket, the settings file and the preview's pixels.
class TestZoneColour : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void appliedWithTheMouse();
    void appliedWithTheKeyboard();
    void cancelled();

private:
    void clickOn(const char *name) const
    {
        ProgramWindow::click(ProgramWindow::onScreen(*twin->window, name));
    }
    /// Clicks and lays the twin out as the program then is.
    void openPicker() const
    {
        clickOn("colorpick1");
        twin->get<QAbstractButton>("colorpick1")->click();
        // The button's place has another colour as soon as the panel covers it.
        QTest::qWait(500);
    }
    /// What the screen shows of a widget.
    QImage pictureOf(const char *name) const
    {
        ProgramWindow::onScreen(*twin->window, name);
        auto *const target = twin->get<QWidget>(name);
        return ProgramWindow::picture().copy(
            {target->mapTo(twin->window.get(), QPoint()), target->size()});
    }

    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<TestWindow> twin;
};

void TestZoneColour::initTestCase()
{
    ProgramTwin::takeOnItsLooks();
}

void TestZoneColour::init()
{
    twin.reset();
    program = std::make_unique<ProgramProcess>();
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    twin = std::make_unique<TestWindow>();
    twin->writeSettings(Lines::threeZonesSettings);
    twin->start();
    ServiceClient::readLine(); // the two that wake the keyboard
    ServiceClient::readLine();
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
}

void TestZoneColour::appliedWithTheMouse()
{
    const QImage before = pictureOf("keyboard_left");
    openPicker();
    clickOn("leRGB");
    Desktop::press({QStringLiteral("ctrl+a")});
    Desktop::press(letters("0 128 255"));
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones); // nothing is applied yet
    clickOn("pushButton");
    QTRY_COMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("0 128 255"));
    QCOMPARE(ProgramProcess::stored("Zone2Color"), QStringLiteral("0 255 0"));
    QCOMPARE(ProgramProcess::stored("singlecolorselectedlast"), QStringLiteral("false"));

    // Zone 0xF0, blue 255, red 0, green 128.
    QCOMPARE(ServiceClient::readAnswer().toHex(), onTheWire(lineWithLeftWord(0xF0FF0080U)).toHex());

    twin->get<QAbstractButton>("pushButton")->click();
    QTest::qWait(500);
    // Where the shape is opaque, 30 parts of 255 changed from red to the new colour.
    const QVector<int> change = greatestChange(before, pictureOf("keyboard_left"));
    QVERIFY2(qAbs(change[0] + 30) <= 2, qPrintable(QString::number(change[0])));
    QVERIFY2(qAbs(change[1] - 15) <= 2, qPrintable(QString::number(change[1])));
    QVERIFY2(qAbs(change[2] - 30) <= 2, qPrintable(QString::number(change[2])));
}

void TestZoneColour::appliedWithTheKeyboard()
{
    const QString tab = QStringLiteral("Tab");
    const QString leave = QStringLiteral("ctrl+Tab");
    // Backlight, slider, tabs, the first zone's button.
    Desktop::press({tab, tab, tab, tab, QStringLiteral("space")});
    QTest::qWait(500);
    // The square has the focus. Then strip, sample, RGB.
    Desktop::press({tab, tab, tab});
    Desktop::press(letters("0 255 128"));
    // HEX, list, copy, cancel, apply; paste is disabled.
    Desktop::press({leave, leave, tab, tab, tab, QStringLiteral("space")});
    QTRY_COMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("0 255 128"));
    QTRY_COMPARE(ServiceClient::readLine(), lineWithLeftWord(0xF08000FFU));

    // The focus is back on the button; the square takes it again: value 255 less ten, twice.
    Desktop::press({QStringLiteral("space")});
    QTest::qWait(500);
    Desktop::press({QStringLiteral("shift+Down"), QStringLiteral("shift+Down"), tab, tab, tab,
                    leave, leave, tab, tab, tab, QStringLiteral("space")});
    QTRY_COMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("0 235 118"));
}

void TestZoneColour::cancelled()
{
    openPicker();
    clickOn("leHex");
    Desktop::press({QStringLiteral("ctrl+a")});
    Desktop::press(letters("123456"));
    clickOn("pushButton_2");
    QTest::qWait(500);
    QCOMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("255 0 0"));
    QCOMPARE(ServiceClient::readLine(), Lines::threeZones);
    // The panel has gone: its place is the zones' again.
    twin->get<QAbstractButton>("pushButton_2")->click();
    openPicker();
    clickOn("pushButton");
    QTest::qWait(500);
    QCOMPARE(ProgramProcess::stored("Zone1Color"), QStringLiteral("255 0 0"));
}

QTEST_MAIN(TestZoneColour)
#include "tst_zonecolour.moc"
