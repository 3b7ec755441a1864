#include "tests/gui/focuswatcher.h"
#include "tests/gui/raisewatcher.h"
#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSystemTrayIcon>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <type_traits>

namespace {

/// Whether the event loop ends by itself within half a second of @p action.
bool endsTheProgram(const std::function<void()> &action)
{
    constexpr int stillRunning = 99;
    QTimer::singleShot(0, qApp, action);
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(stillRunning); });
    watchdog.start(500);
    return QCoreApplication::exec() != stillRunning;
}

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private slots:
    void frame();
    void nativeWindowIsPrepared();
    void eventFilterKeepsNothingBack();
    void closeButtonCloses();
    void closeButtonHides();
    void shownIsRaised();
    void shownTakesTheFocus();
    void minimise();
    void dragging();
    void draggingByWhatLiesOnTheWindow_data();
    void draggingByWhatLiesOnTheWindow();
    void trayMenu();
    void trayPicture();
    void trayMenuIsEmptiedAtTheEnd();
    void messageBoxDoesNotEndTheProgram();
    void trayActivation();
    void trayDoubleClicks_data();
    void trayDoubleClicks();
    void exitWhileHidden_data();
    void exitWhileHidden();
    void tabReachesTheTitleButtonsLast();
    void screenReadersToggleByClicking();
};

void TestShell::frame()
{
    TestWindow world;
    const MainWindow &window = world.construct();
    QCOMPARE(window.windowFlags(), Qt::Window | Qt::FramelessWindowHint);
}

void TestShell::nativeWindowIsPrepared()
{
    TestWindow world;
    MainWindow &window = world.start();
    const auto askedFor = [&world] {
        return !world.platform.prepared.isEmpty()
               && world.platform.prepared.last() == world.window->internalWinId();
    };
    QVERIFY(world.platform.prepared.isEmpty()); // there is no native window yet
    window.show();
    QVERIFY(askedFor());
    world.platform.prepared.clear();
    window.hide();
    window.ShowInterface();
    QVERIFY(world.platform.prepared.isEmpty()); // it is the same window
    window.setWindowFlags(window.windowFlags() | Qt::WindowStaysOnTopHint);
    window.show();
    QVERIFY(askedFor());                           // it was made over
    QVERIFY(!world.platform.prepared.contains(0)); // nothing is asked of the one that went
}

void TestShell::eventFilterKeepsNothingBack()
{
    // The window's own, not the one it inherits.
    static_assert(std::is_same_v<decltype(&MainWindow::eventFilter),
                                 bool (MainWindow::*)(QObject *, QEvent *)>);
    TestWindow world;
    MainWindow &window = world.start();
    auto *const box = world.get<QCheckBox>("Check_CloseHides");
    for (const auto type : {QEvent::MouseMove, QEvent::KeyPress, QEvent::Close, QEvent::User}) {
        QEvent event(type);
        QVERIFY(!window.eventFilter(box, &event));
        QVERIFY(event.isAccepted());
    }
    box->installEventFilter(&window);
    box->click();
    QVERIFY(box->isChecked());
}

void TestShell::closeButtonCloses()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    auto *const button = world.get<QAbstractButton>("closeButton");
    QVERIFY(endsTheProgram([button] { button->click(); }));
}

void TestShell::closeButtonHides()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    world.get<QCheckBox>("Check_CloseHides")->setChecked(true);
    auto *const button = world.get<QAbstractButton>("closeButton");
    QVERIFY(!endsTheProgram([button] { button->click(); }));
    QVERIFY(!window.isVisible());
    window.ShowInterface();
    QVERIFY(window.isVisible());
}

/// Also above windows that the desktop would leave in front.
void TestShell::shownIsRaised()
{
    TestWindow world;
    MainWindow &window = world.start();
    const RaiseWatcher raises(window);
    window.ShowInterface();
    QCOMPARE(raises.count, 1);
    QVERIFY(raises.wasVisible);
}

/// As if a key had brought it, so that what it goes on to is marked.
void TestShell::shownTakesTheFocus()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    world.get<QWidget>("Check_CloseHides")->setFocus();
    const FocusWatcher focus(window);
    window.ShowInterface();
    QCOMPARE(focus.reasons, QVector<Qt::FocusReason>{Qt::OtherFocusReason});
}

void TestShell::minimise()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    world.get<QAbstractButton>("minimizeButton")->click();
    QTRY_VERIFY(window.isMinimized());
    window.ShowInterface();
    QTRY_VERIFY(!window.isMinimized());
}

