#include "system/versions.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"
#include "ui/messages.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSystemTrayIcon>
#include <QTest>

#include <algorithm>

/// Administrator rights: how they are told, asked for and refused, and what the boxes look like
/// that ask.
class TestRights : public QObject
{
    Q_OBJECT

private slots:
    void told_data();
    void told();
    void tellingFails();
    void tellingFailsInEveryAction();
    void slotsHaveTheirNames();
    void launched();
    void notLaunched_data();
    void notLaunched();
    void roleIsGivenUpFirst();
    void trayIconGoesWithTheRole();
    void questions_data();
    void questions();
    void escapeIsNo();
    void yesAsksForRights_data();
    void yesAsksForRights();
    void elevatedAsksNothing();
    void boxGoesWithTheWindow();
    void textsAreWhole_data();
    void textsAreWhole();
};

namespace {

struct Question
{
    const char *button;
    const char *title;
    const char *text;
};

constexpr std::array questionTable{
    Question{"Button_Update", "Update Information",
             "There is an update for this software! But to be able to update we need Admin access. "
             "Do you want to run this app with admin access so that we can update it "
             "automatically?"},
    Question{"pushButton_3", "Monitor",
             "To uninstall Lumikey we need admin access.\nDo you allow it?\nLumikey will restart "
             "with admin access, after that you should click the uninstall button again."},
    Question{"UsePerKeyApp", "Per Key Install",
             "To install the Per-Key RGB App we need Admin access, do you allow it?"},
};

void questionRows()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    for (const Question &row : questionTable) {
        QTest::newRow(row.button) << QString::fromLatin1(row.button)
                                  << QString::fromLatin1(row.title)
                                  << QString::fromLatin1(row.text);
    }
}

/// Whether no text of a box is cut off.
bool showsWholeTexts(const QMessageBox &box)
{
    const auto labels = box.findChildren<QLabel *>();
    const auto buttons = box.findChildren<QPushButton *>();
    return std::all_of(
               labels.begin(), labels.end(),
               [&box](const QLabel *label) {
                   const QRect place = label->contentsRect();
                   const QRect needed =
                       label->fontMetrics().boundingRect(place, Qt::TextWordWrap, label->text());
                   return label->text().isEmpty()
                          || (place.contains(needed) && box.rect().contains(label->geometry()));
               })
           && std::all_of(buttons.begin(), buttons.end(), [](const QPushButton *button) {
                  const QSize needed = button->sizeHint();
                  return button->size() == button->size().expandedTo(needed);
              });
}

void press(const TestWindow &world, const QString &name)
{
    auto *const button = world.get<QAbstractButton>(qPrintable(name));
    button->setEnabled(true); // the update's is enabled by a check alone
    button->click();
}

} // namespace

void TestRights::told_data()
{
    QTest::addColumn<bool>("elevated");
    QTest::newRow("elevated") << true;
    QTest::newRow("not elevated") << false;
}

void TestRights::told()
{
    QFETCH(bool, elevated);
    TestWindow world;
    world.platform.elevated = elevated;
    QCOMPARE(world.construct().IsAppRunningAsAdminMode() != 0, elevated);
}

void TestRights::tellingFails()
{
    TestWindow world;
    MainWindow &window = world.construct();
    world.platform.elevationError = 1314;
    try {
        window.IsAppRunningAsAdminMode();
        QFAIL("nothing was thrown");
    } catch (quint32 code) {
        QCOMPARE(code, 1314U);
    }
}

void TestRights::tellingFailsInEveryAction()
{
    TestWindow world;
    MainWindow &window = world.construct();
    world.platform.elevationError = 5;
    world.get<QAbstractButton>("UsePerKeyApp")->setChecked(true);
    QVERIFY_EXCEPTION_THROWN(window.on_Button_Update_clicked(), quint32);
    QVERIFY_EXCEPTION_THROWN(window.on_pushButton_3_clicked(), quint32);
    QVERIFY_EXCEPTION_THROWN(window.on_UsePerKeyApp_clicked(), quint32);
    QCOMPARE(world.platform.relaunches, 0);
}

void TestRights::slotsHaveTheirNames()
{
    TestWindow world;
    world.platform.elevated = true;
    world.platform.relaunch = Platform::Relaunch::Failed;
    MainWindow &window = world.construct();
    BOOL elevated = 0;
    QVERIFY(QMetaObject::invokeMethod(&window, "IsAppRunningAsAdminMode",
                                      Q_RETURN_ARG(BOOL, elevated)));
    QVERIFY(elevated != 0);
    QVERIFY(QMetaObject::invokeMethod(&window, "requestadmin"));
    QCOMPARE(world.platform.relaunches, 1);
}

void TestRights::launched()
{
    TestWindow world;
    world.construct().requestadmin();
    QCOMPARE(world.platform.relaunches, 1);
    QCOMPARE(world.platform.ended.value_or(-1), 1);
    QCOMPARE(world.primaryRole.calls, QStringList{QStringLiteral("handOver")});
    // Nothing is written on the way out.
    QCOMPARE(world.stored(SettingKeys::mainWindowGeometry), QStringLiteral("(none)"));
}

void TestRights::notLaunched_data()
{
    QTest::addColumn<int>("outcome");
    QTest::addColumn<bool>("isLogged");
    QTest::newRow("no path") << int(Platform::Relaunch::NoPath) << false;
    QTest::newRow("declined") << int(Platform::Relaunch::Declined) << true;
    QTest::newRow("failed") << int(Platform::Relaunch::Failed) << false;
}

namespace {

QStringList debugMessages;

void noteDebugMessages(QtMsgType type, const QMessageLogContext & /*context*/,
                       const QString &message)
{
    if (type == QtDebugMsg) {
        debugMessages.append(message);
    }
}

} // namespace

