#include "system/x11keypresses.h"
#include "tests/support/patience.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QProcess>
#include <QSet>
#include <QTest>
#include <QThread>
#include <QWidget>

#include <sys/ioctl.h>

namespace {

/// Key codes of X11, as its usual keyboards have them.
constexpr std::size_t escapeKey = 9;
constexpr std::size_t aKey = 38;
constexpr std::size_t bKey = 56;
constexpr std::size_t shiftKey = 50;
constexpr std::size_t lastCode = 253;

/// Real events through the display server.
void xdotool(const QStringList &arguments)
{
    if (QProcess::execute(QStringLiteral("xdotool"), arguments) != 0) {
        qFatal("xdotool failed");
    }
}

void press(const char *key)
{
    xdotool({QStringLiteral("key"), QString::fromLatin1(key)});
}

QString codes(const KeyPresses &presses)
{
    QStringList list;
    for (std::size_t code = 0; code < presses.size(); ++code) {
        if (presses.test(code)) {
            list << QString::number(code);
        }
    }
    return list.join(QLatin1Char(' '));
}

QString codes(std::initializer_list<std::size_t> list)
{
    KeyPresses presses;
    for (const std::size_t code : list) {
        presses.set(code);
    }
    return codes(presses);
}

/// The sockets of this process, by their descriptors.
QSet<QString> openSockets()
{
    QSet<QString> sockets;
    const QDir files(QStringLiteral("/proc/self/fd"));
    for (const QFileInfo &file : files.entryInfoList(QDir::AllEntries | QDir::System)) {
        if (file.symLinkTarget().contains(QStringLiteral("socket:"))) {
            sockets.insert(file.fileName());
        }
    }
    return sockets;
}

/// How many bytes wait to be read from a socket; -1 when that cannot be told.
int waitingBytes(const QString &socket)
{
    int bytes = -1;
    return ::ioctl(socket.toInt(), FIONREAD, &bytes) == 0 ? bytes : -1;
}

/// A display server of this test's own, without a window manager.
class OwnDisplay
{
public:
    OwnDisplay()
    {
        server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                              QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        while (!server.canReadLine() && server.waitForReadyRead(10000)) {
        }
        number = ':' + server.readLine().trimmed();
    }
    ~OwnDisplay() { end(); }
    Q_DISABLE_COPY(OwnDisplay)

    void end()
    {
        server.kill();
        server.waitForFinished();
    }

    QByteArray number;

private:
    QProcess server;
};

/// Counts warnings in place of the usual handler.
class WarningsCounted
{
public:
    WarningsCounted() { counted() = 0; }
    ~WarningsCounted() { qInstallMessageHandler(former); }
    Q_DISABLE_COPY(WarningsCounted)

    static int count() { return counted(); }

private:
    static int &counted()
    {
        static int number = 0;
        return number;
    }
    static void take(QtMsgType type, const QMessageLogContext & /*context*/,
                     const QString & /*text*/)
    {
        counted() += type == QtDebugMsg || type == QtInfoMsg ? 0 : 1;
    }

    QtMessageHandler former = qInstallMessageHandler(take);
};

/// Names another display as long as it lives.
class OtherDisplay
{
public:
    explicit OtherDisplay(const QByteArray &number) { qputenv("DISPLAY", number); }
    ~OtherDisplay() { qputenv("DISPLAY", former); }
    Q_DISABLE_COPY(OtherDisplay)

private:
    QByteArray former = qgetenv("DISPLAY");
};

} // namespace

/// All through real events; what is to stay unseen is followed by a key that is seen, so that no
/// test waits for nothing.
class TestX11KeyPresses : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void keyIsSeenOnce();
    void pressesBeforeTheFirstPoll();
    void severalKeys();
    void heldKey();
    void keyCodes_data();
    void keyCodes();
    void buttons_data();
    void buttons();
    void pointerMoves();
    void grabbedByAnotherWindow();
    void pollThatIsFasterThanTheEventLoop();
    void nothingPilesUpBetweenPolls();
    void twoListeners();
    void noDisplay_data();
    void noDisplay();
    void displayGoes();

