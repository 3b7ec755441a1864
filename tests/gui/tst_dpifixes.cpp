#include "clipping.h"
#include "tests/gui/dpisizes.h"
#include "tests/gui/dpitest.h"
#include "tests/support/testwindow.h"
#include "ui/colourhub.h"
#include "ui/dpibands.h"
#include "updateworld.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOptionButton>
#include <QTabWidget>
#include <QTest>

using namespace DpiSizes;

/// Run once for each DPI that counts, which CTest sets.
class TestDpiFixes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { DpiTest::takeOnLooks(); }
    void init();
    void cleanup();

    void bandOfEveryDpi();
    void sizes();
    void rowsKeepTheirHeights();
    void noLargerThanTheScreen();
    void spacers();
    void spacersGrow();
    void pagesAlign();
    void pickerAtTheTop();
    void columnsBeginOnCommonLines();
    void effectNoteInTheMiddle();
    void showsEverything_data();
    void showsEverything();
    void firstWindowIsOnTheScreen();
    void updateAtStartShowsEverything();

private:
    static void compareMinimum(const TestWindow &world, const char *name, const QSize &size)
    {
        QVERIFY2(world.get<QWidget>(name)->minimumSize() == size, name);
    }

    std::unique_ptr<TestWindow> world;
};

void TestDpiFixes::init()
{
    world = std::make_unique<TestWindow>();
    world->writeSettings("backlight_on=true\nbrightlevel=100\nP751LEDStripe=true\n");
    world->start();
}

void TestDpiFixes::cleanup()
{
    world.reset();
}

void TestDpiFixes::bandOfEveryDpi()
{
    for (int each = 1; each <= 999; ++each) {
        std::size_t row = 0;
        while (each > table.at(row).highest) {
            ++row;
        }
        QVERIFY(each >= table.at(row).lowest);
        QCOMPARE(&dpiBand(each), &dpiBands.at(row));
    }
}

void TestDpiFixes::sizes()
{
    const Expected &want = expected();
    QCOMPARE(world->window->minimumSize(), want.window);
    for (const char *name : {"minimizeButton", "closeButton"}) {
        auto *const button = world->get<QWidget>(name);
        QCOMPARE(button->minimumSize(), QSize(want.title, want.title));
        QCOMPARE(button->maximumSize(), QSize(want.title, want.title));
    }
    for (const char *name : {"pushButton_3", "Button_CheckforUpdate", "Button_Update",
                             "Combo_Effect", "comboDimValue"}) {
        compareMinimum(*world, name, {0, want.firstControls});
    }
    for (const char *name : {"bHex", "bPasteHex", "pushButton_2", "pushButton"}) {
        compareMinimum(*world, name, {0, want.secondControls});
    }
    const bool wholeRow = want.bar != 50;
    compareMinimum(*world, "comboBox_BasicColors", {0, wholeRow ? want.secondControls : 0});
    for (const char *name : {"leRGB", "leHex"}) {
        compareMinimum(*world, name, {160, wholeRow ? want.secondControls : 36});
    }
    compareMinimum(*world, "keyboard_full", want.full);
    compareMinimum(*world, "stripe_led_2", want.full);
    compareMinimum(*world, "stripe_led", want.stripe);
    for (const char *name : {"keyboard_left", "keyboard_center", "keyboard_right"}) {
        compareMinimum(*world, name, want.zone);
        QCOMPARE(world->get<QWidget>(name)->maximumSize(), QSize(142, 95));
    }
    for (const char *name :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5", "colorpick5_3"}) {
        compareMinimum(*world, name, {want.colourButton, want.colourButton});
        QCOMPARE(world->get<QWidget>(name)->maximumSize(), QSize(40, 40));
    }
    const QSize hub(hubEdge(want.colourButton), hubEdge(want.colourButton));
    for (const char *name :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5"}) {
        QCOMPARE(world->get<QAbstractButton>(name)->iconSize(), hub);
    }
    compareMinimum(*world, "frame_2", {0, want.bar});
    QCOMPARE(world->get<QWidget>("frame_2")->maximumHeight(), want.bar);
    compareMinimum(*world, "frame", {0, want.frame});
    QCOMPARE(world->get<QWidget>("frame")->maximumHeight(), 90);
}