void TestRights::notLaunched()
{
    QFETCH(int, outcome);
    QFETCH(bool, isLogged);
    TestWindow world;
    MainWindow &window = world.construct();
    window.show();
    world.platform.relaunch = static_cast<Platform::Relaunch>(outcome);

    debugMessages.clear();
    const QtMessageHandler before = qInstallMessageHandler(noteDebugMessages);
    window.requestadmin();
    qInstallMessageHandler(before);

    QCOMPARE(debugMessages, isLogged ? QStringList{QStringLiteral("User did not allow elevation")}
                                     : QStringList());
    QVERIFY(!world.platform.ended);
    QCOMPARE(world.primaryRole.calls,
             (QStringList{QStringLiteral("handOver"), QStringLiteral("takeBack")}));
    QVERIFY(window.isVisible());
}

void TestRights::roleIsGivenUpFirst()
{
    TestWindow world;
    MainWindow &window = world.construct();
    QStringList callsSoFar;
    world.platform.whenRelaunching = [&] {
        callsSoFar = world.primaryRole.calls;
    };
    window.requestadmin();
    QCOMPARE(callsSoFar, QStringList{QStringLiteral("handOver")});
}

void TestRights::trayIconGoesWithTheRole()
{
    TestWindow world;
    MainWindow &window = world.construct();
    const auto *const icon = window.findChild<QSystemTrayIcon *>();
    QVERIFY(icon != nullptr && icon->isVisible());
    bool visibleMeanwhile = true;
    world.platform.whenRelaunching = [&] {
        visibleMeanwhile = icon->isVisible();
    };
    world.platform.relaunch = Platform::Relaunch::Declined;
    window.requestadmin();
    QVERIFY(!visibleMeanwhile);
    QVERIFY(icon->isVisible());
    world.platform.relaunch = Platform::Relaunch::Launched;
    window.requestadmin();
    QVERIFY(!icon->isVisible()); // or it would outlive the process
}

void TestRights::questions_data()
{
    questionRows();
}

void TestRights::questions()
{
    QFETCH(QString, button);
    QFETCH(QString, title);
    QFETCH(QString, text);
    TestWindow world;
    MainWindow &window = world.start();
    BoxWatcher watcher(QMessageBox::No);
    press(world, button);
    QCOMPARE(watcher.seen.size(), 1);
    const SeenBox box = watcher.seen.constFirst();
    QCOMPARE(box.title, title);
    QCOMPARE(box.text, text);
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.parent, &window);
    QVERIFY(box.modal);
    QVERIFY(box.frameless);
    QVERIFY(box.topLevel);
    QCOMPARE(world.platform.relaunches, 0);
    QVERIFY(world.primaryRole.calls.isEmpty());
}

void TestRights::escapeIsNo()
{
    TestWindow world;
    world.start();
    const BoxWatcher watcher;
    press(world, QStringLiteral("pushButton_3"));
    QCOMPARE(watcher.seen.size(), 1);
    QCOMPARE(world.platform.relaunches, 0);
}

void TestRights::yesAsksForRights_data()
{
    questionRows();
}

void TestRights::yesAsksForRights()
{
    QFETCH(QString, button);
    TestWindow world;
    world.start();
    const BoxWatcher watcher(QMessageBox::Yes);
    press(world, button);
    QCOMPARE(watcher.seen.size(), 1);
    QCOMPARE(world.platform.relaunches, 1);
    QCOMPARE(world.platform.ended.value_or(-1), 1);
    QVERIFY(world.platform.launched.isEmpty());
}

void TestRights::elevatedAsksNothing()
{
    TestWindow world;
    world.platform.elevated = true;
    world.start();
    const BoxWatcher watcher(QMessageBox::No);
    press(world, QStringLiteral("Button_Update"));
    press(world, QStringLiteral("pushButton_3"));
    press(world, QStringLiteral("UsePerKeyApp"));
    QTest::qWait(100);
    QCOMPARE(watcher.seen.size(), 0);
    QCOMPARE(world.platform.relaunches, 0);
}

void TestRights::boxGoesWithTheWindow()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QTimer::singleShot(300, &window, SLOT(close()));
    press(world, QStringLiteral("pushButton_3")); // returns although nobody answers
    QVERIFY(!window.isVisible());
    QCOMPARE(world.platform.relaunches, 0);
}

void TestRights::textsAreWhole_data()
{
    QTest::addColumn<int>("pixelSize");
    for (const int size : {12, 14, 17, 22, 26, 36}) {
        QTest::addRow("%d px", size) << size;
    }
}

void TestRights::textsAreWhole()
{
    QFETCH(int, pixelSize);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPixelSize(pixelSize);
    QApplication::setFont(font);
    QApplication::setStyle(new DarkStyle);
    TestWindow world;
    MainWindow &window = world.start();
    window.show();

    BoxWatcher watcher;
    QStringList clipped;
    watcher.look = [&clipped](const QMessageBox &box) {
        if (!QTest::qWaitFor([&box] { return showsWholeTexts(box); }, 1000)) {
            clipped.append(box.text());
        }
    };
    for (const Message &message :
         {Messages::installFirmwareLibrary, Messages::updateNow, Messages::updateNeedsRights,
          Messages::uninstallNeedsRights, Messages::perKeyNeedsRights}) {
        ask(&window, message);
    }
    for (const VersionVerdict verdict : {VersionVerdict::Latest, VersionVerdict::Newer}) {
        tell(&window, {Messages::updateTitle, Messages::versionTexts(verdict).notice});
    }
    QApplication::setFont(before);
    QCOMPARE(watcher.seen.size(), 7);
    QCOMPARE(clipped, QStringList());
}

QTEST_MAIN(TestRights)
#include "tst_rights.moc"
