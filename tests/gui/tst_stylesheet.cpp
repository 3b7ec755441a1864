#include "contrast.h"
#include "tests/support/guitest.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QMenu>
#include <QRegularExpression>
#include <QResource>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <array>

namespace {

const QString sheetResource = QStringLiteral(":/darkstyle/darkstyle.qss");

struct Rule
{
    const char *selector;
    const char *declaration; ///< part of one
};

constexpr std::array rules{
    Rule{"#colorpick1", "border-image: url(branding/colorpick.png)"},
    Rule{"#colorpick2", "border-image: url(branding/colorpick.png)"},
    Rule{"#colorpick3", "border-image: url(branding/colorpick.png)"},
    Rule{"#colorpick4", "border-image: url(branding/colorpick.png)"},
    Rule{"#colorpick5", "border-image: url(branding/colorpick.png)"},
    Rule{"#colorpick5_3", "border-image: url(branding/colorpick.png)"},
    Rule{"#stripe_led", "border-image: url(branding/stripe_lidled.png)"},
    Rule{"#stripe_led_2", "border-image: url(branding/lumikey_icon.png)"},
    Rule{"#keyboard_full", "border-image: url(branding/keyboard_full.png)"},
    Rule{"#keyboard_left", "border-image: url(branding/keyboard_left.png)"},
    Rule{"#keyboard_left_2", "border-image: url(branding/keyboard_left.png)"},
    Rule{"#keyboard_center", "border-image: url(branding/keyboard_center.png)"},
    Rule{"#keyboard_center_2", "border-image: url(branding/keyboard_center.png)"},
    Rule{"#keyboard_right", "border-image: url(branding/keyboard_right.png)"},
    Rule{"#keyboard_right_2", "border-image: url(branding/keyboard_right.png)"},
    Rule{"#minimizeButton", "border-image: url(branding/minimize.png)"},
    Rule{"#minimizeButton:hover", "border-image: url(branding/minimize_focus.png)"},
    Rule{"#closeButton", "border-image: url(branding/close.png)"},
    Rule{"#closeButton:hover", "border-image: url(branding/close_focus.png)"},
    Rule{"#closeButton", "background-color: transparent"},
    Rule{"#keyboard_full", "background-repeat: no-repeat"},
    Rule{"#colorpick5_3", "border: none"},
    Rule{"QMessageBox", "border: 2px solid #212121"},
    Rule{"QMainWindow", "border: 1px solid #272727"},
    Rule{"#frame", "background-color: rgba(73, 73, 73, 127)"},
    Rule{"#frame_2", "border: 1px solid rgba(5, 5, 5, 127)"},
    Rule{"QMenuBar", "rgba(25, 25, 25, 127)"},
    Rule{"QToolBar", "rgba(25, 25, 25, 127)"},
    Rule{"QDockWidget::title", "rgba(25, 25, 25, 127)"},
    Rule{"QTreeView", "rgba(25, 25, 25, 127)"},
    Rule{"QTableView", "rgba(25, 25, 25, 127)"},
    Rule{"QScrollBar:horizontal", "rgba(25, 25, 25, 127)"},
    Rule{"QScrollBar:vertical", "rgba(25, 25, 25, 127)"},
    Rule{"QGroupBox", "rgba(25, 25, 25, 127)"},
    Rule{"QSplitter::handle", "rgba(25, 25, 25, 127)"},
    Rule{"QMenu::item", "rgba(25, 25, 25, 127)"},
    Rule{"QMenu::item:selected", "palette(highlight)"},
    Rule{"QTreeView::item:selected", "palette(highlight)"},
    Rule{"QMenu::indicator:non-exclusive:checked", "branding/checkbox_checked.png"},
    Rule{"QMenu::indicator:non-exclusive:unchecked", "branding/checkbox_unchecked.png"},
    Rule{"QMenu::indicator:exclusive:checked", "branding/radiobutton_checked.png"},
    Rule{"QMenu::indicator:exclusive:unchecked", "branding/radiobutton_unchecked.png"},
    Rule{"QTabWidget::pane", "rgba(83, 83, 83, 127)"},
    Rule{"QTabBar::tab:selected", "rgba(83, 83, 83, 127)"},
    Rule{"QTabBar::tab:selected", "border-bottom: 2px solid palette(highlight)"},
    Rule{"QTabBar::tab", "rgba(18, 18, 18, 127)"},
    Rule{"::tab:disabled", "background-color: #353535"},
    Rule{"QSlider::groove:horizontal", "palette(highlight)"},
    Rule{"QSlider::sub-page:horizontal", "palette(highlight)"},
    Rule{"QSlider::add-page:horizontal", "#2a2a2a"},
    Rule{"QSlider::sub-page:vertical", "#2a2a2a"},
    Rule{"QSlider::add-page:vertical", "palette(highlight)"},
    Rule{"QSlider::handle:horizontal", "width: 11%"},
    Rule{"QSlider::handle:horizontal", "#848484"},
    Rule{"QSlider::handle:vertical", "height: 11%"},
    Rule{"QSlider::handle:disabled", "#1c1c1c"},
    Rule{"QSlider::handle:hover", "#ffffff"},
    Rule{"QCheckBox::indicator:disabled", "rgba(43, 43, 43, 127)"},
    Rule{"QCheckBox::indicator:unchecked", "icon_checkbox_unchecked.png"},
    Rule{"QCheckBox::indicator:unchecked:pressed", "icon_checkbox_unchecked_pressed.png"},
    Rule{"QCheckBox::indicator:unchecked:disabled", "icon_checkbox_unchecked_disabled.png"},
    Rule{"QCheckBox::indicator:checked", "icon_checkbox_checked.png"},
    Rule{"QCheckBox::indicator:checked:pressed", "icon_checkbox_checked_pressed.png"},
    Rule{"QCheckBox::indicator:checked:disabled", "icon_checkbox_checked_disabled.png"},
    Rule{"QCheckBox::indicator:indeterminate", "icon_checkbox_indeterminate.png"},
    Rule{"QCheckBox::indicator:indeterminate:pressed", "icon_checkbox_indeterminate_pressed.png"},
    Rule{"QCheckBox::indicator:indeterminate:disabled", "icon_checkbox_indeterminate_disabled.png"},
    Rule{"QDial", "color: palette(highlight)"},
    Rule{"QDial", "background-color: #cacaca"},
};

/// Every picture of the resource folder, whether the sheet uses it or not.
constexpr std::array pictures{
    "battery_widget_preview.png",
    "icon_branch_closed.png",
    "icon_branch_end.png",
    "icon_branch_more.png",
    "icon_branch_open.png",
    "icon_checkbox_checked.png",
    "icon_checkbox_checked_disabled.png",
    "icon_checkbox_checked_pressed.png",
    "icon_checkbox_indeterminate.png",
    "icon_checkbox_indeterminate_disabled.png",
    "icon_checkbox_indeterminate_pressed.png",
    "icon_checkbox_unchecked.png",
    "icon_checkbox_unchecked_disabled.png",
    "icon_checkbox_unchecked_pressed.png",
    "icon_close.png",
    "icon_colorpick_disabled.png",
    "icon_restore.png",
    "icon_undock.png",
    "icon_vline.png",
    "resorces_widget_preview.png", // spelled so
};

} // namespace

class TestStyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sheetIsCompressedWithWindowsLineEnds();
    void sheetRule_data();
    void sheetRule();
    void sheetPicturesExist();
    void compiledInPicture_data();
    void compiledInPicture();
    void checkBoxIndicators();
    void menuIsReadable();
    void disabledTabVanishes();
    void disabledBarKeepsItsTabs();

private:
    QStyle *installed = nullptr; ///< the application owns it
};

void TestStyleSheet::initTestCase()
{
    installed = new DarkStyle;
    QApplication::setStyle(installed);
}

void TestStyleSheet::sheetIsCompressedWithWindowsLineEnds()
{
    const QByteArray sheet = readFile(sheetResource);
    QVERIFY(sheet.size() > 10 * 1024);
    QCOMPARE(sheet.count('\n'), sheet.count("\r\n"));
    QCOMPARE(QResource(sheetResource).compressionAlgorithm(), QResource::ZlibCompression);
}

void TestStyleSheet::sheetRule_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QString>("declaration");
    for (const Rule &rule : rules) {
        QTest::addRow("%s %s", rule.selector, rule.declaration)
            << QString::fromLatin1(rule.selector) << QString::fromLatin1(rule.declaration);
    }
}

void TestStyleSheet::sheetRule()
{
    QFETCH(QString, selector);
    QFETCH(QString, declaration);
    const QString sheet = QString::fromLatin1(readFile(sheetResource));
    // The selector alone or among others, then the declaration before the rule's end.
    const QRegularExpression rule(QRegularExpression::escape(selector)
                                  + QStringLiteral("(,[^{}]*)?\\s*\\{[^}]*")
                                  + QRegularExpression::escape(declaration));
    QVERIFY(rule.match(sheet).hasMatch());
}

void TestStyleSheet::sheetPicturesExist()
{
    const QString sheet = QString::fromLatin1(readFile(sheetResource));
    auto urls = QRegularExpression(QStringLiteral("url\\(([^)]*)\\)")).globalMatch(sheet);
    int seen = 0;
    for (; urls.hasNext(); ++seen) {
        const QString url = urls.next().captured(1);
        const QString file =
            url.startsWith(QLatin1Char(':')) ? url : QFINDTESTDATA(QStringLiteral("../../") + url);
        QVERIFY2(!QImage(file).isNull(), qPrintable(url));
    }
    QVERIFY(seen > 20);
}