/// So that nothing jumps where an effect hides pictures and buttons.
void TestDpiFixes::rowsKeepTheirHeights()
{
    const Expected &want = expected();
    if (want.bar == 50) {
        QSKIP("The form's own sizes, which other tests look at.");
    }
    struct Rows
    {
        const char *layout;
        int picture;
        int button;
    };
    for (const Rows &rows :
         {Rows{"gridLayout_13", 1, 4}, Rows{"gridLayout_3", 1, 3}, Rows{"gridLayout_6", 1, 3},
          Rows{"gridLayout_12", 1, 3}, Rows{"gridLayout_14", 1, 3}, Rows{"gridLayout_11", 2, 4}}) {
        const auto *const layout =
            world->window->findChild<QGridLayout *>(QLatin1String(rows.layout));
        QCOMPARE(layout->rowMinimumHeight(rows.picture),
                 qMax(want.full.height(), want.stripe.height()));
        QCOMPARE(layout->rowMinimumHeight(rows.button), want.colourButton);
    }
}

/// However wide the desktop's font is. The lowest bands give it no more than their minimum.
void TestDpiFixes::noLargerThanTheScreen()
{
    const QFont before = QApplication::font();
    QFont wide = before;
    wide.setPixelSize(90);
    QApplication::setFont(wide);
    init();
    const QSize size = world->window->size();
    const int needed = std::min(world->window->minimumSizeHint().width(),
                                world->window->screen()->availableSize().width());
    const QSize most = world->window->screen()->availableSize().expandedTo(expected().window);
    QApplication::setFont(before);
    QVERIFY2(size.width() <= most.width() && size.height() <= most.height(),
             qPrintable(QStringLiteral("%1 x %2").arg(size.width()).arg(size.height())));
    const QSize least = QSize(630, 630).expandedTo(expected().window);
    if (expected().bar == 50) {
        QCOMPARE(size, least);
    } else {
        QCOMPARE(size.width(), std::max(needed, least.width()));
    }
}

void TestDpiFixes::spacers()
{
    const bool changed = expected().bar != 50;
    for (const formtables::SpacerRow &row : formtables::verticalSpacers) {
        if (qstrcmp(row.layout, "gridLayout_2") == 0) {
            continue; // the picker's, which stays
        }
        auto *const layout = world->window->findChild<QGridLayout *>(QLatin1String(row.layout));
        const QSpacerItem *const spacer = layout->itemAtPosition(row.row, 0)->spacerItem();
        if (spacer == nullptr) {
            QFAIL(row.layout);
        }
        const bool onZonePage =
            qstrcmp(row.layout, "gridLayout_7") != 0 && qstrcmp(row.layout, "gridLayout_8") != 0;
        // Nothing is between the per-key page's caption and its picture, as on the other pages.
        const bool closed = qstrcmp(row.layout, "gridLayout_11") == 0 && row.row == 1;
        const int wanted = closed       ? 0
                           : onZonePage ? expected().pageSpacer
                                        : expected().settingsSpacer;
        QVERIFY2(spacer->sizeHint().height() == wanted, row.layout);
        if (changed) {
            QCOMPARE(spacer->sizeHint().width(), 1);
            QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
            QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        }
    }
}

void TestDpiFixes::spacersGrow()
{
    int page = 8; // the form's
    int settings = 0;
    int steps = 0;
    for (const DpiBand &band : dpiBands) {
        if (!band.changesEverything()) {
            continue;
        }
        QVERIFY(band.pageSpacer >= page && band.pageSpacer <= 55);
        QVERIFY(band.settingsSpacer >= settings && band.settingsSpacer <= 55);
        steps += (band.pageSpacer > page ? 1 : 0) + (band.settingsSpacer > settings ? 1 : 0);
        page = band.pageSpacer;
        settings = band.settingsSpacer;
    }
    QCOMPARE(steps, 7); // 20, 25, 30, 45 and 1, 2, 3
}

