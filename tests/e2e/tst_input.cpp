#include "system/platform.h"
#include "system/testing/desktop.h"

#include <QTest>
#include <QWidget>

Q_DECLARE_METATYPE(Desktop::Button)

/// The system's own door, under real presses: what it reports of keys and buttons.
class TestInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void nothingPressed();
    void aKeyCountsOnce();
    void mouseButtons_data();
    void mouseButtons();
    void movingThePointerIsNoPress();

private:
    /// What has been reported until the presses of one input have had time to arrive.
    KeyPresses reported();

    std::unique_ptr<Platform> platform = createPlatform();
    QWidget window;
};

void TestInput::initTestCase()
{
    window.setGeometry(100, 100, 300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    Desktop::movePointer({200, 200});
}

void TestInput::init()
{
    reported();
}

KeyPresses TestInput::reported()
{
    KeyPresses all;
    for (int poll = 0; poll < 5; ++poll) {
        QTest::qWait(100);
        all |= platform->keysPressedSinceLastPoll();
    }
    return all;
}

void TestInput::nothingPressed()
{
    QVERIFY(reported().none());
}

void TestInput::aKeyCountsOnce()
{
    Desktop::press({QStringLiteral("a")});
    const KeyPresses presses = reported();
    QCOMPARE(presses.count(), std::size_t{1});
    QVERIFY((presses >> 7).any()); // no code of the mouse
    QVERIFY(reported().none());
}

void TestInput::mouseButtons_data()
{
    QTest::addColumn<Desktop::Button>("button");
    QTest::addColumn<int>("code");
    QTest::newRow("left") << Desktop::Button::Left << 1;
    QTest::newRow("middle") << Desktop::Button::Middle << 4;
    QTest::newRow("right") << Desktop::Button::Right << 2;
}

void TestInput::mouseButtons()
{
    QFETCH(Desktop::Button, button);
    QFETCH(int, code);
    Desktop::pressButton(button);
    Desktop::releaseButton(button);
    QCOMPARE(reported(), KeyPresses().set(static_cast<std::size_t>(code)));
    QVERIFY(reported().none());
}

void TestInput::movingThePointerIsNoPress()
{
    Desktop::movePointer({210, 210});
    QVERIFY(reported().none());
}

QTEST_MAIN(TestInput)
#include "tst_input.moc"
