#include "app/startup.h"
#include "tests/support/notedmessages.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QFont>
#include <QPalette>
#include <QPointer>
#include <QProcess>
#include <QProcessEnvironment>
#include <QPushButton>
#include <QScopeGuard>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cstdio>
#include <memory>

/// Takes the sheet out of the program. Outside of namespaces, as the macro wants it.
static void removeSheet()
{
    Q_CLEANUP_RESOURCE(darkstyle);
}

namespace {

// What this program does instead of its tests.
constexpr const char *firstStyleWins = "--first-style-wins";
constexpr const char *installedFont = "--installed-font";
constexpr const char *withoutSheet = "--without-sheet";
constexpr const char *baseOfTheDesktops = "--base-of-the-desktops";

// Exit codes of installedFont, besides the points by which the font has grown.
constexpr int pixelSizeStood = 100;
constexpr int sizeChangedAgain = 101;

/// Installs the style as the program does when it starts, then others in its place.
int growthOfInstalledFont()
{
    QFont font = QApplication::font();
    if (const auto pixelSize = fontPixelSize(QApplication::desktop()->logicalDpiX())) {
        font.setPixelSize(*pixelSize);
        QApplication::setFont(font);
    }
    QApplication::setStyle(new DarkStyle);
    const QFont shown = QApplication::font();
    for (int i = 0; i < 3; ++i) {
        QApplication::setStyle(new DarkStyle);
        qApp->setStyleSheet(i == 1 ? QString() : qApp->styleSheet() + QLatin1Char('\n'));
        if (QApplication::font() != shown) {
            return sizeChangedAgain;
        }
    }
    if (shown.pixelSize() > 0 && shown == font) {
        return pixelSizeStood;
    }
    return shown.pointSize() - font.pointSize();
}

/// Starts a window in a program that has no sheet, and tells by the exit code whether it looks as
/// the palette alone makes it.
int lookWithoutSheet()
{
    auto *const style = new DarkStyle;
    removeSheet();
    QApplication::setStyle(style);
    TestWindow world;
    world.construct();
    std::fflush(stdout);
    const bool darkAlone = qApp->styleSheet().isEmpty()
                           && QApplication::palette().color(QPalette::Window) == QColor(48, 48, 48);
    const QString others = QStringLiteral("QLabel { margin: 1px; }");
    qApp->setStyleSheet(others);
    style->polish(qApp);
    return darkAlone && qApp->styleSheet() == others ? 0 : 1;
}

const QString sheetResource = QStringLiteral(":/darkstyle/darkstyle.qss");

/// What a polished palette holds; the highlight is the one of brandingText.
struct PaletteEntry
{
    QPalette::ColorRole role;
    QRgb enabled;
    QRgb disabled;
};

constexpr const char *brandingText = "[settings]\nhighlightcolor_RED=12\nhighlightcolor_GREEN=134\n"
                                     "highlightcolor_BLUE=56\n";

constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb grey = qRgb(127, 127, 127);

constexpr std::array paletteEntries{
    PaletteEntry{QPalette::Window, qRgb(48, 48, 48), qRgb(48, 48, 48)},
    PaletteEntry{QPalette::WindowText, white, grey},
    PaletteEntry{QPalette::Base, qRgb(42, 42, 42), qRgb(42, 42, 42)},
    PaletteEntry{QPalette::AlternateBase, qRgb(66, 66, 66), qRgb(66, 66, 66)},
    PaletteEntry{QPalette::ToolTipBase, white, white},
    PaletteEntry{QPalette::ToolTipText, qRgb(53, 53, 53), qRgb(53, 53, 53)},
    PaletteEntry{QPalette::Text, white, grey},
    PaletteEntry{QPalette::Dark, qRgb(40, 40, 40), qRgb(40, 40, 40)},
    PaletteEntry{QPalette::Shadow, qRgb(15, 15, 15), qRgb(15, 15, 15)},
    PaletteEntry{QPalette::Button, qRgb(56, 56, 56), qRgb(56, 56, 56)},
    PaletteEntry{QPalette::ButtonText, white, grey},
    PaletteEntry{QPalette::BrightText, qRgb(255, 0, 0), qRgb(255, 0, 0)},
    PaletteEntry{QPalette::Link, qRgb(42, 130, 218), qRgb(42, 130, 218)},
    PaletteEntry{QPalette::Highlight, qRgb(12, 134, 56), qRgb(80, 80, 80)},
    PaletteEntry{QPalette::HighlightedText, white, grey},
};

} // namespace

