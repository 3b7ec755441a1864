#include "contrast.h"
#include "ui/colourhub.h"
#include "ui/darkstyle.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

QString picture(const char *name)
{
    return QFINDTESTDATA(QStringLiteral("../../branding/") + QLatin1String(name));
}

/// Mean of one channel over the middle half of a picture, in both directions.
double meanChannel(const QImage &image, int (*channel)(QRgb))
{
    qint64 sum = 0;
    int count = 0;
    for (int y = image.height() / 4; y < image.height() * 3 / 4; ++y) {
        for (int x = image.width() / 4; x < image.width() * 3 / 4; ++x, ++count) {
            sum += channel(image.pixel(x, y));
        }
    }
    return double(sum) / count;
}

} // namespace

class TestArtwork : public QObject
{
    Q_OBJECT

private slots:
    void pictureSizes_data();
    void pictureSizes();
    void tintShows_data();
    void tintShows();
    void keysAreDark_data();
    void keysAreDark();
    void wheelsAreHollow_data();
    void wheelsAreHollow();
    void zonePicturesJoin();
    void brandedHighlightCarriesWhiteText();
};

void TestArtwork::pictureSizes_data()
{
    QTest::addColumn<QSize>("shown");
    QTest::newRow("keyboard_full.png") << QSize(310, 95);
    for (const char *zone : {"keyboard_left.png", "keyboard_center.png", "keyboard_right.png"}) {
        QTest::newRow(zone) << QSize(145, 95);
    }
    QTest::newRow("stripe_lidled.png") << QSize(310, 95);
    QTest::newRow("lumikey_icon.png") << QSize(310, 95);
    QTest::newRow("lumikey_system_tray.png") << QSize(16, 16);
    QTest::newRow("colorpick.png") << QSize(40, 40);
    for (const char *button :
         {"minimize.png", "minimize_focus.png", "close.png", "close_focus.png"}) {
        QTest::newRow(button) << QSize(25, 25);
    }
}

void TestArtwork::pictureSizes()
{
    QFETCH(QSize, shown);
    const QImage image(picture(QTest::currentDataTag()));
    QVERIFY(image.width() >= 2 * shown.width());
    QVERIFY(image.height() >= 2 * shown.height());
}

void TestArtwork::tintShows_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QColor>("colour");
    for (const char *name : {"keyboard_full.png", "keyboard_left.png", "keyboard_center.png",
                             "keyboard_right.png", "stripe_lidled.png"}) {
        for (const QColor &colour : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)}) {
            QTest::addRow("%s %s", name, qPrintable(colour.name()))
                << QString::fromLatin1(name) << colour;
        }
    }
}

void TestArtwork::tintShows()
{
    QFETCH(QString, name);
    QFETCH(QColor, colour);
    const QPixmap plain(picture(qPrintable(name)));
    // Without an alpha channel, filling with SourceIn would paint the picture over.
    QVERIFY(plain.hasAlphaChannel());

    QPixmap tint = plain;
    colour.setAlpha(30);
    QPainter filler(&tint);
    filler.setCompositionMode(QPainter::CompositionMode_SourceIn);
    filler.fillRect(tint.rect(), colour);
    filler.end();

    QImage before(plain.size(), QImage::Format_RGB32);
    before.fill(QColor(65, 65, 65));
    QPainter(&before).drawPixmap(0, 0, plain);
    QImage after = before;
    QPainter(&after).drawPixmap(0, 0, tint);

    constexpr std::array<int (*)(QRgb), 3> channels{qRed, qGreen, qBlue};
    const std::array wanted{colour.red(), colour.green(), colour.blue()};
    double up = 0;
    double others = 0;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const double change =
            meanChannel(after, channels.at(i)) - meanChannel(before, channels.at(i));
        (wanted.at(i) ? up : others) += wanted.at(i) ? change : change / 2;
    }
    QVERIFY2(up - others > 20, qPrintable(QString::number(up - others)));
}

void TestArtwork::keysAreDark_data()
{
    tintShows_data();
}

/// On light keys a tint is a breath: it adds as much, but to much more.
void TestArtwork::keysAreDark()
{
    QFETCH(QString, name);
    QFETCH(QColor, colour);
    const QImage plain(picture(qPrintable(name)));
    constexpr double tintOpacity = 30 / 255.0;
    constexpr std::array<int (*)(QRgb), 3> channels{qRed, qGreen, qBlue};
    const std::array wanted{colour.red(), colour.green(), colour.blue()};
    double strongest = 0;
    double weakest = 255;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const double mean = meanChannel(plain, channels.at(i));
        QVERIFY2(mean < 65, "the page behind is lighter");
        const double shown = mean * (1 - tintOpacity) + wanted.at(i) * tintOpacity;
        strongest = std::max(strongest, shown);
        weakest = std::min(weakest, shown);
    }
    const double saturation = (strongest - weakest) / strongest;
    QVERIFY2(saturation > 0.4, qPrintable(QString::number(saturation)));
}

void TestArtwork::wheelsAreHollow_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("enabled") << picture("colorpick.png");
    QTest::newRow("disabled") << QStringLiteral(":/darkstyle/icon_colorpick_disabled.png");
}

void TestArtwork::wheelsAreHollow()
{
    QFETCH(QString, file);
    const DarkStyle style; // brings the compiled-in pictures along
    const QImage wheel(file);
    const int middle = wheel.width() / 2;
    const int hub = hubEdge(wheel.width()) / 2;
    QCOMPARE(wheel.pixelColor(middle, middle).alpha(), 0);
    QCOMPARE(wheel.pixelColor(middle + hub - 2, middle).alpha(), 0);
    QCOMPARE(wheel.pixelColor(middle + hub + 2, middle).alpha(), 255);
}

void TestArtwork::zonePicturesJoin()
{
    QImage joined(870, 190, QImage::Format_ARGB32_Premultiplied);
    joined.fill(Qt::transparent);
    QPainter painter(&joined);
    int x = 0;
    for (const char *zone : {"keyboard_left.png", "keyboard_center.png", "keyboard_right.png"}) {
        const QImage image(picture(zone));
        QCOMPARE(image.size(), QSize(290, 190));
        painter.drawImage(x, 0, image);
        x += image.width();
    }
    painter.end();

    const QImage full = QImage(picture("keyboard_full.png"))
                            .scaled(joined.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(joined.format());
    qint64 difference = 0;
    for (int y = 0; y < full.height(); ++y) {
        for (int column = 0; column < full.width(); ++column) {
            difference += std::abs(qGreen(full.pixel(column, y)) - qGreen(joined.pixel(column, y)));
        }
    }
    QVERIFY(double(difference) / (full.width() * full.height()) < 6);
}

void TestArtwork::brandedHighlightCarriesWhiteText()
{
    const QFileInfo branding(picture("lumikey_branding.ini"));
    QVERIFY(branding.isFile());
    QVERIFY(QDir::setCurrent(branding.path() + QStringLiteral("/..")));
    QPalette palette;
    DarkStyle().polish(palette);
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    QVERIFY(highlight != QColor(Qt::black));
    QVERIFY(contrast(Qt::white, highlight) >= 4.5);
}

QTEST_MAIN(TestArtwork)
#include "tst_artwork.moc"
