#include "focuswatcher.h"
#include "raisewatcher.h"
#include "tests/support/patience.h"
#include "updateworld.h"

#include <QElapsedTimer>
#include <QTabWidget>
#include <QTest>

namespace {

const QString latestText =
    QStringLiteral("You are running the latest version, there is no update.");
const QString newerText =
    QStringLiteral("Your version is newer then the official latest! Are you a beta tester?");
const QString updateText = QStringLiteral("There is an update! Click the update button.");
const QString newerNotice = QStringLiteral(
    "Your version is newer then the official latest! You are probably a beta tester.\n");
const QString updateQuestion =
    QStringLiteral("There is an update for this software! Do you want to update now?.\n");
const QString rightsQuestion = QStringLiteral(
    "There is an update for this software! But to be able to update we need Admin access. Do you "
    "want to run this app with admin access so that we can update it automatically?");

bool isWithinTheScreen(const QWidget &window)
{
    return QRect({}, window.minimumSizeHint()).height() < 1200
           && window.minimumSizeHint().width() < 1280;
}

} // namespace

class TestUpdates : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void start_data();
    void start();
    void unreachable();
    void notices_data();
    void notices();
    void updateIsOfferedAtStart_data();
    void updateIsOfferedAtStart();
    void windowComesForward();
    void windowInFrontTakesTheFocus();
    void answers_data();
    void answers();
    void manualStaysSetAfterAnUpdate();
    void manualIsClearedWithoutAnUpdate();
    void updateButton();
    void fetchAlone();
    void serverIsReadAtEachCheck();
    void versionsThatAreNotVersions_data();
    void versionsThatAreNotVersions();
    void junkLeavesTheWindowAlone_data();
    void junkLeavesTheWindowAlone();
};

void TestUpdates::initTestCase()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.4"));
}

void TestUpdates::start_data()
{
    QTest::addColumn<QByteArray>("latest");
    QTest::addColumn<QString>("description");
    QTest::newRow("equal") << QByteArray("1.0.4") << latestText;
    QTest::newRow("older") << QByteArray("1.0.3") << newerText;
    QTest::newRow("shorter") << QByteArray("1.0") << newerText;
    QTest::newRow("empty") << QByteArray() << newerText;
    QTest::newRow("line feed") << QByteArray("1.0.4\n") << latestText;
}

void TestUpdates::start()
{
    QFETCH(QByteArray, latest);
    UpdateWorld world(latest);
    const BoxWatcher watcher(QMessageBox::Ok);
    world.construct();
    QCOMPARE(world.server.requests.size(), 1);
    QCOMPARE(world.label("Label_SoftwareVersion"), QStringLiteral("Installed: 1.0.4"));
    QCOMPARE(world.label("Label_SoftwareServerVersion"),
             QStringLiteral("Latest: ") + QString::fromUtf8(latest));
    QTEST(world.label("Label_SoftwareVersion_desc"), "description");
    QVERIFY(!world.updateButton()->isEnabled());
    QCOMPARE(world.pending(), QStringLiteral("false"));
    QTest::qWait(100);
    QCOMPARE(watcher.seen.size(), 0); // nobody has asked
    QVERIFY(!world.window->isVisible());
}

void TestUpdates::unreachable()
{
    UpdateWorld world("");
    world.writeBranding({}); // a closed port
    world.construct();
    QCOMPARE(world.label("Label_SoftwareServerVersion"), QStringLiteral("Latest: "));
    QCOMPARE(world.label("Label_SoftwareVersion_desc"), newerText);
    QCOMPARE(world.pending(), QStringLiteral("false"));
    const BoxWatcher watcher(QMessageBox::Ok);
    world.checkByHand();
    QCOMPARE(watcher.seen.size(), 1);
    QCOMPARE(watcher.seen.constFirst().text, newerNotice);
}

void TestUpdates::notices_data()
{
    QTest::addColumn<QByteArray>("latest");
    QTest::addColumn<QString>("text");
    QTest::newRow("equal") << QByteArray("1.0.4") << latestText + QLatin1Char('\n');
    QTest::newRow("older") << QByteArray("1.0.3") << newerNotice;
}

void TestUpdates::notices()
{
    QFETCH(QByteArray, latest);
    UpdateWorld world(latest);
    MainWindow &window = world.start();
    BoxWatcher watcher(QMessageBox::Ok);
    world.checkByHand();
    QCOMPARE(watcher.seen.size(), 1);
    const SeenBox box = watcher.seen.constFirst();
    QCOMPARE(box.title, QStringLiteral("Update Information"));
    QTEST(box.text, "text");
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.parent, &window);
    QVERIFY(box.modal);
    QVERIFY(box.frameless);
    QVERIFY(box.topLevel);
    QCOMPARE(world.pending(), QStringLiteral("false"));
    QVERIFY(!world.updateButton()->isEnabled());
}