void TestDpiFixes::pagesAlign()
{
    if (expected().bar == 50) {
        QSKIP("The form's own sizes, which other tests look at.");
    }
    world->window->show();
    QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    auto *const tabs = world->get<QTabWidget>("tabWidget_2");
    struct Page
    {
        int index;
        const char *caption;
        const char *picture;
        const char *button;
    };
    const auto middle = [this](const char *name) {
        const auto *const shown = world->get<QWidget>(name);
        return shown->mapTo(world->window.get(), shown->rect().center()).y();
    };
    QVector<int> first;
    for (const Page &page : {Page{0, "label_13", "keyboard_full", "colorpick4"},
                             Page{1, "label_10", "keyboard_center", "colorpick2"},
                             Page{2, "label_15", "stripe_led", "colorpick5"},
                             Page{3, "label_17", "stripe_led_2", "colorpick5_3"}}) {
        tabs->setTabEnabled(page.index, true);
        tabs->setCurrentIndex(page.index);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QVector<int> middles{middle(page.caption), middle(page.picture), middle(page.button),
                                   middle("frame_2")};
        if (first.isEmpty()) {
            first = middles;
        }
        for (int i = 0; i < middles.size(); ++i) {
            // One pixel: halves of odd heights are rounded either way.
            QVERIFY2(qAbs(middles.at(i) - first.at(i)) <= 1,
                     qPrintable(QStringLiteral("%1 of page %2: %3, first %4")
                                    .arg(i)
                                    .arg(page.index)
                                    .arg(middles.at(i))
                                    .arg(first.at(i))));
        }
    }
}

void TestDpiFixes::pickerAtTheTop()
{
    if (expected().window == QSize(630, 630)) {
        QSKIP(DpiTest::tooSmallInTheGap);
    }
    world->window->show();
    QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    world->get<QAbstractButton>("colorpick4")->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const QWidget *const panel = world->get<QWidget>("colorpickframe");
    const QWidget *const prompt = world->get<QWidget>("label_8");
    const QWidget *const content = world->get<QWidget>("widget");
    QVERIFY2(prompt->y() <= 6, qPrintable(QString::number(prompt->y())));
    QCOMPARE(prompt->height(), prompt->sizeHint().height());
    QVERIFY(content->y() - prompt->geometry().bottom() <= 8);
    const auto bottom = [panel](const QWidget *widget) {
        return widget->mapTo(panel, widget->rect().bottomLeft()).y();
    };
    const auto top = [panel](const QWidget *widget) {
        return widget->mapTo(panel, QPoint()).y();
    };
    const QWidget *const strip = world->get<QWidget>("hSelector");
    QCOMPARE(top(world->get<QWidget>("svSelector")), top(strip));
    QCOMPARE(top(world->get<QWidget>("leRGB")), top(strip));
    QCOMPARE(bottom(world->get<QWidget>("colorSample")), bottom(strip));
    // The buttons end there, too. In the larger bands they may need more, by the system's font.
    const int last = bottom(world->get<QWidget>("pushButton"));
    const bool crowded = expected().secondControls >= 38;
    QVERIFY2(last == bottom(strip) || (crowded && last > bottom(strip)),
             qPrintable(QStringLiteral("%1, strip %2").arg(last).arg(bottom(strip))));
}

void TestDpiFixes::columnsBeginOnCommonLines()
{
    if (expected().window == QSize(630, 630)) {
        QSKIP(DpiTest::tooSmallInTheGap);
    }
    MainWindow &window = *world->window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto lineOf = [&](const char *name) {
        auto *const item = world->get<QWidget>(name);
        int inside = 0;
        QStyleOptionButton option;
        option.initFrom(item);
        if (qobject_cast<QCheckBox *>(item)) {
            inside = item->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, item).x();
        } else if (qobject_cast<QRadioButton *>(item)) {
            inside =
                item->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, item).x();
        } else if (const auto *const label = qobject_cast<QLabel *>(item)) {
            inside = std::max(label->indent(), 0);
        } else if (qstrcmp(name, "pushButton_3") == 0) {
            inside = 3; // its border's margin
        }
        return item->mapTo(&window, QPoint(inside, 0)).x();
    };
    auto *const pages = world->get<QTabWidget>("tabWidget");
    const int left = lineOf("label_4");
    const int second = lineOf("label_2");
    for (const char *name : {"label", "backlight_on", "backlight_off", "Check_StartwithWindows",
                             "StartHidden", "UsePerKeyApp"}) {
        QVERIFY2(lineOf(name) == left, name);
    }
    for (const char *name : {"horizontalSlider", "Check_CloseHides", "touch_mouse_wake",
                             "StartHidden_2", "pushButton_3"}) {
        QVERIFY2(lineOf(name) == second, name);
    }
    pages->setCurrentIndex(1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (const char *name : {"label_3", "Label_SoftwareVersion", "Label_SoftwareVersion_desc",
                             "Button_CheckforUpdate"}) {
        QVERIFY2(lineOf(name) == left, name);
    }
    for (const char *name : {"Label_SoftwareServerVersion", "Button_Update"}) {
        QVERIFY2(lineOf(name) == second, name);
    }
}

