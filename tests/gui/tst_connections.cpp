#include "formtables.h"

#include "tests/support/testwindow.h"

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
    const QByteArray signalCode = QByteArray::number(QSIGNAL_CODE) + signal;
    const QByteArray slotCode = QByteArray::number(QSLOT_CODE) + slot;
    if (sender->metaObject()->indexOfSignal(signal) < 0
        || receiver->metaObject()->indexOfMethod(slot) < 0) {
        return -1;
    }
    int count = 0;
    while (QObject::disconnect(sender, signalCode.constData(), receiver, slotCode.constData())) {
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

QTEST_MAIN(TestConnections)
#include "tst_connections.moc"
