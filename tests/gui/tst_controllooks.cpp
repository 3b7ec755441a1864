#include "contrast.h"
#include "formtables.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QStatusBar>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

namespace {

QString brandingFolder()
{
    return QFileInfo(QFINDTESTDATA("../../branding/lumikey_branding.ini")).path();
}

/// Where a widget draws its text, in its own coordinates.
QRect textRect(const QWidget &widget)
{
    QStyleOptionButton option;
    option.initFrom(&widget);
    if (qobject_cast<const QCheckBox *>(&widget)) {
        return widget.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &widget);
    }
    if (qobject_cast<const QRadioButton *>(&widget)) {
        return widget.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &widget);
    }
    return widget.rect();
}

/// What is painted of a text and behind it.
struct Painted
{
    QColor text;   ///< the brightest pixel
    QColor ground; ///< the most frequent one
};

Painted painted(const QWidget &widget, const QRect &rect)
{
    QWidget *const window = widget.window();
    const QImage image = window->grab(rect.translated(widget.mapTo(window, QPoint()))).toImage();
    Painted seen = {Qt::black, Qt::black};
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            const int count = ++counts[colour.rgb()];
            if (luminance(colour) > luminance(seen.text)) {
                seen.text = colour;
            }
            if (count > counts.value(seen.ground.rgb())) {
                seen.ground = colour;
            }
        }
    }
    return seen;
}

Painted paintedText(const QWidget &widget)
{
    return painted(widget, textRect(widget).adjusted(2, 2, -2, -2));
}

/// A control as the window shows it.
QImage shown(const QWidget &control)
{
    QWidget *const window = control.window();
    return window->grab(QRect(control.mapTo(window, QPoint()), control.size())).toImage();
}

/// How many pixels differ so much that the change meets the eye.
int plainlyChanged(const QImage &before, const QImage &after)
{
    int changed = 0;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            changed += contrast(before.pixelColor(x, y), after.pixelColor(x, y)) >= 3 ? 1 : 0;
        }
    }
    return changed;
}

/// Fewer changed pixels are no frame; a field's cursor has some 20.
constexpr int leastChange = 60;

} // namespace

/// What the controls of the real window show of their state.
class TestControlLooks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void textIsReadable();
    void disabledTextIsDimmed_data();
    void disabledTextIsDimmed();
    void everyFocusedControlIsKnown();
    void focusIsSeen_data();
    void focusIsSeen();
    void focusIsMarkedOnce_data();
    void focusIsMarkedOnce();
    void wheelAnswersThePointer_data();
    void wheelAnswersThePointer();
    void applyIsThePrimaryButton();
    void uninstallIsAsWideAsItNeeds();
    void currentEntryIsSeen_data();
    void currentEntryIsSeen();

private:
    template<class Widget> Widget *get(const char *name) const { return world->get<Widget>(name); }
    void reveal(QWidget &control) const;

    std::unique_ptr<TestWindow> world;
};

void TestControlLooks::initTestCase()
{
    // The style reads the branding file beside the program.
    const QString start = QDir::currentPath();
    QVERIFY(QDir::setCurrent(brandingFolder() + QStringLiteral("/..")));
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
    QApplication::setStyle(new DarkStyle);
    QVERIFY(QDir::setCurrent(start));
}

