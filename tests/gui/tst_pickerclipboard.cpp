#include "tests/gui/pickerfields.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QWindow>

using namespace PickerFields;

/// Colours that go to the clipboard and come from there.
class TestPickerClipboard : public QObject
{
    Q_OBJECT

private slots:
    void copying();
    void pasting();
    void pastingNothing();
    void draggedSampleCopiesNothing_data();
    void draggedSampleCopiesNothing();
};

void TestPickerClipboard::copying()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=0 128 255\n");
    const QClipboard *const clipboard = QGuiApplication::clipboard();
    auto *const bar = world.get<QStatusBar>("statusBar");
    world.window->copyRGB();
    QCOMPARE(clipboard->text(), QStringLiteral("0, 128, 255"));
    QCOMPARE(bar->currentMessage(), QStringLiteral("RGB copied"));

    QVERIFY(!world.get<QWidget>("bPasteHex")->isEnabled());
    world.get<QAbstractButton>("bHex")->click();
    QCOMPARE(clipboard->text(), QStringLiteral("0080ff"));
    QCOMPARE(bar->currentMessage(), QStringLiteral("Hex copied"));
    QVERIFY(world.get<QWidget>("bPasteHex")->isEnabled());

    world.window->show();
    auto *const sample = world.get<QWidget>("colorSample");
    QTest::mouseClick(sample, Qt::RightButton);
    QCOMPARE(clipboard->text(), QStringLiteral("#0080ff"));
    QCOMPARE(bar->currentMessage(), QStringLiteral("Hex # copied"));
    QTest::mouseClick(sample, Qt::LeftButton);
    QCOMPARE(clipboard->text(), QStringLiteral("0080ff"));
    auto *const forgetting = bar->findChild<QTimer *>();
    QCOMPARE(forgetting->interval(), 3000);
    forgetting->start(0);
    QTRY_COMPARE(bar->currentMessage(), QString());
}

void TestPickerClipboard::pasting()
{
    TestWindow world;
    open(world, "colorpick1");
    world.get<QAbstractButton>("bHex")->click();
    QGuiApplication::clipboard()->setText(QStringLiteral("#0A0"));
    world.get<QAbstractButton>("bPasteHex")->click();
    QCOMPARE(text(world, "leRGB"), QStringLiteral("0 170 0"));
    QCOMPARE(text(world, "leHex"), QStringLiteral("00aa00"));
    QCOMPARE(world.get<QStatusBar>("statusBar")->currentMessage(),
             QStringLiteral("Hex value pasted"));
}

void TestPickerClipboard::pastingNothing()
{
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=255 0 0\n");
    for (const char *junk : {"", "hello", "#12345", "1234567"}) {
        QGuiApplication::clipboard()->setText(QString::fromLatin1(junk));
        world.window->pasteHex();
        QCOMPARE(text(world, "leHex"), QStringLiteral("ff0000"));
        QCOMPARE(world.get<QStatusBar>("statusBar")->currentMessage(), QString());
    }
}

void TestPickerClipboard::draggedSampleCopiesNothing_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("back");
    QTest::addColumn<bool>("copies");
    QTest::newRow("a click") << QPoint() << false << true;
    QTest::newRow("an unsteady click") << QPoint(1, 1) << false << true;
    QTest::newRow("a drag") << QPoint(30, 40) << false << false;
    QTest::newRow("there and back") << QPoint(30, 40) << true << false;
}

/// The window is dragged by the sample as well, which then is not what was meant.
void TestPickerClipboard::draggedSampleCopiesNothing()
{
    QFETCH(QPoint, way);
    QFETCH(bool, back);
    QFETCH(bool, copies);
    TestWindow world;
    open(world, "colorpick1", "Zone1Color=0 128 255\n");
    MainWindow &window = *world.window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    const QPoint before = window.pos();
    auto *const sample = world.get<QWidget>("colorSample");
    const QPoint from = sample->mapTo(&window, sample->rect().center());
    QWindow *const native = window.windowHandle();
    QTest::mousePress(native, Qt::LeftButton, Qt::NoModifier, from);
    if (!way.isNull()) {
        QTest::mouseMove(native, from + way);
        QCOMPARE(window.pos(), before + way);
    }
    if (back) {
        QTest::mouseMove(native, from - way);
        QCOMPARE(window.pos(), before);
    }
    QTest::mouseRelease(native, Qt::LeftButton, Qt::NoModifier, from);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             copies ? QStringLiteral("0080ff") : QStringLiteral("kept"));
    QTest::mouseClick(native, Qt::LeftButton, Qt::NoModifier, from); // the next click counts
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("0080ff"));
}

QTEST_MAIN(TestPickerClipboard)
#include "tst_pickerclipboard.moc"