void TestUpdates::updateIsOfferedAtStart_data()
{
    QTest::addColumn<QByteArray>("latest");
    QTest::addColumn<bool>("elevated");
    for (const char *latest : {"1.1", "1.0.10", "1.0.4.0", "2", "1.0.5\n"}) {
        QTest::addRow("%s, elevated", QByteArray(latest).trimmed().constData())
            << QByteArray(latest) << true;
        QTest::addRow("%s, not elevated", QByteArray(latest).trimmed().constData())
            << QByteArray(latest) << false;
    }
}

void TestUpdates::updateIsOfferedAtStart()
{
    QFETCH(QByteArray, latest);
    QFETCH(bool, elevated);
    UpdateWorld world(latest);
    world.platform.elevated = elevated;
    BoxWatcher watcher(QMessageBox::No);
    bool shown = false;
    QString pending;
    watcher.look = [&](const QMessageBox &box) {
        shown = box.parentWidget()->isVisible();
        pending = world.pending();
    };
    world.construct();
    QCOMPARE(watcher.seen.size(), 1);
    const SeenBox box = watcher.seen.constFirst();
    QCOMPARE(box.title, QStringLiteral("Update Information"));
    QCOMPARE(box.text, elevated ? updateQuestion : rightsQuestion);
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.parent, world.window.get());
    QVERIFY(box.modal);
    QVERIFY(box.frameless);
    QVERIFY(shown);
    QCOMPARE(pending, QStringLiteral("true")); // known to the updater before anybody is asked
    QCOMPARE(world.label("Label_SoftwareServerVersion"),
             QStringLiteral("Latest: ") + QString::fromUtf8(latest));
    QCOMPARE(world.label("Label_SoftwareVersion_desc"), updateText);
    QVERIFY(world.updateButton()->isEnabled());
    QVERIFY(world.platform.launched.isEmpty());
    QCOMPARE(world.platform.relaunches, 0);
}

void TestUpdates::windowComesForward()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.showMinimized();
    QTRY_VERIFY(window.isMinimized());
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    world.server.answerWith("1.0.5");
    BoxWatcher watcher(QMessageBox::No);
    bool inFront = false;
    const RaiseWatcher raises(window);
    watcher.look = [&](const QMessageBox &box) {
        inFront = !window.isMinimized()
                  && QTest::qWaitFor([&] { return box.isActiveWindow(); }, patienceMs);
    };
    window.SetAppVersion();
    QVERIFY(inFront);
    QCOMPARE(raises.count, 1);
}

/// As a window does that is activated: nobody has come to its controls by a key.
void TestUpdates::windowInFrontTakesTheFocus()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    world.get<QWidget>("Check_CloseHides")->setFocus();
    world.server.answerWith("1.0.5");
    BoxWatcher watcher(QMessageBox::No);
    QVector<Qt::FocusReason> reasons;
    const FocusWatcher focus(window);
    watcher.look = [&](const QMessageBox & /*box*/) {
        reasons = focus.reasons.mid(0, 1);
    };
    window.SetAppVersion();
    QCOMPARE(reasons, QVector<Qt::FocusReason>{Qt::ActiveWindowFocusReason});
}

void TestUpdates::answers_data()
{
    QTest::addColumn<bool>("elevated");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("launched");
    QTest::addColumn<int>("relaunches");
    const QStringList updater{QStringLiteral("updates\\Update.exe")};
    QTest::newRow("elevated, yes") << true << int(QMessageBox::Yes) << updater << 0;
    QTest::newRow("elevated, no") << true << int(QMessageBox::No) << QStringList() << 0;
    QTest::newRow("elevated, escape") << true << int(QMessageBox::NoButton) << QStringList() << 0;
    QTest::newRow("not elevated, yes") << false << int(QMessageBox::Yes) << QStringList() << 1;
    QTest::newRow("not elevated, no") << false << int(QMessageBox::No) << QStringList() << 0;
}

void TestUpdates::answers()
{
    QFETCH(bool, elevated);
    QFETCH(int, answer);
    UpdateWorld world("1.0.5");
    world.platform.elevated = elevated;
    const BoxWatcher watcher(static_cast<QMessageBox::StandardButton>(answer));
    world.construct();
    QCOMPARE(watcher.seen.size(), 1);
    QTEST(world.platform.launched, "launched");
    QTEST(world.platform.relaunches, "relaunches");
}

void TestUpdates::manualStaysSetAfterAnUpdate()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    BoxWatcher watcher(QMessageBox::No);
    world.server.answerWith("1.0.5");
    world.checkByHand();
    QCOMPARE(watcher.seen.size(), 1);
    watcher.answer = QMessageBox::Ok;
    world.server.answerWith("1.0.4");
    window.SetAppVersion(); // not asked for by hand, and still it tells
    QCOMPARE(watcher.seen.size(), 2);
    QCOMPARE(watcher.seen.constLast().text, latestText + QLatin1Char('\n'));
}

