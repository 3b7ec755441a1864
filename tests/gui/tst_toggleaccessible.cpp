#include "ui/toggleaccessible.h"

#include <QAccessible>
#include <QCheckBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

QAccessibleInterface &accessible(QWidget *widget)
{
    return *QAccessible::queryAccessibleInterface(widget);
}

} // namespace

/// What a screen reader is told of a check box or a radio button, and what it can do with it.
class TestToggleAccessible : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void role();
    void others();
    void name();
    void otherTextsAreNotItsName();
    void state();
    void actions();
    void actionClicks_data();
    void actionClicks();
    void focusIsNoClick();

private:
    std::unique_ptr<QWidget> window;
    QCheckBox *box = nullptr;
    QRadioButton *radio = nullptr;
};

void TestToggleAccessible::initTestCase()
{
    ToggleAccessible::install();
    ToggleAccessible::install(); // does nothing
}

void TestToggleAccessible::init()
{
    window = std::make_unique<QWidget>();
    box = new QCheckBox(QStringLiteral("Box"), window.get());
    radio = new QRadioButton(QStringLiteral("Radio"), window.get());
}

void TestToggleAccessible::cleanup()
{
    window.reset();
}

void TestToggleAccessible::role()
{
    QCOMPARE(accessible(box).role(), QAccessible::CheckBox);
    QCOMPARE(accessible(radio).role(), QAccessible::RadioButton);
}

void TestToggleAccessible::others()
{
    QCOMPARE(accessible(window.get()).role(), QAccessible::Client);
}

void TestToggleAccessible::name()
{
    QCOMPARE(accessible(box).text(QAccessible::Name), QStringLiteral("Box"));
    QCOMPARE(accessible(radio).text(QAccessible::Name), QStringLiteral("Radio"));
    box->setAccessibleName(QStringLiteral("Given"));
    QCOMPARE(accessible(box).text(QAccessible::Name), QStringLiteral("Given"));
}

void TestToggleAccessible::otherTextsAreNotItsName()
{
    QCOMPARE(accessible(box).text(QAccessible::Description), QString());
    box->setAccessibleDescription(QStringLiteral("Told"));
    QCOMPARE(accessible(box).text(QAccessible::Description), QStringLiteral("Told"));
}

void TestToggleAccessible::state()
{
    for (QAbstractButton *const toggle :
         {static_cast<QAbstractButton *>(box), static_cast<QAbstractButton *>(radio)}) {
        QVERIFY(accessible(toggle).state().checkable);
        QVERIFY(!accessible(toggle).state().checked);
        toggle->setChecked(true);
        QVERIFY(accessible(toggle).state().checked);
        QVERIFY(accessible(toggle).state().focusable);
        QVERIFY(!accessible(toggle).state().disabled);
        toggle->setEnabled(false);
        QVERIFY(accessible(toggle).state().disabled);
    }
}

void TestToggleAccessible::actions()
{
    const QStringList names = accessible(box).actionInterface()->actionNames();
    QCOMPARE(names.value(0), QAccessibleActionInterface::toggleAction());
    QVERIFY(names.contains(QAccessibleActionInterface::setFocusAction()));
}

void TestToggleAccessible::actionClicks_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("toggle") << QAccessibleActionInterface::toggleAction();
    QTest::newRow("press") << QAccessibleActionInterface::pressAction();
}

void TestToggleAccessible::actionClicks()
{
    QFETCH(QString, action);
    for (QAbstractButton *const toggle :
         {static_cast<QAbstractButton *>(box), static_cast<QAbstractButton *>(radio)}) {
        const QSignalSpy clicks(toggle, &QAbstractButton::clicked);
        accessible(toggle).actionInterface()->doAction(action);
        QCOMPARE(clicks.size(), 1);
        QVERIFY(toggle->isChecked());
    }
    accessible(box).actionInterface()->doAction(action);
    QVERIFY(!box->isChecked());
}

void TestToggleAccessible::focusIsNoClick()
{
    const QSignalSpy clicks(box, &QAbstractButton::clicked);
    radio->setFocus();
    accessible(box).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(window->focusWidget(), box);
    QCOMPARE(clicks.size(), 0);
}

QTEST_MAIN(TestToggleAccessible)
#include "tst_toggleaccessible.moc"