void TestControlLooks::init()
{
    world = std::make_unique<TestWindow>();
    const QDir pictures(brandingFolder());
    for (const QString &name : pictures.entryList({QStringLiteral("*.png")})) {
        QVERIFY(QFile::copy(pictures.filePath(name), QStringLiteral("branding/") + name));
    }
    world->platform.elevated = true;
    world->writeSettings("backlight_on=true\nbrightlevel=100\n");
    MainWindow &window = world->start();
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

void TestControlLooks::cleanup()
{
    world.reset();
}

/// Brings the window into a state in which the control can be used.
void TestControlLooks::reveal(QWidget &control) const
{
    if (get<QWidget>("colorpickframe")->isAncestorOf(&control)) {
        get<QAbstractButton>("colorpick1")->click();
    }
    for (const char *name : {"tabWidget", "tabWidget_2"}) {
        auto *const tabs = get<QTabWidget>(name);
        for (int page = 0; page < tabs->count(); ++page) {
            if (tabs->widget(page)->isAncestorOf(&control)) {
                tabs->setTabVisible(page, true);
                tabs->setTabEnabled(page, true);
                tabs->setCurrentIndex(page);
            }
        }
    }
    control.setEnabled(true);
    QTRY_VERIFY(control.isVisible());
    QCoreApplication::processEvents();
}

void TestControlLooks::textIsReadable()
{
    const auto contrastOf = [](const Painted &seen) {
        return contrast(seen.text, seen.ground);
    };
    const auto *const bar = get<QTabWidget>("tabWidget")->tabBar();
    QCOMPARE(bar->currentIndex(), 0);
    QVERIFY(contrastOf(painted(*bar, bar->tabRect(1).adjusted(4, 4, -4, -4))) >= 4.5);
    auto *const status = get<QStatusBar>("statusBar");
    status->showMessage(QStringLiteral("Hex copied"));
    const QRect left = status->rect().adjusted(0, 0, -status->width() / 2, 0); // no grip
    QVERIFY(contrastOf(painted(*status, left)) >= 4.5);
    // The picker's last: opening it hides the others.
    for (const char *name : {"Combo_Effect", "pushButton_3", "leRGB", "leHex", "bHex"}) {
        QWidget &control = *get<QWidget>(name);
        reveal(control);
        if (auto *const field = qobject_cast<QLineEdit *>(&control)) {
            field->setText(QStringLiteral("255 0 0"));
        }
        const int arrow = qobject_cast<const QComboBox *>(&control) ? control.width() / 3 : 0;
        const QRect rect = control.rect().adjusted(4, 4, -4 - arrow, -4);
        QVERIFY2(contrastOf(painted(control, rect)) >= 4.5, name);
    }
}

void TestControlLooks::disabledTextIsDimmed_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("disabler"); // a button, or the list of effects
    const auto add = [](const char *disabler, std::initializer_list<const char *> names) {
        for (const char *name : names) {
            QTest::addRow("%s by %s", name, disabler) << QByteArray(name) << QByteArray(disabler);
        }
    };
    add("UsePerKeyApp", {"backlight_on", "backlight_off", "CheckBox_AutoDim", "touch_mouse_wake",
                         "StartHidden_2", "Combo_Effect", "comboDimValue"});
    add("backlight_off",
        {"label_9", "label_10", "label_11", "CheckBox_AutoDim", "Combo_Effect", "comboDimValue"});
    add("Combo_Effect", {"CheckBox_AutoDim", "comboDimValue"});
}

void TestControlLooks::disabledTextIsDimmed()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, disabler);
    auto &control = *get<QWidget>(name.constData());
    const Painted enabled = paintedText(control);
    if (auto *const effects = qobject_cast<QComboBox *>(get<QWidget>(disabler.constData()))) {
        effects->setCurrentIndex(1);
    } else {
        get<QAbstractButton>(disabler.constData())->click();
    }
    QVERIFY(!control.isEnabled());
    const Painted disabled = paintedText(control);

    QVERIFY(luminance(disabled.text) < luminance(enabled.text));
    const double difference = contrast(enabled.text, disabled.text);
    QVERIFY2(difference > 1.3, qPrintable(QString::number(difference)));
    const double readability = contrast(disabled.text, disabled.ground);
    QVERIFY2(readability >= 4.5, qPrintable(QString::number(readability)));
}

/// No control is left out of the rows of focusIsSeen().
void TestControlLooks::everyFocusedControlIsKnown()
{
    QStringList known;
    for (const char *name : formtables::tabOrder) {
        known += QLatin1String(name);
    }
    QStringList found;
    for (const auto *candidate : world->window->findChildren<QWidget *>()) {
        // The lists of combo boxes are windows of their own; the bar of a tab widget stands for it.
        const bool inWindow = candidate->window() == world->window.get();
        const bool inBar = qobject_cast<const QTabBar *>(candidate->parentWidget()) != nullptr;
        if (inWindow && !inBar && candidate->focusPolicy() != Qt::NoFocus) {
            const bool bar = qobject_cast<const QTabBar *>(candidate) != nullptr;
            found += (bar ? candidate->parentWidget() : candidate)->objectName();
        }
    }
    found.removeDuplicates();
    found.sort();
    known.sort();
    QCOMPARE(found.join(QLatin1Char(' ')), known.join(QLatin1Char(' ')));
}

void TestControlLooks::focusIsSeen_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : formtables::tabOrder) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestControlLooks::focusIsSeen()
{
    QFETCH(QByteArray, name);
    auto &control = *get<QWidget>(name.constData());
    reveal(control);
    // Somewhere to rest the focus; the title buttons are always there.
    auto &other = *get<QWidget>(name == "closeButton" ? "minimizeButton" : "closeButton");

    other.setFocus(Qt::TabFocusReason);
    const QImage resting = shown(control);
    control.setFocus(Qt::TabFocusReason);
    const QWidget *const proxy = control.focusProxy();
    QCOMPARE(QApplication::focusWidget(), proxy ? proxy : &control);
    const int seen = plainlyChanged(resting, shown(control));
    QVERIFY2(seen >= leastChange, qPrintable(QString::number(seen)));
    other.setFocus(Qt::TabFocusReason);
    QCOMPARE(shown(control), resting);
}

void TestControlLooks::focusIsMarkedOnce_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"backlight_on", "backlight_off", "CheckBox_AutoDim", "Check_StartwithWindows",
          "Check_CloseHides", "StartHidden", "touch_mouse_wake", "UsePerKeyApp", "StartHidden_2"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