void TestUpdates::manualIsClearedWithoutAnUpdate()
{
    for (const char *latest : {"1.0.4", "1.0.3"}) {
        UpdateWorld world(latest);
        MainWindow &window = world.start();
        const BoxWatcher watcher(QMessageBox::Ok);
        world.checkByHand();
        window.SetAppVersion();
        QTest::qWait(100);
        QCOMPARE(watcher.seen.size(), 1);
    }
}

void TestUpdates::updateButton()
{
    UpdateWorld world("1.0.5");
    world.platform.elevated = true;
    const BoxWatcher watcher(QMessageBox::No);
    world.construct();
    world.updateButton()->click();
    QCOMPARE(watcher.seen.size(), 1); // the start's alone
    QCOMPARE(world.platform.launched, QStringList{QStringLiteral("updates\\Update.exe")});
}

void TestUpdates::fetchAlone()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    world.server.answerWith("9.9\n");
    QString answer;
    QVERIFY(QMetaObject::invokeMethod(&window, "CheckAppVersion", Q_RETURN_ARG(QString, answer)));
    QCOMPARE(answer, QStringLiteral("9.9\n"));
    QCOMPARE(world.label("Label_SoftwareServerVersion"), QStringLiteral("Latest: 1.0.4"));
    QCOMPARE(world.pending(), QStringLiteral("false"));
}

void TestUpdates::serverIsReadAtEachCheck()
{
    UpdateWorld world("1.0.4");
    MainWindow &window = world.start();
    VersionServer other;
    other.answerWith("1.0.2");
    world.writeBranding({}, other.address());
    window.SetAppVersion();
    QCOMPARE(world.label("Label_SoftwareServerVersion"), QStringLiteral("Latest: 1.0.2"));
}

void TestUpdates::versionsThatAreNotVersions_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("error page") << QByteArray("404 Not Found")
                                << QByteArray("<html><body><h1>Not Found</h1></body></html>\n");
    QTest::newRow("redirect") << QByteArray("302 Found\r\nLocation: /there") << QByteArray("moved");
    QTest::newRow("words") << QByteArray("200 OK") << QByteArray("one point five");
    QTest::newRow("blanks") << QByteArray("200 OK") << QByteArray("  \n ");
}

void TestUpdates::versionsThatAreNotVersions()
{
    QFETCH(QByteArray, status);
    QFETCH(QByteArray, body);
    UpdateWorld world("");
    world.server.answerWith(body, status);
    world.construct();
    QCOMPARE(world.label("Label_SoftwareServerVersion"),
             QStringLiteral("Latest: ") + QString::fromUtf8(body));
    QCOMPARE(world.get<QLabel>("Label_SoftwareServerVersion")->textFormat(), Qt::PlainText);
    QCOMPARE(world.label("Label_SoftwareVersion_desc"), newerText);
    QCOMPARE(world.pending(), QStringLiteral("false"));
}

void TestUpdates::junkLeavesTheWindowAlone_data()
{
    QTest::addColumn<QByteArray>("junk");
    QTest::newRow("one long word") << QByteArray(10'000'000, 'x');
    QTest::newRow("many words") << QByteArray("word ").repeated(2'000'000);
    QTest::newRow("many lines") << QByteArray(10'000'000, '\n');
    QTest::newRow("many parts") << QByteArray(10'000'000, '.');
    QTest::newRow("zeros") << QByteArray(10'000'000, '\0');
}

void TestUpdates::junkLeavesTheWindowAlone()
{
    QFETCH(QByteArray, junk);
    UpdateWorld world("1.0.4");
    const BoxWatcher watcher(QMessageBox::No); // many parts are a newer version
    MainWindow &window = world.start();
    window.show();
    world.get<QTabWidget>("tabWidget")->setCurrentIndex(1);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QSize size = window.size();
    const QSize smallest = window.minimumSizeHint();
    const QRect label = world.get<QLabel>("Label_SoftwareServerVersion")->geometry();

    world.server.answerWith(junk);
    window.SetAppVersion();
    QTest::qWait(100);
    const QString shown = world.label("Label_SoftwareServerVersion");
    QVERIFY(shown.startsWith(QStringLiteral("Latest: ") + QString::fromLatin1(junk.left(1000))));
    QVERIFY(shown.size() < 100'000);
    QCOMPARE(window.size(), size);
    QCOMPARE(window.minimumSizeHint(), smallest);
    QCOMPARE(world.get<QLabel>("Label_SoftwareServerVersion")->geometry(), label);
    QVERIFY(isWithinTheScreen(window));
    QElapsedTimer timer;
    timer.start();
    window.grab();
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(TestUpdates)
#include "tst_updates.moc"
