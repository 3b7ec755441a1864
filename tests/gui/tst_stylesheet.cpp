#include "contrast.h"
#include "sheetrules.h"
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

/// Selectors and declarations of each rule in its order, without comments, every gap one blank.
QVector<QPair<QString, QString>> rulesOf(QString sheet)
{
    sheet.remove(QRegularExpression(QStringLiteral("/\\*.*?\\*/"),
                                    QRegularExpression::DotMatchesEverythingOption));
    auto matches = QRegularExpression(QStringLiteral("([^{}]*)\\{([^{}]*)\\}")).globalMatch(sheet);
    QVector<QPair<QString, QString>> rules;
    while (matches.hasNext()) {
        const auto match = matches.next();
        rules.append({match.captured(1).simplified(), match.captured(2).simplified()});
    }
    return rules;
}

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
    "icon_information.png",
    "icon_question.png",
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
    void sheetRules();
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

void TestStyleSheet::sheetRules()
{
    const auto rules = rulesOf(QString::fromLatin1(readFile(sheetResource)));
    for (int i = 0; i < std::min<int>(rules.size(), ::sheetRules.size()); ++i) {
        const SheetRule &wanted = ::sheetRules.at(static_cast<std::size_t>(i));
        QCOMPARE(rules.at(i).first, QLatin1String(wanted.selectors));
        QCOMPARE(rules.at(i).second, QLatin1String(wanted.declarations));
    }
    QCOMPARE(rules.size(), static_cast<int>(::sheetRules.size()));
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