void TestDpiFixes::effectNoteInTheMiddle()
{
    if (expected().window == QSize(630, 630)) {
        QSKIP(DpiTest::tooSmallInTheGap);
    }
    world->window->show();
    QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
    auto *const pages = world->get<QTabWidget>("tabWidget_2");
    world->get<QComboBox>("Combo_Effect")->setCurrentIndex(3);
    for (const auto &[index, name] : {std::pair{0, "label_14"}, std::pair{1, "label_16"}}) {
        pages->setCurrentIndex(index);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const QImage page = pages->currentWidget()->grab().toImage();
        QRect text;
        const QRgb ground = page.pixel(1, 1);
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (qGray(page.pixel(x, y)) > qGray(ground) + 60) {
                    text |= QRect(x, y, 1, 1);
                }
            }
        }
        const QPoint beside = text.center() - page.rect().center();
        QVERIFY2(qAbs(beside.x()) <= 3, name);
        // Half of what hangs below the line may be missing.
        QVERIFY2(qAbs(beside.y()) <= std::max(3, text.height() / 5),
                 qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(name)).arg(beside.y())));
    }
}

void TestDpiFixes::showsEverything_data()
{
    QTest::addColumn<int>("zonePage");
    QTest::addColumn<int>("settingsPage");
    QTest::addColumn<QByteArray>("press");
    for (int page = 0; page < 3; ++page) {
        QTest::addRow("page %d", page) << page << page % 2 << QByteArray();
    }
    QTest::newRow("picker") << 0 << 0 << QByteArray("colorpick4");
}

void TestDpiFixes::showsEverything()
{
    if (expected().window == QSize(630, 630)) {
        QSKIP(DpiTest::tooSmallInTheGap);
    }
    QFETCH(int, zonePage);
    QFETCH(int, settingsPage);
    QFETCH(QByteArray, press);
    MainWindow &window = *world->window;
    world->get<QTabWidget>("tabWidget_2")->setCurrentIndex(zonePage);
    world->get<QTabWidget>("tabWidget")->setCurrentIndex(settingsPage);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    if (!press.isEmpty()) {
        world->get<QAbstractButton>(press.constData())->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
    if (window.screen()->availableSize().width() < window.minimumSizeHint().width()) {
        QSKIP("The display is too small for this DPI.");
    }
    // The bars' heights are given, whatever the font that the desktop has.
    const bool tight = expected().title >= 52;
    QCOMPARE(clippedWidgets(window, tight).join(QStringLiteral("; ")), QString());
}

void TestDpiFixes::firstWindowIsOnTheScreen()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect window = world->window->geometry();
    QVERIFY(available.contains(window.topLeft()));
    QVERIFY(window.right() <= available.right() || window.left() == available.left());
    QVERIFY(window.bottom() <= available.bottom() || window.top() == available.top());
    if (available.contains(window)) { // in its middle, but for halves of pixels
        const QPoint off = window.center() - available.center();
        QVERIFY2(off.manhattanLength() <= 2, qPrintable(QString::number(off.manhattanLength())));
    }
}

/// An update is offered on the window before the start is through.
void TestDpiFixes::updateAtStartShowsEverything()
{
    world.reset();
    UpdateWorld update("99.0");
    BoxWatcher watcher(QMessageBox::No);
    QSize minimum;
    QStringList clipped;
    QSize size;
    watcher.look = [&](const QMessageBox &box) {
        const QWidget &window = *box.parentWidget();
        QVERIFY(window.isVisible());
        minimum = window.minimumSize();
        size = window.size();
        clipped = clippedWidgets(window, expected().title >= 52);
    };
    MainWindow &window = update.construct();
    QCOMPARE(watcher.seen.size(), 1);
    QCOMPARE(minimum, expected().window);
    QCOMPARE(size, window.size()); // it has grown by then
    if (expected().window == QSize(630, 630)
        || window.screen()->availableSize().width() < window.minimumSizeHint().width()) {
        return; // too small for the font, or for the display
    }
    QCOMPARE(clipped.join(QStringLiteral("; ")), QString());
}

int main(int argc, char **argv)
{
    return DpiTest::run<TestDpiFixes>(argc, argv);
}

#include "tst_dpifixes.moc"
