#include "colorpicker/svselector.h"
#include "lighting/devicewords.h"
#include "tests/support/testwindow.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>

/// "Apply Value" and "Cancel" where the picker is not used as usual.
class TestPickerApply : public QObject
{
    Q_OBJECT

private slots:
    void neverOpened();
    void focusOfOthersStays_data();
    void focusOfOthersStays();
    void openedOnWhatIsNoColour();
    void whileLoading_data();
    void whileLoading();
};

void TestPickerApply::neverOpened()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\nZone4Color=1 2 3\n"
                        "singlecolorselectedlast=true\n");
    MainWindow &window = world.start();
    world.get<QLineEdit>("leRGB")->setText(QStringLiteral("9 9 9"));
    const QByteArray stored = readFile(world.settings.settingsIni());
    window.on_pushButton_clicked();
    window.on_pushButton_2_clicked();
    QCOMPARE(readFile(world.settings.settingsIni()), stored);
    QCOMPARE(window.lightingState().singleZoneColor, QStringLiteral("1 2 3"));
    QCOMPARE(window.lightingState().leftWord, wordText(0xF0030102));
    QVERIFY(!world.get<QWidget>("tabWidget_2")->isHidden());
}

void TestPickerApply::focusOfOthersStays_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("by mouse, nowhere") << true;
    QTest::newRow("by keyboard, on another control") << false;
}

/// A picker that was never open has nothing to give back.
void TestPickerApply::focusOfOthersStays()
{
    QFETCH(bool, byMouse);
    TestWindow world;
    MainWindow &window = world.start();
    if (byMouse) {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(world.get<QWidget>("pushButton_2"), &press);
        if (window.focusWidget() != nullptr) {
            window.focusWidget()->clearFocus();
        }
    } else {
        world.get<QWidget>("StartHidden")->setFocus();
    }
    QWidget *const focused = window.focusWidget();
    QCOMPARE(focused == nullptr, byMouse);
    window.on_pushButton_2_clicked();
    QCOMPARE(window.focusWidget(), focused);
}

/// The selectors stay where they were, and the text is shown as it was stored.
void TestPickerApply::openedOnWhatIsNoColour()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\nZone1Color=0 255 0\nZone2Color=300 0 0\n");
    MainWindow &window = world.start();
    window.on_colorpick1_clicked();
    window.on_colorpick2_clicked();
    QCOMPARE(world.get<QLineEdit>("leRGB")->text(), QStringLiteral("300 0 0"));
    QCOMPARE(world.get<QLineEdit>("leHex")->text(), QStringLiteral("00ff00"));
    QCOMPARE(world.get<SVSelector>("svSelector")->color().rgb(), QColor(Qt::green).rgb());
}

void TestPickerApply::whileLoading_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<QByteArray>("before"); // whether one colour was chosen last
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("whole keyboard") << 4 << QByteArray("false") << QByteArray("true");
    QTest::newRow("one zone") << 2 << QByteArray("true") << QByteArray("true");
    QTest::newRow("stripe") << 5 << QByteArray("true") << QByteArray("true");
}

/// The colour is stored, and lights up; that the zones differ is told by none until all is loaded.
void TestPickerApply::whileLoading()
{
    QFETCH(int, target);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    TestWindow world;
    world.writeSettings("backlight_on=true\nbrightlevel=100\nsinglecolorselectedlast=" + before
                        + '\n');
    MainWindow &window = world.construct();
    switch (target) {
    case 2:
        window.on_colorpick2_clicked();
        break;
    case 4:
        window.on_colorpick4_clicked();
        break;
    default:
        window.on_colorpick5_clicked();
        break;
    }
    window.updateColorRGB(QStringLiteral("1 2 3"));
    window.on_pushButton_clicked();
    QCOMPARE(world.stored(SettingKeys::singleColourLast).toLatin1(), after);
    const LightingState &state = window.lightingState();
    QCOMPARE(state.singleColorSelected, target == 4);
    const QString unapplied = QStringLiteral("3758616583");
    QCOMPARE(state.leftWord, target == 4 ? wordText(0xF0030102) : unapplied);
    QCOMPARE(state.stripeWord, wordText(target == 5 ? 0xF3030102 : 0xF3000000));
}

QTEST_MAIN(TestPickerApply)
#include "tst_pickerapply.moc"
