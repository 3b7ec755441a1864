#include "formtables.h"

#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>

namespace {

struct PickerConnection
{
    const char *sender; ///< nullptr: the window
    const char *signal;
    const char *receiver; ///< nullptr: the window
    const char *slot;
};

constexpr std::array pickerConnections{
    PickerConnection{"hSelector", "hueChanged(QColor)", "svSelector", "changeHue(QColor)"},
    PickerConnection{"svSelector", "colorChanged(QColor)", "colorSample", "changeColor(QColor)"},
    PickerConnection{"colorSample", "colorChanged(QColor)", nullptr, "updateColorText(QColor)"},
    PickerConnection{"leRGB", "textEdited(QString)", nullptr, "updateColorRGB(QString)"},
    PickerConnection{"leHex", "textEdited(QString)", nullptr, "updateColorHex(QString)"},
    PickerConnection{"bHex", "clicked()", nullptr, "copyHex()"},
    PickerConnection{"bPasteHex", "clicked()", nullptr, "pasteHex()"},
    PickerConnection{"colorSample", "samplePressedLeft()", nullptr, "copyHex()"},
    PickerConnection{"colorSample", "samplePressedRight()", nullptr, "copyHexHash()"},
    PickerConnection{nullptr, "mouseMovedOnWindow()", "colorSample", "mouseMovedOnWindow()"},
    PickerConnection{nullptr, "mouseReleasedOnWindow()", "colorSample", "mouseReleasedOnWindow()"},
};

/// How often a signal is joined to a slot; every joint is undone.
int takeConnections(const QObject *sender, const char *signal, const QObject *receiver,
                    const char *slot)
{
    const int signalIndex = sender->metaObject()->indexOfSignal(signal);
    const int slotIndex = receiver->metaObject()->indexOfMethod(slot);
    if (signalIndex < 0 || slotIndex < 0) {
        return -1;
    }
    int count = 0;
    // One by one: QObject::disconnect() would take a doubled joint for a single one.
    while (QMetaObject::disconnectOne(sender, signalIndex, receiver, slotIndex)) {
        ++count;
    }
    return count;
}

} // namespace

class TestConnections : public QObject
{
    Q_OBJECT

private slots:
    void formControls_data();
    void formControls();
    void picker_data();
    void picker();
    void nothingElseIsJoined();
    void hueReachesTheFieldsOnce();
    void typingReachesTheSelectorsOnce();
    void buttonsAndSampleCopyOnce();
    void windowDragReachesTheSample();
};

void TestConnections::formControls_data()
{
    QTest::addColumn<QString>("sender");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("slot");
    for (const formtables::Connection &row : formtables::connections) {
        QTest::newRow(row.slot) << QString::fromLatin1(row.sender) << QByteArray(row.signal)
                                << QByteArray(row.slot);
    }
}

void TestConnections::formControls()
{
    QFETCH(QString, sender);
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, slot);
    TestWindow world;
    world.construct();
    QCOMPARE(takeConnections(world.get<QWidget>(qPrintable(sender)), signal.constData(),
                             world.window.get(), slot.constData()),
             1);
}

void TestConnections::picker_data()
{
    QTest::addColumn<int>("index");
    for (std::size_t i = 0; i < pickerConnections.size(); ++i) {
        const PickerConnection &row = pickerConnections.at(i);
        QTest::addRow("%s to %s", row.signal, row.slot) << static_cast<int>(i);
    }
}

void TestConnections::picker()
{
    QFETCH(int, index);
    const PickerConnection &row = pickerConnections.at(static_cast<std::size_t>(index));
    TestWindow world;
    world.construct();
    const auto object = [&world](const char *name) -> QObject * {
        if (name == nullptr) {
            return world.window.get();
        }
        return world.get<QWidget>(name);
    };
    QCOMPARE(takeConnections(object(row.sender), row.signal, object(row.receiver), row.slot), 1);
}

void TestConnections::nothingElseIsJoined()
{
    TestWindow world;
    world.construct();
    const std::initializer_list<std::pair<const char *, const char *>> unjoined{
        {"colorSample", SIGNAL(samplePressedMiddle())},
        {"svSelector", SIGNAL(saturationChanged(QColor))},
        {"svSelector", SIGNAL(valueChanged(QColor))},
        {"svSelector", SIGNAL(middlePressedSignal(QMouseEvent *))},
        {"hSelector", SIGNAL(middlePressedSignal(QMouseEvent *))},
        {"colorSample", SIGNAL(middlePressedSignal(QMouseEvent *))},
    };
    for (const auto &[sender, signal] : unjoined) {
        QVERIFY2(!world.get<QWidget>(sender)->disconnect(signal), signal);
    }
}