private:
    /// Everything pressed until @p last was.
    KeyPresses pressesUntil(std::size_t last)
    {
        KeyPresses all;
        const bool seen = QTest::qWaitFor(
            [&] {
                all |= presses->takePresses();
                return all.test(last);
            },
            patienceMs);
        if (!seen) {
            qWarning("only seen: %s", qPrintable(codes(all)));
        }
        return all;
    }

    std::unique_ptr<X11KeyPresses> presses;
};

void TestX11KeyPresses::init()
{
    presses = std::make_unique<X11KeyPresses>();
}

void TestX11KeyPresses::cleanup()
{
    press("Escape"); // whatever menu a click has opened
}

void TestX11KeyPresses::keyIsSeenOnce()
{
    QVERIFY(presses->takePresses().none());
    for (int time = 0; time < 2; ++time) {
        press("a");
        QCOMPARE(codes(pressesUntil(aKey)), codes({aKey}));
        QVERIFY(presses->takePresses().none());
    }
}

void TestX11KeyPresses::pressesBeforeTheFirstPoll()
{
    press("a");
    QCOMPARE(codes(pressesUntil(aKey)), codes({aKey}));
}

void TestX11KeyPresses::severalKeys()
{
    xdotool({QStringLiteral("key"), QStringLiteral("b"), QStringLiteral("shift+a")});
    QCOMPARE(codes(pressesUntil(aKey)), codes({bKey, shiftKey, aKey}));
}

void TestX11KeyPresses::heldKey()
{
    xdotool({QStringLiteral("keydown"), QStringLiteral("a")});
    QCOMPARE(codes(pressesUntil(aKey)), codes({aKey}));
    QTest::qWait(1000); // longer than until a key repeats itself
    QVERIFY(presses->takePresses().none());
    xdotool({QStringLiteral("keyup"), QStringLiteral("a")});
    press("Escape");
    QCOMPARE(codes(pressesUntil(escapeKey)), codes({escapeKey})); // a release is no press
}

void TestX11KeyPresses::keyCodes_data()
{
    QTest::addColumn<int>("x11Code");
    QTest::addColumn<int>("code");
    for (const int code : {10, 38, 127, 128, 200, 252, 253}) {
        QTest::addRow("%d", code) << code << code;
    }
    QTest::newRow("beyond the last") << 254 << static_cast<int>(lastCode);
    QTest::newRow("last of all") << 255 << static_cast<int>(lastCode);
}

void TestX11KeyPresses::keyCodes()
{
    QFETCH(int, x11Code);
    QFETCH(int, code);
    press(QByteArray::number(x11Code).constData());
    QCOMPARE(codes(pressesUntil(static_cast<std::size_t>(code))), QString::number(code));
}

void TestX11KeyPresses::buttons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("code");
    QTest::newRow("left") << 1 << QStringLiteral("1 9");
    QTest::newRow("middle") << 2 << QStringLiteral("4 9");
    QTest::newRow("right") << 3 << QStringLiteral("2 9");
    QTest::newRow("wheel up") << 4 << QStringLiteral("9");
    QTest::newRow("wheel down") << 5 << QStringLiteral("9");
    QTest::newRow("wheel left") << 6 << QStringLiteral("9");
    QTest::newRow("wheel right") << 7 << QStringLiteral("9");
    QTest::newRow("back") << 8 << QStringLiteral("5 9");
    QTest::newRow("forward") << 9 << QStringLiteral("6 9");
    QTest::newRow("one more") << 10 << QStringLiteral("9");
}

void TestX11KeyPresses::buttons()
{
    QFETCH(int, button);
    xdotool({QStringLiteral("click"), QString::number(button), QStringLiteral("key"),
             QStringLiteral("Escape")});
    QTEST(codes(pressesUntil(escapeKey)), "code");
    QVERIFY(presses->takePresses().none());
}