void TestShell::dragging()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QPoint before = window.pos();
    const auto send = [&window](QEvent::Type type, const QPoint &at, Qt::MouseButton button,
                                Qt::MouseButtons held) {
        QMouseEvent event(type, at, window.mapToGlobal(at), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    };
    send(QEvent::MouseButtonPress, {20, 5}, Qt::RightButton, Qt::RightButton);
    send(QEvent::MouseMove, {50, 45}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(window.pos(), before);
    send(QEvent::MouseMove, {50, 45}, Qt::NoButton, Qt::LeftButton); // no press came first
    QCOMPARE(window.pos(), before);
    send(QEvent::MouseButtonPress, {20, 5}, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, {50, 45}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(window.pos(), before + QPoint(30, 40));
    send(QEvent::MouseButtonRelease, {20, 5}, Qt::RightButton, Qt::LeftButton);
    send(QEvent::MouseMove, {25, 5}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(window.pos(), before + QPoint(35, 40)); // another button lets nothing go
    send(QEvent::MouseMove, {15, 5}, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, {20, 5}, Qt::LeftButton, Qt::NoButton);
    send(QEvent::MouseMove, {90, 95}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(window.pos(), before + QPoint(30, 40));
}

void TestShell::draggingByWhatLiesOnTheWindow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("drags");
    QTest::newRow("title") << "Title" << true;
    QTest::newRow("text of a page") << "label_2" << true;
    QTest::newRow("slider") << "horizontalSlider" << false;
    QTest::newRow("button") << "closeButton" << false;
    QTest::newRow("box") << "CheckBox_AutoDim" << false;
}

/// The press goes the way of a real one, through the native window to the widget under it.
void TestShell::draggingByWhatLiesOnTheWindow()
{
    QFETCH(QString, name);
    QFETCH(bool, drags);
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=50\n");
    MainWindow &window = world.start();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QWindow *const native = window.windowHandle();
    const QPoint before = window.pos();
    auto *const under = world.get<QWidget>(qPrintable(name));
    const QPoint from = under->mapTo(&window, under->rect().center());
    const QPoint way(30, 40); // far enough to let go beside a button
    QTest::mousePress(native, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(native, from + way);
    QCOMPARE(window.pos(), drags ? before + way : before);
    QTest::mouseRelease(native, Qt::LeftButton, Qt::NoModifier, from + way);
    QVERIFY(window.isVisible());
}

void TestShell::trayMenu()
{
    TestWindow world;
    MainWindow &window = world.start();
    const auto *const icon = window.findChild<QSystemTrayIcon *>();
    QVERIFY(icon != nullptr);
    QVERIFY(icon->isVisible());
    QCOMPARE(icon->toolTip(), QString());
    const QList<QAction *> entries = icon->contextMenu()->actions();
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries.at(0)->text(), QStringLiteral("Show Interface"));
    QCOMPARE(entries.at(1)->text(), QStringLiteral("Exit"));
    entries.at(0)->trigger();
    QVERIFY(window.isVisible());
}

void TestShell::trayPicture()
{
    TestWindow world;
    QImage picture(64, 64, QImage::Format_RGB32);
    picture.fill(QColor(12, 134, 56));
    QVERIFY(picture.save(QStringLiteral("branding/lumikey_system_tray.png")));
    const MainWindow &window = world.construct();
    const QIcon icon = window.findChild<QSystemTrayIcon *>()->icon();
    QCOMPARE(icon.pixmap(64, 64).toImage().pixelColor(32, 32), QColor(12, 134, 56));
}

/// Desktops keep a menu of their own after the program's, and let go of an item only when it is
/// taken out.
void TestShell::trayMenuIsEmptiedAtTheEnd()
{
    class Removals : public QObject
    {
    public:
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            count += event->type() == QEvent::ActionRemoved ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    TestWindow world;
    Removals removals;
    QMenu *const menu = world.construct().findChild<QSystemTrayIcon *>()->contextMenu();
    menu->installEventFilter(&removals);
    world.window.reset();
    QCOMPARE(removals.count, 2);
}

void TestShell::messageBoxDoesNotEndTheProgram()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    // A double click on the tray icon hides the window also while a box is open.
    QMessageBox box(QMessageBox::Information, QString(), QStringLiteral("text"), QMessageBox::Ok,
                    &window, Qt::FramelessWindowHint);
    box.open();
    window.show_hide(QSystemTrayIcon::DoubleClick);
    QVERIFY(!window.isVisible());
    QVERIFY(!endsTheProgram([&box] { box.button(QMessageBox::Ok)->click(); }));
    QVERIFY(!box.isVisible());
}

void TestShell::trayActivation()
{
    TestWindow world;
    MainWindow &window = world.start();
    window.show();
    auto *const icon = window.findChild<QSystemTrayIcon *>();
    for (const auto reason :
         {QSystemTrayIcon::Trigger, QSystemTrayIcon::MiddleClick, QSystemTrayIcon::Context}) {
        emit icon->activated(reason);
        QVERIFY(window.isVisible());
    }
    emit icon->activated(QSystemTrayIcon::DoubleClick);
    QVERIFY(!window.isVisible());
    emit icon->activated(QSystemTrayIcon::Unknown);
    QVERIFY(window.isVisible());
}

void TestShell::trayDoubleClicks_data()
{
    QTest::addColumn<bool>("minimised");
    QTest::newRow("shown") << false;
    QTest::newRow("minimised") << true;
}

void TestShell::trayDoubleClicks()
{
    QFETCH(bool, minimised);
    TestWindow world;
    MainWindow &window = world.start();
    auto *const icon = window.findChild<QSystemTrayIcon *>();
    const auto doubleClick = [icon] {
        emit icon->activated(QSystemTrayIcon::DoubleClick);
    };
    doubleClick();
    for (int round = 0; round < 2; ++round) {
        // Restored, and whoever types now types into this window.
        QVERIFY(window.isVisible());
        QTRY_VERIFY(!window.isMinimized());
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(window.windowHandle()->windowState(), Qt::WindowNoState);
        QTRY_VERIFY(window.windowHandle()->isExposed());
        QTRY_COMPARE(QApplication::focusWidget(), &window);
        if (minimised) {
            world.get<QAbstractButton>("minimizeButton")->click();
            QTRY_VERIFY(window.isMinimized());
            QTRY_VERIFY(!window.isActiveWindow());
        }
        doubleClick();
        QVERIFY(!window.isVisible());
        // Under X11 the toolkit believes for half a second that the focus is still there.
        QTRY_VERIFY(QGuiApplication::focusWindow() != window.windowHandle());
        doubleClick();
    }
}

void TestShell::exitWhileHidden_data()
{
    QTest::addColumn<bool>("wasShown");
    QTest::newRow("never shown") << false;
    QTest::newRow("shown before") << true;
}

void TestShell::exitWhileHidden()
{
    QFETCH(bool, wasShown);
    TestWindow world;
    MainWindow &window = world.start();
    connect(qApp, SIGNAL(aboutToQuit()), &window, SLOT(ShutdownQuit())); // as the program does
    if (wasShown) {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.hide();
    }
    QVERIFY(!window.isVisible());
    QAction *const exit = window.findChild<QSystemTrayIcon *>()->contextMenu()->actions().value(1);
    QCOMPARE(exit->text(), QStringLiteral("Exit"));
    QCOMPARE(world.stored(SettingKeys::mainWindowGeometry), QStringLiteral("(none)"));
    QVERIFY(endsTheProgram([exit] { exit->trigger(); }));
    QVERIFY(world.stored(SettingKeys::mainWindowGeometry) != QStringLiteral("(none)"));
    QVERIFY(world.stored(SettingKeys::mainWindowState) != QStringLiteral("(none)"));
}

void TestShell::tabReachesTheTitleButtonsLast()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\n");
    MainWindow &window = world.start();
    window.show();
    window.setFocus(Qt::OtherFocusReason); // as at the start of the program
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QStringList reached;
    for (int i = 0; i < 100 && !reached.contains(QStringLiteral("closeButton")); ++i) {
        QTest::keyClick(&window, Qt::Key_Tab);
        reached.append(window.focusWidget()->objectName());
    }
    QCOMPARE(reached.first(), QStringLiteral("backlight_on"));
    QCOMPARE(reached.mid(reached.size() - 3),
             QStringList({QStringLiteral("pushButton_3"), QStringLiteral("minimizeButton"),
                          QStringLiteral("closeButton")}));
}

void TestShell::screenReadersToggleByClicking()
{
    TestWindow world;
    world.start();
    auto *const box = world.get<QCheckBox>("Check_CloseHides");
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(box);
    QCOMPARE(accessible->role(), QAccessible::CheckBox);
    QCOMPARE(accessible->text(QAccessible::Name), box->text());
    QVERIFY(accessible->state().checkable);
    QVERIFY(!accessible->state().checked);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(accessible->state().checked);
    QCOMPARE(world.stored(SettingKeys::minimizeClose), QStringLiteral("true"));

    auto *const radio = world.get<QAbstractButton>("backlight_on");
    QAccessibleInterface *const other = QAccessible::queryAccessibleInterface(radio);
    QCOMPARE(other->role(), QAccessible::RadioButton);
    other->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(world.stored(SettingKeys::backlightOn), QStringLiteral("true"));
}

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