/// By a frame around the whole, within which nothing changes; and the frame keeps to the text.
void TestControlLooks::focusIsMarkedOnce()
{
    QFETCH(QByteArray, name);
    auto &control = *get<QAbstractButton>(name.constData());
    reveal(control);
    get<QWidget>("closeButton")->setFocus(Qt::TabFocusReason);
    const QRect within = control.rect().adjusted(3, 3, -3, -3);
    const QImage resting = shown(control).copy(within);
    control.setFocus(Qt::TabFocusReason);
    QVERIFY(control.hasFocus());
    QCOMPARE(shown(control).copy(within), resting);
    QVERIFY(control.width() <= control.sizeHint().width());
}

void TestControlLooks::wheelAnswersThePointer_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5", "colorpick5_3"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestControlLooks::wheelAnswersThePointer()
{
    QFETCH(QByteArray, name);
    auto &wheel = *get<QAbstractButton>(name.constData());
    reveal(wheel);
    get<QWidget>("closeButton")->setFocus(Qt::TabFocusReason);
    // As the style draws it; a pointer on the way would make it a matter of time.
    const auto drawnAs = [&wheel](QStyle::State state) {
        QStyleOptionButton option;
        option.initFrom(&wheel);
        option.state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
        option.state |= state;
        option.icon = wheel.icon();
        option.iconSize = wheel.iconSize();
        QImage image(wheel.size(), QImage::Format_RGB32);
        image.fill(QColor(66, 66, 66)); // the page's
        QPainter painter(&image);
        wheel.style()->drawControl(QStyle::CE_PushButton, &option, &painter, &wheel);
        return image;
    };
    const auto changed = [](const QImage &one, const QImage &other) {
        int count = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const int step =
                    one.pixelColor(x, y).lightness() - other.pixelColor(x, y).lightness();
                count += qAbs(step) >= 15 ? 1 : 0;
            }
        }
        return count;
    };
    const QImage resting = drawnAs(QStyle::State_Raised);
    const QImage hovered = drawnAs(QStyle::State_Raised | QStyle::State_MouseOver);
    const QImage pressed = drawnAs(QStyle::State_Sunken | QStyle::State_MouseOver);
    QVERIFY2(changed(resting, hovered) > 200,
             qPrintable(QString::number(changed(resting, hovered))));
    QVERIFY(changed(hovered, pressed) > 200);
    QVERIFY(changed(resting, pressed) > 200);
}

void TestControlLooks::applyIsThePrimaryButton()
{
    auto &apply = *get<QAbstractButton>("pushButton");
    auto &cancel = *get<QAbstractButton>("pushButton_2");
    reveal(apply);
    const QColor highlight = QApplication::palette().color(QPalette::Highlight);
    const auto border = [](const QWidget &button) {
        return shown(button).pixelColor(button.width() / 2, 0);
    };
    get<QWidget>("closeButton")->setFocus(Qt::TabFocusReason);
    QCOMPARE(border(apply), highlight);
    QVERIFY(apply.font().bold());
    QVERIFY(border(cancel) != highlight);
    QVERIFY(!cancel.font().bold());
    apply.setFocus(Qt::TabFocusReason);
    QCOMPARE(border(apply), QColor(Qt::white)); // the focus is marked as everywhere
}

void TestControlLooks::uninstallIsAsWideAsItNeeds()
{
    const auto &button = *get<QAbstractButton>("pushButton_3");
    QCOMPARE(button.width(), button.sizeHint().width());
    QVERIFY(button.width() < world->window->width() / 4);
}

void TestControlLooks::currentEntryIsSeen_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"comboBox_BasicColors", "Combo_Effect", "comboDimValue"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void TestControlLooks::currentEntryIsSeen()
{
    QFETCH(QByteArray, name);
    auto &box = *get<QComboBox>(name.constData());
    reveal(box);
    box.showPopup();
    QAbstractItemView &list = *box.view();
    QTRY_VERIFY(list.isVisible());
    for (int row = 0; row < box.count(); ++row) {
        QVERIFY(list.visualRect(list.model()->index(row, 0)).height() >= 24);
    }
    QVERIFY2(list.visualRect(list.model()->index(box.count() - 1, 0)).bottom()
                 <= list.viewport()->rect().bottom(),
             "all rows are seen at once");
    list.setCurrentIndex(list.model()->index(1, 0));
    const auto entry = [&list](int row) {
        return list.viewport()->grab(list.visualRect(list.model()->index(row, 0))).toImage();
    };
    const QImage current = entry(1);
    QTest::keyClick(&list, Qt::Key_Down);
    QCOMPARE(list.currentIndex().row(), 2);
    QVERIFY(entry(1) != current);
    // Its ground is the highlight.
    const QColor highlight = QApplication::palette().color(QPalette::Highlight);
    QCOMPARE(current.pixelColor(1, current.height() / 2), highlight);
    QCOMPARE(entry(2).pixelColor(1, current.height() / 2), highlight);
    box.hidePopup();
}

QTEST_MAIN(TestControlLooks)
#include "tst_controllooks.moc"
