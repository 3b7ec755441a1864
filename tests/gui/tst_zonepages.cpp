#include "tests/support/testwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

namespace {

/// Counts how often a widget is told of another style.
class StyleWatcher : public QObject
{
public:
    explicit StyleWatcher(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        changes += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }

    int changes = 0;
};

} // namespace

/// The pages of the zones: what they show, and when there is one for the stripe.
class TestZonePages : public QObject
{
    Q_OBJECT

private slots:
    void notesWaitForAnEffect();
    void noteTakesThePicturesPlace_data();
    void noteTakesThePicturesPlace();
    void everyLabelHasItsPicture();
    void stripeOption();
    void stripeOptionHidesNothingAndShowsNothing();
    void stripeOptionBringsTheStyleBack();

private:
    static void start(TestWindow &world)
    {
        world.writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n"
                            "Zone2Color=0 255 0\nZone3Color=0 0 255\nStripeLid=10 20 30\n");
        world.start();
    }
};

void TestZonePages::notesWaitForAnEffect()
{
    TestWindow world;
    world.writeSettings("backlight_on=true\neffects=3\n");
    MainWindow &window = world.construct();
    const auto hidden = [&world] {
        return QPair(world.get<QWidget>("label_14")->isHidden(),
                     world.get<QWidget>("label_16")->isHidden());
    };
    QCOMPARE(hidden(), QPair(true, true)); // not applied yet
    window.delayedApply();
    QCOMPARE(hidden(), QPair(false, false));
    window.LoadSettings(); // as after a resume
    QCOMPARE(hidden(), QPair(true, true));
}

void TestZonePages::noteTakesThePicturesPlace_data()
{
    QTest::addColumn<QString>("note");
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("column");
    QTest::newRow("one zone") << QStringLiteral("label_14") << QStringLiteral("gridLayout_13") << 0;
    QTest::newRow("three zones") << QStringLiteral("label_16") << QStringLiteral("gridLayout_6")
                                 << 1;
}

/// In the middle of all that is hidden; while the note is hidden itself it holds no other row open.
void TestZonePages::noteTakesThePicturesPlace()
{
    QFETCH(QString, note);
    QFETCH(QString, layout);
    QFETCH(int, column);
    TestWindow world;
    start(world);
    const auto *const page = world.window->findChild<QGridLayout *>(layout);
    auto *const list = world.get<QComboBox>("Combo_Effect");
    for (const int effect : {3, 0, 1, 0}) {
        list->setCurrentIndex(effect);
        int height = 0;
        int width = 0;
        int row = 0;
        int left = 0;
        page->getItemPosition(page->indexOf(world.get<QWidget>(qPrintable(note))), &row, &left,
                              &height, &width);
        QCOMPARE(QRect(left, row, width, height),
                 QRect(column, 1, 1, effect == 0 ? 1 : page->rowCount() - 1));
        int times = 0;
        for (int i = 0; i < page->count(); ++i) {
            const QWidget *const held = page->itemAt(i)->widget();
            times += held != nullptr && held->objectName() == note ? 1 : 0;
        }
        QCOMPARE(times, 1);
    }
}

void TestZonePages::stripeOption()
{
    TestWindow world;
    start(world);
    auto *const tabs = world.get<QTabWidget>("tabWidget_2");
    auto *const box = world.get<QAbstractButton>("StartHidden_2");
    QVERIFY(!tabs->isTabEnabled(2));
    const LightingState before = world.window->lightingState();
    tabs->setTabVisible(2, false);
    box->click();
    QVERIFY(tabs->isTabEnabled(2));
    QVERIFY(tabs->isTabVisible(2));
    box->click();
    QVERIFY(!tabs->isTabEnabled(2));
    QVERIFY(tabs->isTabVisible(2)); // disabled, not hidden again
    const LightingState &after = world.window->lightingState();
    QCOMPARE(after.stripeWord, before.stripeWord);
    QCOMPARE(after.leftWord, before.leftWord);
}

void TestZonePages::everyLabelHasItsPicture()
{
    struct Row
    {
        const char *file;
        const char *label;
        QSize size;
    };
    constexpr std::array rows{
        Row{"keyboard_left", "keyboard_left", {3, 2}},
        Row{"keyboard_center", "keyboard_center", {4, 2}},
        Row{"keyboard_right", "keyboard_right", {5, 2}},
        Row{"keyboard_full", "keyboard_full", {6, 2}},
        Row{"stripe_lidled", "stripe_led", {7, 2}},
    };
    TestWindow world;
    for (const Row &row : rows) {
        QImage image(row.size, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QVERIFY(image.save(QStringLiteral("branding/%1.png").arg(QLatin1String(row.file))));
    }
    start(world);
    for (const Row &row : rows) {
        QCOMPARE(world.get<QLabel>(row.label)->pixmap(Qt::ReturnByValue).size(), row.size);
    }
}

/// A page that something else has hidden stays hidden when the option is taken back.
void TestZonePages::stripeOptionHidesNothingAndShowsNothing()
{
    TestWindow world;
    start(world);
    auto *const tabs = world.get<QTabWidget>("tabWidget_2");
    auto *const box = world.get<QAbstractButton>("StartHidden_2");
    box->click();
    tabs->setTabVisible(2, false);
    box->click();
    QVERIFY(!tabs->isTabVisible(2));
}

void TestZonePages::stripeOptionBringsTheStyleBack()
{
    TestWindow world;
    start(world);
    const QString sheet = qApp->styleSheet();
    QVERIFY(!sheet.isEmpty());
    for (int click = 0; click < 2; ++click) {
        qApp->setStyleSheet(QString());
        world.get<QAbstractButton>("StartHidden_2")->click();
        QCOMPARE(qApp->styleSheet(), sheet);
    }

    // Where it is in place nothing is worked through once more.
    const StyleWatcher styles(*world.get<QWidget>("colorpick1"));
    world.get<QAbstractButton>("StartHidden_2")->click();
    QCOMPARE(styles.changes, 0);
}

QTEST_MAIN(TestZonePages)
#include "tst_zonepages.moc"