void TestX11KeyPresses::pointerMoves()
{
    xdotool({QStringLiteral("mousemove"), QStringLiteral("10"), QStringLiteral("10"),
             QStringLiteral("mousemove"), QStringLiteral("300"), QStringLiteral("300"),
             QStringLiteral("key"), QStringLiteral("Escape")});
    QCOMPARE(codes(pressesUntil(escapeKey)), codes({escapeKey}));
}

void TestX11KeyPresses::grabbedByAnotherWindow()
{
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    other.grabKeyboard();
    other.grabMouse();
    xdotool(
        {QStringLiteral("click"), QStringLiteral("1"), QStringLiteral("key"), QStringLiteral("a")});
    QCOMPARE(codes(pressesUntil(aKey)), codes({1, aKey}));
}

/// A poll takes along what has arrived, also where the event loop has not come to it.
void TestX11KeyPresses::pollThatIsFasterThanTheEventLoop()
{
    press("a");
    KeyPresses all;
    for (int poll = 0; poll < 1000 && all.none(); ++poll) {
        QThread::msleep(2);
        all |= presses->takePresses();
    }
    QCOMPARE(codes(all), codes({aKey}));
}

void TestX11KeyPresses::nothingPilesUpBetweenPolls()
{
    presses.reset();
    const QSet<QString> before = openSockets();
    presses = std::make_unique<X11KeyPresses>();
    const QSet<QString> connections = openSockets() - before;
    QVERIFY(!connections.isEmpty());
    const auto waiting = [&connections] {
        int bytes = 0;
        for (const QString &connection : connections) {
            bytes += qMax(0, waitingBytes(connection));
        }
        return bytes;
    };

    xdotool({QStringLiteral("key"), QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("a"),
             QStringLiteral("b")});
    QVERIFY(waiting() > 0); // nobody has looked yet
    QTRY_COMPARE(waiting(), 0);
    QCOMPARE(codes(presses->takePresses()), codes({aKey, bKey}));
    QVERIFY(presses->takePresses().none());
    presses.reset();
    QCOMPARE(openSockets(), before);
}

void TestX11KeyPresses::twoListeners()
{
    X11KeyPresses second;
    press("a");
    QCOMPARE(codes(pressesUntil(aKey)), codes({aKey}));
    QVERIFY(QTest::qWaitFor([&] { return second.takePresses().test(aKey); }, patienceMs));
}

void TestX11KeyPresses::noDisplay_data()
{
    QTest::addColumn<QByteArray>("number");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("nobody there") << QByteArray(":4242");
    QTest::newRow("no display at all") << QByteArray("nonsense");
}

void TestX11KeyPresses::noDisplay()
{
    QFETCH(QByteArray, number);
    const OtherDisplay other(number);
    const QSet<QString> before = openSockets();
    const WarningsCounted warnings;
    X11KeyPresses none;
    QVERIFY(none.takePresses().none());
    QTest::qWait(10);
    QVERIFY(none.takePresses().none());
    QCOMPARE(warnings.count(), 0);
    QCOMPARE(openSockets(), before);
}

void TestX11KeyPresses::displayGoes()
{
    OwnDisplay own;
    const OtherDisplay other(own.number);
    presses.reset();
    const QSet<QString> before = openSockets();
    presses = std::make_unique<X11KeyPresses>();
    press("a");
    QCOMPARE(codes(pressesUntil(aKey)), codes({aKey}));
    const WarningsCounted warnings;
    own.end();
    for (int poll = 0; poll < 3; ++poll) {
        QVERIFY(presses->takePresses().none());
        QTest::qWait(10);
    }
    QCOMPARE(openSockets(), before);

    // The event loop has its rest again.
    int wakeUps = 0;
    const auto counting =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                         [&wakeUps] { ++wakeUps; });
    QTest::qWait(200);
    QObject::disconnect(counting);
    QVERIFY2(wakeUps < 200, qPrintable(QString::number(wakeUps)));
    QCOMPARE(warnings.count(), 0);
}

QTEST_MAIN(TestX11KeyPresses)
#include "tst_x11keypresses.moc"