void TestConnections::hueReachesTheFieldsOnce()
{
    TestWindow world;
    world.construct();
    const QSignalSpy square(world.get<QWidget>("svSelector"), SIGNAL(colorChanged(QColor)));
    const QSignalSpy sample(world.get<QWidget>("colorSample"), SIGNAL(colorChanged(QColor)));
    const QSignalSpy rgb(world.get<QWidget>("leRGB"), SIGNAL(textChanged(QString)));
    const QSignalSpy hex(world.get<QWidget>("leHex"), SIGNAL(textChanged(QString)));
    const QSignalSpy edited(world.get<QWidget>("leRGB"), SIGNAL(textEdited(QString)));
    emit world.get<HSelector>("hSelector")->hueChanged(QColor(0, 255, 0));
    QCOMPARE(square.size(), 1);
    QCOMPARE(sample.size(), 1);
    QCOMPARE(rgb.size(), 1);
    QCOMPARE(hex.size(), 1);
    QCOMPARE(edited.size(), 0); // the chain ends at the fields
    QCOMPARE(world.get<QLineEdit>("leRGB")->text(), QStringLiteral("0 255 0"));
    QCOMPARE(world.get<QLineEdit>("leHex")->text(), QStringLiteral("00ff00"));
}

void TestConnections::typingReachesTheSelectorsOnce()
{
    TestWindow world;
    world.construct();
    const QSignalSpy strip(world.get<QWidget>("hSelector"), SIGNAL(hueChanged(QColor)));
    const QSignalSpy placed(world.get<QWidget>("svSelector"), SIGNAL(saturationChanged(QColor)));
    emit world.get<QLineEdit>("leRGB")->textEdited(QStringLiteral("0 0 255"));
    QCOMPARE(strip.size(), 1);
    QCOMPARE(placed.size(), 1);
    QCOMPARE(world.get<QLineEdit>("leHex")->text(), QStringLiteral("0000ff"));
    emit world.get<QLineEdit>("leHex")->textEdited(QStringLiteral("00ff00"));
    QCOMPARE(strip.size(), 2);
    QCOMPARE(placed.size(), 2);
    QCOMPARE(world.get<QLineEdit>("leRGB")->text(), QStringLiteral("0 255 0"));
}

void TestConnections::buttonsAndSampleCopyOnce()
{
    TestWindow world;
    world.construct();
    const QSignalSpy messages(world.get<QStatusBar>("statusBar"), SIGNAL(messageChanged(QString)));
    const auto told = [&messages] {
        return messages.isEmpty() ? QString() : messages.last().first().toString();
    };
    auto *const hex = world.get<QLineEdit>("leHex");
    hex->setText(QStringLiteral("0080ff"));
    QClipboard &clipboard = *QGuiApplication::clipboard();

    world.get<QAbstractButton>("bHex")->click();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(told(), QStringLiteral("Hex copied"));
    QCOMPARE(clipboard.text(), QStringLiteral("0080ff"));
    QVERIFY(world.get<QAbstractButton>("bPasteHex")->isEnabled());

    clipboard.setText(QStringLiteral("#0A0"));
    world.get<QAbstractButton>("bPasteHex")->click();
    QCOMPARE(messages.size(), 2);
    QCOMPARE(told(), QStringLiteral("Hex value pasted"));
    QCOMPARE(hex->text(), QStringLiteral("00aa00"));

    emit world.get<ColorSample>("colorSample")->samplePressedLeft();
    QCOMPARE(messages.size(), 3);
    QCOMPARE(told(), QStringLiteral("Hex copied"));
    QCOMPARE(clipboard.text(), QStringLiteral("00aa00"));

    emit world.get<ColorSample>("colorSample")->samplePressedRight();
    QCOMPARE(messages.size(), 4);
    QCOMPARE(told(), QStringLiteral("Hex # copied"));
    QCOMPARE(clipboard.text(), QStringLiteral("#00aa00"));
}

void TestConnections::windowDragReachesTheSample()
{
    TestWindow world;
    MainWindow &window = world.construct();
    auto *const sample = world.get<ColorSample>("colorSample");
    const QSignalSpy clicks(sample, SIGNAL(samplePressedLeft()));
    emit window.mouseMovedOnWindow();
    QTest::mouseRelease(sample, Qt::LeftButton);
    QCOMPARE(clicks.size(), 0);
    emit window.mouseMovedOnWindow();
    emit window.mouseReleasedOnWindow();
    QTest::mouseRelease(sample, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
}

QTEST_MAIN(TestConnections)
#include "tst_connections.moc"
