#include "tests/support/testwindow.h"
#include "ui/colourhub.h"

#include <QPushButton>
#include <QSlider>
#include <QtTest>

namespace {

constexpr std::array wheels{"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5"};

} // namespace

/// The hub of each colour wheel shows the colour of its zone.
class TestColourHubs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void colourOfText_data();
    void colourOfText();
    void zonesEachInTheirs();
    void oneColourInAll();
    void stripe();
    void noColourIsHollow();
    void changesAtOnce();
    void brightnessDoesNotDimIt();
    void darkWhileDisabled();
    void fillsTheHub();
    void isADisc();

private:
    /// What the wheels show in their middle, as "#rrggbb", or "hollow".
    QStringList hubs() const;
    void start(const QByteArray &settings)
    {
        world->writeSettings("P751LEDStripe=true\n" + settings), world->start();
    }

    std::unique_ptr<TestWindow> world;
};

void TestColourHubs::init()
{
    world = std::make_unique<TestWindow>();
}

void TestColourHubs::cleanup()
{
    world.reset();
}

QStringList TestColourHubs::hubs() const
{
    QStringList shown;
    for (const char *name : wheels) {
        auto &wheel = *world->get<QPushButton>(name);
        QImage with(wheel.size(), QImage::Format_ARGB32_Premultiplied);
        with.fill(Qt::magenta);
        wheel.render(&with, QPoint(), QRegion(), QWidget::RenderFlags());
        const QIcon icon = wheel.icon();
        wheel.setIcon(QIcon());
        QImage without(wheel.size(), QImage::Format_ARGB32_Premultiplied);
        without.fill(Qt::magenta);
        wheel.render(&without, QPoint(), QRegion(), QWidget::RenderFlags());
        wheel.setIcon(icon);
        shown += with == without ? QStringLiteral("hollow")
                                 : with.pixelColor(with.rect().center()).name();
    }
    return shown;
}

void TestColourHubs::colourOfText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("orange") << QStringLiteral("255 85 0") << QColor(255, 85, 0);
    QTest::newRow("black") << QStringLiteral("0 0 0") << QColor(0, 0, 0);
    for (const char *none : {"", "255 0", "300 0 0", "-1 0 0", "red", "1 2 3 4"}) {
        QTest::newRow(none) << QString::fromLatin1(none) << QColor();
    }
}

void TestColourHubs::colourOfText()
{
    QFETCH(QString, text);
    QFETCH(QColor, colour);
    QCOMPARE(hubColour(text), colour);
    QCOMPARE(hubIcon(colour).isNull(), !colour.isValid());
}

void TestColourHubs::zonesEachInTheirs()
{
    start("backlight_on=true\nbrightlevel=100\nZone1Color=255 85 0\nZone2Color=155 0 255\n"
          "Zone3Color=0 0 0\nZone4Color=1 2 3\nStripeLid=0 255 0\n");
    const QStringList wanted =
        QStringLiteral("#ff5500 #9b00ff #000000 hollow #00ff00").split(QLatin1Char(' '));
    QCOMPARE(hubs(), wanted);
}

void TestColourHubs::oneColourInAll()
{
    start("backlight_on=true\nbrightlevel=100\nZone4Color=0 120 255\n"
          "singlecolorselectedlast=true\nStripeLid=9 8 7\n");
    const QStringList wanted =
        QStringLiteral("#0078ff #0078ff #0078ff #0078ff #090807").split(QLatin1Char(' '));
    QCOMPARE(hubs(), wanted);
}

void TestColourHubs::stripe()
{
    start("backlight_on=true\nbrightlevel=100\n");
    world->window->SetZoneColor(5, QStringLiteral("1 2 3"));
    QCOMPARE(hubs().last(), QStringLiteral("#010203"));
}

void TestColourHubs::noColourIsHollow()
{
    start("backlight_on=true\nbrightlevel=100\nZone1Color=300 0 0\n");
    const QStringList wanted =
        QStringLiteral("hollow hollow hollow hollow hollow").split(QLatin1Char(' '));
    QCOMPARE(hubs(), wanted);
}

void TestColourHubs::changesAtOnce()
{
    start("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n");
    world->window->SetZoneColor(4, QStringLiteral("0 0 255"));
    QCOMPARE(hubs().mid(0, 4).join(QLatin1Char(' ')),
             QStringLiteral("#0000ff #0000ff #0000ff #0000ff"));
    world->window->SetZoneColor(2, QStringLiteral("0 255 0"));
    const QStringList wanted =
        QStringLiteral("#0000ff #00ff00 #0000ff hollow").split(QLatin1Char(' '));
    QCOMPARE(hubs().mid(0, 4), wanted);
    world->window->SetZoneColor(2, QStringLiteral("300 0 0"));
    QCOMPARE(hubs().at(1), QStringLiteral("hollow"));
}

void TestColourHubs::brightnessDoesNotDimIt()
{
    start("backlight_on=true\nbrightlevel=10\nZone1Color=255 85 0\n");
    QCOMPARE(hubs().first(), QStringLiteral("#ff5500"));
    const auto &wheel = *world->get<QPushButton>("colorpick1");
    const qint64 icon = wheel.icon().cacheKey();
    world->get<QSlider>("horizontalSlider")->setValue(20);
    world->window->brightnessapply();
    QCOMPARE(wheel.icon().cacheKey(), icon); // not even painted anew
}

void TestColourHubs::darkWhileDisabled()
{
    start("backlight_on=true\nbrightlevel=100\nZone1Color=255 85 0\n");
    world->get<QAbstractButton>("backlight_off")->click();
    QCOMPARE(hubs().first(), QStringLiteral("hollow"));
    world->get<QAbstractButton>("backlight_on")->click();
    QCOMPARE(hubs().first(), QStringLiteral("#ff5500"));
}

void TestColourHubs::fillsTheHub()
{
    start("backlight_on=true\nbrightlevel=100\nZone1Color=255 85 0\n");
    const auto &wheel = *world->get<QPushButton>("colorpick1");
    QCOMPARE(wheel.iconSize(), QSize(hubEdge(40), hubEdge(40)));
    QCOMPARE(wheel.minimumWidth(), 40);
}

/// Of one colour up to its rim, which is smooth; as many pixels as a hub has in the largest wheel.
void TestColourHubs::isADisc()
{
    constexpr std::array edges{QSize(40, 18), QSize(50, 22), QSize(60, 27)}; // of wheel and hub
    for (const QSize &edge : edges) {
        QCOMPARE(hubEdge(edge.width()), edge.height());
    }
    const QSize largest(27, 27);
    const QIcon icon = hubIcon(QColor(255, 0, 0));
    QCOMPARE(icon.actualSize(largest), largest);
    const QImage disc = icon.pixmap({96, 96}).toImage();
    int between = 0;
    for (int y = 0; y < disc.height(); ++y) {
        for (int x = 0; x < disc.width(); ++x) {
            const QColor pixel = disc.pixelColor(x, y);
            between += pixel.alpha() > 0 && pixel.alpha() < 255 ? 1 : 0;
            QVERIFY(pixel.alpha() == 0 || (pixel.red() > 250 && pixel.green() == 0));
        }
    }
    QVERIFY(between > 0);
    QCOMPARE(disc.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(disc.pixelColor(disc.width() / 2, 1), QColor(255, 0, 0));
    QCOMPARE(disc.pixelColor(1, disc.height() / 2), QColor(255, 0, 0));
}

QTEST_MAIN(TestColourHubs)
#include "tst_colourhubs.moc"