class TestDarkStyle : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void paletteRow_data();
    void paletteRow();
    void rolesOutsideTheTableStay();
    void missingBrandingGivesBlack();
    void brandingIsReadAtEachPolish();

    void baseStyleIsFusionAndStays();
    void baseStyleIsNotTheDesktops();
    void firstGivenStyleWins();
    void stylesComeAndGo_data();
    void stylesComeAndGo();
    void applicationStylesReplaceEachOther();

    void pixelSizeStands();
    void pointSizeGrowsByOne();
    void fontAtStart_data();
    void fontAtStart();
    void polishSetsTheSheet();
    void missingSheetIsTold();
    void bringsItsSheetAlong();
    void polishWithoutApplication();

private:
    std::unique_ptr<QTemporaryDir> folder;
    QString startFolder = QDir::currentPath();
    QStyle *installed = nullptr; ///< the application owns it
};

void TestDarkStyle::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    QVERIFY(QDir::setCurrent(folder->path()));
}

void TestDarkStyle::cleanup()
{
    QDir::setCurrent(startFolder);
}

void TestDarkStyle::paletteRow_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QRgb>("enabled");
    QTest::addColumn<QRgb>("disabled");
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (const PaletteEntry &entry : paletteEntries) {
        QTest::newRow(roles.valueToKey(entry.role))
            << entry.role << entry.enabled << entry.disabled;
    }
}

void TestDarkStyle::paletteRow()
{
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QRgb, enabled);
    QFETCH(QRgb, disabled);
    writeFile(QStringLiteral("branding/lumikey_branding.ini"), brandingText);

    QPalette palette(QColor(1, 2, 3));
    DarkStyle style;
    style.polish(palette);

    QCOMPARE(palette.color(QPalette::Active, role), QColor(enabled));
    QCOMPARE(palette.color(QPalette::Inactive, role), QColor(enabled));
    QCOMPARE(palette.color(QPalette::Disabled, role), QColor(disabled));
}

void TestDarkStyle::rolesOutsideTheTableStay()
{
    QPalette palette;
    palette.setColor(QPalette::LinkVisited, QColor(1, 2, 3));
    palette.setColor(QPalette::Light, QColor(4, 5, 6));
    DarkStyle().polish(palette);
    QCOMPARE(palette.color(QPalette::LinkVisited), QColor(1, 2, 3));
    QCOMPARE(palette.color(QPalette::Light), QColor(4, 5, 6));
}

void TestDarkStyle::missingBrandingGivesBlack()
{
    QPalette palette;
    DarkStyle().polish(palette);
    QCOMPARE(palette.color(QPalette::Active, QPalette::Highlight), QColor(Qt::black));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::Highlight), QColor(80, 80, 80));
}

void TestDarkStyle::brandingIsReadAtEachPolish()
{
    DarkStyle style;
    QPalette palette;
    style.polish(palette);
    QCOMPARE(palette.color(QPalette::Highlight), QColor(Qt::black));
    writeFile(QStringLiteral("branding/lumikey_branding.ini"), brandingText);
    style.polish(palette);
    QCOMPARE(palette.color(QPalette::Highlight), QColor(12, 134, 56));
}

void TestDarkStyle::baseStyleIsFusionAndStays()
{
    QStyle *const base = DarkStyle::sharedBaseStyle();
    QCOMPARE(base->metaObject()->className(), "QFusionStyle");
    const std::unique_ptr<QStyle> late(QStyleFactory::create(QStringLiteral("Windows")));
    QCOMPARE(DarkStyle::sharedBaseStyle(late.get()), base);
}

/// Whatever style the program is started with.
void TestDarkStyle::baseStyleIsNotTheDesktops()
{
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(),
                               {QStringLiteral("-style"), QStringLiteral("Windows"),
                                QLatin1String(baseOfTheDesktops)}),
             0);
}

void TestDarkStyle::firstGivenStyleWins()
{
    QCOMPARE(
        QProcess::execute(QCoreApplication::applicationFilePath(), {QLatin1String(firstStyleWins)}),
        0);
}

void TestDarkStyle::stylesComeAndGo_data()
{
    QTest::addColumn<QVector<int>>("order");
    for (const QVector<int> &order : {QVector<int>{0, 1, 2}, {2, 1, 0}, {1, 0, 2}, {1, 2, 0}}) {
        QTest::addRow("%d%d%d", order[0], order[1], order[2]) << order;
    }
}

void TestDarkStyle::stylesComeAndGo()
{
    QFETCH(QVector<int>, order);
    const QPointer<QStyle> base = DarkStyle::sharedBaseStyle();

    std::array<std::unique_ptr<DarkStyle>, 3> styles;
    for (auto &style : styles) {
        style = std::make_unique<DarkStyle>();
    }
    for (const int index : order) {
        styles.at(std::size_t(index)).reset();
        QVERIFY(base);
        // Whoever is left draws: its base style must not call back into a style that is gone.
        for (const auto &style : styles) {
            if (!style) {
                continue;
            }
            QCOMPARE(style->baseStyle(), base.data());
            QPushButton button(QStringLiteral("drawn"));
            button.setStyle(style.get());
            QVERIFY(!button.grab().isNull());
            QVERIFY(style->pixelMetric(QStyle::PM_IndicatorWidth) > 0);
        }
    }
    // Deferred deletions of the base style would run now.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(base);
    QVERIFY(base->pixelMetric(QStyle::PM_IndicatorWidth) > 0);
}