void TestStyleSheet::compiledInPicture_data()
{
    QTest::addColumn<QString>("path");
    for (const char *name : pictures) {
        QTest::newRow(name) << QStringLiteral(":/darkstyle/") + QLatin1String(name);
    }
}

void TestStyleSheet::compiledInPicture()
{
    QFETCH(QString, path);
    const QImage image(path);
    QVERIFY(image.width() >= 32);
    QCOMPARE(image.width(), image.height());
    // Something is drawn on a transparent ground.
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            drawn += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
        }
    }
    QVERIFY(drawn > 0 && drawn < image.width() * image.height());
    QVERIFY(QFileInfo(path).size() <= 4096);
}

/// Each state of a check box looks different from all others.
void TestStyleSheet::checkBoxIndicators()
{
    QCheckBox box;
    box.setTristate(true);
    QVector<QImage> looks;
    const auto look = [&box, &looks] {
        looks += box.grab().toImage();
        QVERIFY(looks.indexOf(looks.last()) == looks.size() - 1);
    };
    for (const Qt::CheckState state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
        box.setCheckState(state);
        look();
        box.setDown(true);
        look();
        box.setDown(false);
        box.setEnabled(false);
        look();
        box.setEnabled(true);
    }
    QCOMPARE(looks.size(), 9);
}

void TestStyleSheet::menuIsReadable()
{
    QMenu menu;
    menu.addAction(QStringLiteral("Chosen"));
    menu.addAction(QStringLiteral("Other"));
    menu.popup({});
    menu.setActiveAction(menu.actions().constFirst());
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    const QImage image = menu.grab().toImage();
    const auto ground = [&menu, &image](int entry) {
        return image.pixelColor(menu.actionGeometry(menu.actions().at(entry)).topLeft()
                                + QPoint(3, 3));
    };
    QCOMPARE(ground(0), QApplication::palette().color(QPalette::Highlight));
    // The grey of the bars, as it is over the program's window.
    QCOMPARE(ground(1), QColor(36, 36, 36));
    QColor text = Qt::black; // the brightest
    const QRect other = menu.actionGeometry(menu.actions().at(1)).adjusted(3, 3, -3, -3);
    for (int y = other.top(); y <= other.bottom(); ++y) {
        for (int x = other.left(); x <= other.right(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            text = luminance(colour) > luminance(text) ? colour : text;
        }
    }
    QVERIFY(contrast(text, ground(1)) >= 4.5);
    menu.close();
}

void TestStyleSheet::disabledTabVanishes()
{
    QTabWidget tabs;
    for (const char *text : {"One", "Two", "Stripe"}) {
        tabs.addTab(new QWidget, QLatin1String(text));
    }
    tabs.setTabEnabled(2, false);
    tabs.show();
    QCOMPARE(tabs.tabBar()->tabRect(2).width(), 0);
    const int width = tabs.tabBar()->tabRect(1).width();
    QVERIFY(width > 0);

    tabs.setTabEnabled(2, true);
    DarkStyle::layOutTabs(tabs.tabBar());
    QVERIFY(tabs.tabBar()->tabRect(2).width() > width);
    QCOMPARE(tabs.tabBar()->tabRect(1).width(), width);

    tabs.setTabEnabled(2, false);
    DarkStyle::layOutTabs(tabs.tabBar());
    QCOMPARE(tabs.tabBar()->tabRect(2).width(), 0);
}

void TestStyleSheet::disabledBarKeepsItsTabs()
{
    QTabWidget tabs;
    for (const char *text : {"One", "Two", "Stripe", "Hidden"}) {
        tabs.addTab(new QWidget, QLatin1String(text));
    }
    tabs.setTabEnabled(2, false);
    tabs.setTabVisible(3, false);
    tabs.show();
    const int width = tabs.tabBar()->tabRect(0).width();

    // A new text makes the bar lay its tabs out, as a new size would.
    tabs.setEnabled(false);
    tabs.setTabText(1, QStringLiteral("Second"));
    QCOMPARE(tabs.tabBar()->tabRect(0).width(), width);
    QVERIFY(tabs.tabBar()->tabRect(1).width() > 0);
    QCOMPARE(tabs.tabBar()->tabRect(2).width(), 0);

    tabs.setEnabled(true);
    tabs.setTabText(1, QStringLiteral("Two"));
    QCOMPARE(tabs.tabBar()->tabRect(0).width(), width);
    QCOMPARE(tabs.tabBar()->tabRect(2).width(), 0);
}

QTEST_MAIN(TestStyleSheet)
#include "tst_stylesheet.moc"
