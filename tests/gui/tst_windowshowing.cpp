#include "ui/windowshowing.h"

#include <QEvent>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

namespace {

/// Notes what is done to it, as far as events tell.
class Noting : public QWidget
{
public:
    QStringList notes;

protected:
    bool event(QEvent *event) override
    {
        const bool offScreen = testAttribute(Qt::WA_DontShowOnScreen);
        switch (event->type()) {
        case QEvent::Show:
            notes << (offScreen ? QStringLiteral("shown off screen") : QStringLiteral("shown"));
            break;
        case QEvent::Hide:
            notes << (offScreen ? QStringLiteral("hidden off screen") : QStringLiteral("hidden"));
            break;
        case QEvent::ZOrderChange:
            notes << QStringLiteral("raised");
            break;
        default:
            break;
        }
        return QWidget::event(event);
    }
    void focusInEvent(QFocusEvent *event) override { reason = event->reason(); }

public:
    Qt::FocusReason reason = Qt::NoFocusReason;
};

} // namespace

/// The window as the program itself shows it.
class TestWindowShowing : public QObject
{
    Q_OBJECT

private slots:
    void first();
    void firstButHidden();
    void firstTakesTheFocus_data();
    void firstTakesTheFocus();
    void againFromTheTray();
    void againMinimised();
    void againBehindAnother();
};

void TestWindowShowing::first()
{
    Noting window;
    WindowShowing::first(window, false);
    QCOMPARE(window.notes, QStringList({QStringLiteral("shown"), QStringLiteral("raised")}));
    QVERIFY(window.isVisible());
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

/// Nothing of it is ever on the screen, and the next time it is shown like any other.
void TestWindowShowing::firstButHidden()
{
    Noting window;
    WindowShowing::first(window, true);
    QCOMPARE(window.notes,
             QStringList({QStringLiteral("shown off screen"), QStringLiteral("raised"),
                          QStringLiteral("hidden off screen")}));
    QVERIFY(!window.isVisible());
    QVERIFY(!window.testAttribute(Qt::WA_DontShowOnScreen));
    WindowShowing::again(window);
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

void TestWindowShowing::firstTakesTheFocus_data()
{
    QTest::addColumn<bool>("again");
    QTest::newRow("first") << false;
    QTest::newRow("again") << true;
}

/// No button keeps it, so that a key does nothing by chance.
void TestWindowShowing::firstTakesTheFocus()
{
    QFETCH(bool, again);
    Noting window;
    QLineEdit field(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    field.setFocus();
    QTRY_VERIFY(field.hasFocus());
    if (again) {
        WindowShowing::again(window);
    } else {
        WindowShowing::first(window, false);
    }
    QTRY_VERIFY(window.hasFocus());
    QCOMPARE(window.reason, Qt::OtherFocusReason);
}

void TestWindowShowing::againFromTheTray()
{
    Noting window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.hide();
    window.notes.clear();
    WindowShowing::again(window);
    QCOMPARE(window.notes, QStringList({QStringLiteral("raised"), QStringLiteral("shown")}));
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

void TestWindowShowing::againMinimised()
{
    Noting window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.showMinimized();
    QTRY_VERIFY(window.isMinimized());
    WindowShowing::again(window);
    QTRY_VERIFY(!window.isMinimized());
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

void TestWindowShowing::againBehindAnother()
{
    Noting window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (const bool again : {true, false}) {
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        if (again) {
            WindowShowing::again(window);
        } else {
            WindowShowing::first(window, false);
        }
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
}

QTEST_MAIN(TestWindowShowing)
#include "tst_windowshowing.moc"