void TestDarkStyle::applicationStylesReplaceEachOther()
{
    const QPointer<QStyle> base = DarkStyle::sharedBaseStyle();
    QPushButton button(QStringLiteral("shown"));
    for (int i = 0; i < 3; ++i) {
        installed = new DarkStyle;
        QApplication::setStyle(installed);
        QVERIFY(base);
        QVERIFY(!button.grab().isNull());
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(48, 48, 48));
    }
}

void TestDarkStyle::pixelSizeStands()
{
    const auto restore =
        qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
    QFont font = QApplication::font();
    font.setPixelSize(17);
    QApplication::setFont(font);
    const NotedMessages noted;
    DarkStyle().polish(qApp);
    QCOMPARE(QApplication::font().pixelSize(), 17);
    QCOMPARE(QApplication::font().pointSize(), -1);
    QCOMPARE(NotedMessages::texts, QStringList()); // nobody asked for points
}

void TestDarkStyle::pointSizeGrowsByOne()
{
    const auto restore =
        qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
    QFont font = QApplication::font();
    font.setPointSize(30);
    QApplication::setFont(font);
    for (int i = 0; i < 3; ++i) {
        DarkStyle style;
        style.polish(qApp);
        QCOMPARE(QApplication::font().pointSize(), 31);
        style.polish(qApp);
        QCOMPARE(QApplication::font().pointSize(), 31);
    }
    for (const int size : {1, 40}) {
        font.setPointSize(size);
        QApplication::setFont(font);
        DarkStyle().polish(qApp);
        QCOMPARE(QApplication::font().pointSize(), size + 1);
    }
}

void TestDarkStyle::fontAtStart_data()
{
    QTest::addColumn<int>("dpi");
    QTest::addColumn<int>("growth"); // in points
    QTest::newRow("the last DPI with a pixel size") << 336 << pixelSizeStood;
    QTest::newRow("the first without") << 337 << 1;
    QTest::newRow("above") << 340 << 1;
}

/// What becomes of the font in a program that starts as this one does.
void TestDarkStyle::fontAtStart()
{
    QFETCH(int, dpi);
    QFETCH(int, growth);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_FONT_DPI"), QString::number(dpi));
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(startFolder); // the folder of this test is to be removed
    program.start(QCoreApplication::applicationFilePath(), {QLatin1String(installedFont)});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), growth);
}

void TestDarkStyle::polishSetsTheSheet()
{
    qApp->setStyleSheet(QString());
    DarkStyle().polish(qApp);
    QCOMPARE(qApp->styleSheet().toLatin1().replace('\n', "\r\n"), readFile(sheetResource));
}

void TestDarkStyle::missingSheetIsTold()
{
    QProcess program;
    program.setWorkingDirectory(startFolder); // the folder of this test is to be removed
    program.start(QCoreApplication::applicationFilePath(), {QLatin1String(withoutSheet)});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAllStandardOutput().replace('\r', ""),
             QByteArray("Unable to set stylesheet, file not found\n"));
}

void TestDarkStyle::bringsItsSheetAlong()
{
    removeSheet();
    QVERIFY(!QFile::exists(sheetResource));
    const DarkStyle style;
    QVERIFY(QFile::exists(sheetResource));
}

void TestDarkStyle::polishWithoutApplication()
{
    const QFont font = QApplication::font();
    DarkStyle().polish(static_cast<QApplication *>(nullptr));
    QCOMPARE(QApplication::font(), font);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (app.arguments().contains(QLatin1String(firstStyleWins))) {
        QStyle *const given = QStyleFactory::create(QStringLiteral("Windows"));
        const bool kept =
            DarkStyle::sharedBaseStyle(given) == given && DarkStyle::sharedBaseStyle() == given
            && DarkStyle().baseStyle() == given && DarkStyle::sharedBaseStyle() == given;
        return kept ? 0 : 1;
    }
    if (app.arguments().contains(QLatin1String(baseOfTheDesktops))) {
        const QStyle *const base = DarkStyle::sharedBaseStyle();
        return qstrcmp(base->metaObject()->className(), "QFusionStyle");
    }
    if (app.arguments().contains(QLatin1String(installedFont))) {
        return growthOfInstalledFont();
    }
    if (app.arguments().contains(QLatin1String(withoutSheet))) {
        return lookWithoutSheet();
    }
    TestDarkStyle test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_darkstyle.moc"
