#include "app/translation.h"
#include "clipping.h"
#include "tests/gui/dpitest.h"
#include "tests/support/testwindow.h"
#include "ui/dpibands.h"
#include "ui/messages.h"
#include "ui/texts.h"
#include "ui/zonepages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

/// Tabs that stick out of their bar, where Qt would offer to scroll.
QStringList hiddenTabs(const QTabWidget &tabs)
{
    QStringList hidden;
    const QTabBar &bar = *tabs.tabBar();
    for (int i = 0; i < bar.count(); ++i) {
        if (bar.isTabVisible(i) && bar.isTabEnabled(i) && bar.tabRect(i).right() > tabs.width()) {
            hidden += QStringLiteral("tab %1 ends at %2 of %3")
                          .arg(bar.tabText(i))
                          .arg(bar.tabRect(i).right())
                          .arg(tabs.width());
        }
    }
    return hidden;
}

} // namespace

/// No translated text is clipped, as tst_dpifixes looks at the English ones. Run once for each DPI
/// that counts, which CTest sets.
class TestLanguageSizes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { DpiTest::takeOnLooks(); }
    void cleanup();

    void showsEverything_data();
    void showsEverything();

private:
    /// Shows the window, to itself alone, as small as it gets.
    void show();
    /// Lays out what is shown now and adds what is clipped.
    void look(const char *what);

    std::unique_ptr<QTranslator> translation;
    std::unique_ptr<TestWindow> world;
    QStringList problems;
};

void TestLanguageSizes::cleanup()
{
    world.reset();
    translation.reset();
    problems.clear();
}

void TestLanguageSizes::showsEverything_data()
{
    QTest::addColumn<QString>("code");
    const QStringList codes = Translation::codes(Translation::builtInFolder());
    for (const QString &code : codes) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

void TestLanguageSizes::show()
{
    MainWindow &window = *world->window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    // Where the band does not give the least size for all texts, the window has grown with them, as
    // far as the screen allowed: here no screen is too small.
    window.resize(dpiBand(DpiTest::dpi()).changesEverything()
                      ? window.minimumSizeHint().expandedTo(window.minimumSize())
                      : window.minimumSize());
}

void TestLanguageSizes::look(const char *what)
{
    MainWindow &window = *world->window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    // Letters that come from another font may be taller than the font's own, which takes some of
    // the air around the texts of buttons.
    constexpr bool tight = true;
    QStringList clipped = clippedWidgets(window, tight);
    for (const char *tabs : {"tabWidget_2", "tabWidget"}) {
        if (world->get<QWidget>(tabs)->isVisible()) {
            clipped += hiddenTabs(*world->get<QTabWidget>(tabs));
        }
    }
    for (const QString &problem : qAsConst(clipped)) {
        if (problems.filter(problem).isEmpty()) { // most are the same on every page
            problems += QLatin1String(what) + QLatin1String(": ") + problem;
        }
    }
}

void TestLanguageSizes::showsEverything()
{
    if (!dpiBand(DpiTest::dpi()).windowMinimum.isValid()) {
        QSKIP(DpiTest::tooSmallInTheGap);
    }
    QFETCH(QString, code);
    translation = Translation::load(Translation::builtInFolder(), code);
    QVERIFY(translation);
    QCoreApplication::installTranslator(translation.get());

    world = std::make_unique<TestWindow>();
    world->writeSettings("backlight_on=true\nbrightlevel=100\nP751LEDStripe=true\n");
    world->start();
    show();
    auto *const zones = world->get<QTabWidget>("tabWidget_2");
    auto *const pages = world->get<QTabWidget>("tabWidget");
    for (const int page : {SinglePage, ZonesPage, StripePage}) {
        zones->setCurrentIndex(page);
        look(qPrintable(QStringLiteral("page %1").arg(page)));
    }
    world->get<QComboBox>("Combo_Effect")->setCurrentIndex(1);
    for (const int page : {SinglePage, ZonesPage}) {
        zones->setCurrentIndex(page);
        look(qPrintable(QStringLiteral("effect, page %1").arg(page)));
    }
    auto *const brightness = world->get<QLabel>("label_2");
    for (const char *text :
         {Messages::brightnessFromCompanion, Messages::brightnessUnderEffects,
          Messages::brightnessText(DimPhase::Watching), Messages::brightnessText(DimPhase::Dimming),
          Messages::brightnessText(DimPhase::Dimmed)}) {
        brightness->setText(translated(text).arg(100));
        look(text);
    }
    world->get<QComboBox>("Combo_Effect")->setCurrentIndex(0);
    pages->setCurrentIndex(1);
    world->get<QLabel>("Label_SoftwareVersion")
        ->setText(MainWindow::tr("Installed: %1").arg(QLatin1String("10.20.30")));
    for (const VersionVerdict verdict :
         {VersionVerdict::UpdateWaits, VersionVerdict::Latest, VersionVerdict::Newer}) {
        const char *const text = Messages::versionTexts(verdict).description;
        world->get<QLabel>("Label_SoftwareVersion_desc")->setText(translated(text));
        look(text);
    }
    const auto *const latest = world->get<QLabel>("Label_SoftwareServerVersion");
    const QString text = MainWindow::tr("Latest: %1").arg(QLatin1String("10.20.30"));
    if (latest->fontMetrics().horizontalAdvance(text) > latest->width()) {
        problems += text; // its label takes what room there is and asks for none
    }
    auto *const bar = world->get<QStatusBar>("statusBar");
    for (const char *message : {"RGB copied", "Hex copied", "Hex # copied", "Hex value pasted"}) {
        if (bar->fontMetrics().horizontalAdvance(translated(message)) > bar->width() - 40) {
            problems += translated(message);
        }
    }
    for (const char *opener :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5"}) {
        world->get<QAbstractButton>(opener)->click();
        look(opener);
        world->get<QAbstractButton>("pushButton_2")->click();
    }

    world = std::make_unique<TestWindow>();
    world->writeSettings("PerKey=true\n");
    world->construct();
    show();
    look("per-key page");

    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

int main(int argc, char **argv)
{
    return DpiTest::run<TestLanguageSizes>(argc, argv);
}

#include "tst_languagesizes.moc"
