#include "ui/keyboardpictures.h"

#include "tests/support/pictures.h"
#include "tests/support/testwindow.h"

#include <QPixmapCache>
#include <QTest>

class TestKeyboardPictures : public QObject
{
    Q_OBJECT

private slots:
    void componentBeyond255();
    void tintKeepsTheShape();
    void pictureWithoutAlphaIsTinted();
    void densePictureStaysDense();
    void files();
    void decodedOnce();
    void missingUntilLater();
    void zoneTakesTheTintFromTheWhole();
    void tintPictures_data();
    void tintPictures();
    void tintWithoutPicture();
    void tintOfNoColour();

private:
    static void startWithPictures(TestWindow &world)
    {
        world.writeSettings("backlight_on=true\nbrightlevel=100\n");
        writePictures();
        world.start();
    }
};

void TestKeyboardPictures::componentBeyond255()
{
    TestWindow world;
    startWithPictures(world);
    static int messages;
    messages = 0;
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
    world.window->SetZoneColor(1, QStringLiteral("300 0 0"));
    world.window->SetZoneColor(1, QStringLiteral("-300 0 0"));
    world.window->SetZoneColor(1, QStringLiteral("300 0 0"));
    qInstallMessageHandler(before);
    QCOMPARE(world.window->lightingState().leftWord, QString::number(0xF0002C00));
    QCOMPARE(shownColour(*world.get<QLabel>("keyboard_left")), QColor(Qt::black));
    QCOMPARE(messages, 0);
}

void TestKeyboardPictures::tintKeepsTheShape()
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixelColor(0, 0, QColor(10, 20, 30, 255));
    image.setPixelColor(1, 0, QColor(10, 20, 30, 0));
    const QImage result = tinted(QPixmap::fromImage(image), QColor(255, 0, 0, 30)).toImage();
    QCOMPARE(result.pixelColor(0, 0).alpha(), 30);
    QCOMPARE(result.pixelColor(0, 0).red(), 255);
    QCOMPARE(result.pixelColor(0, 0).green(), 0);
    QCOMPARE(result.pixelColor(1, 0).alpha(), 0);
}

void TestKeyboardPictures::pictureWithoutAlphaIsTinted()
{
    QImage image(2, 1, QImage::Format_RGB32);
    image.fill(QColor(10, 20, 30));
    const QImage result = tinted(QPixmap::fromImage(image), QColor(255, 0, 0, 30)).toImage();
    QCOMPARE(result.pixelColor(0, 0), QColor(255, 0, 0, 30));
}

void TestKeyboardPictures::densePictureStaysDense()
{
    QPixmap picture(4, 2);
    picture.fill(Qt::white);
    picture.setDevicePixelRatio(2);
    const QPixmap result = tinted(picture, QColor(255, 0, 0, 30));
    QCOMPARE(result.devicePixelRatio(), 2.0);
    QCOMPARE(result.size(), QSize(4, 2));
    QCOMPARE(result.toImage().pixelColor(3, 1), QColor(255, 0, 0, 30));
}

void TestKeyboardPictures::files()
{
    QCOMPARE(pictureFile(KeyboardPicture::Left), QStringLiteral("branding/keyboard_left.png"));
    QCOMPARE(pictureFile(KeyboardPicture::Centre), QStringLiteral("branding/keyboard_center.png"));
    QCOMPARE(pictureFile(KeyboardPicture::Right), QStringLiteral("branding/keyboard_right.png"));
    QCOMPARE(pictureFile(KeyboardPicture::Full), QStringLiteral("branding/keyboard_full.png"));
    QCOMPARE(pictureFile(KeyboardPicture::Stripe), QStringLiteral("branding/stripe_lidled.png"));
}

void TestKeyboardPictures::decodedOnce()
{
    const TestWindow world; // its folder holds the files
    writePictures();
    KeyboardPictures pictures;
    const qint64 key = pictures.of(KeyboardPicture::Left).cacheKey();
    QVERIFY(!pictures.of(KeyboardPicture::Left).isNull());
    QPixmapCache::clear();
    QCOMPARE(pictures.of(KeyboardPicture::Left).cacheKey(), key);
    QVERIFY(pictures.of(KeyboardPicture::Stripe).cacheKey() != key);
}

void TestKeyboardPictures::missingUntilLater()
{
    const TestWindow world;
    KeyboardPictures pictures;
    QVERIFY(pictures.of(KeyboardPicture::Full).isNull());
    writePictures();
    QVERIFY(!pictures.of(KeyboardPicture::Full).isNull());
}

/// A keyboard in zones has no one colour.
void TestKeyboardPictures::zoneTakesTheTintFromTheWhole()
{
    TestWindow world;
    startWithPictures(world);
    const auto &whole = *world.get<QLabel>("keyboard_full");
    world.window->SetZoneColor(4, QStringLiteral("0 255 0"));
    QCOMPARE(shownColour(whole), QColor(0, 255, 0, 30));
    world.window->SetZoneColor(2, QStringLiteral("0 0 255"));
    QCOMPARE(shownColour(whole).alpha(), 0);
}

void TestKeyboardPictures::tintPictures_data()
{
    QTest::addColumn<int>("img");
    QTest::addColumn<QString>("label");
    QTest::newRow("left") << 1 << QStringLiteral("keyboard_left");
    QTest::newRow("centre") << 2 << QStringLiteral("keyboard_center");
    QTest::newRow("right") << 3 << QStringLiteral("keyboard_right");
    QTest::newRow("full") << 4 << QStringLiteral("keyboard_full");
    QTest::newRow("stripe") << 5 << QStringLiteral("stripe_led");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("beyond") << 6 << QString();
}

void TestKeyboardPictures::tintPictures()
{
    QFETCH(int, img);
    QFETCH(QString, label);
    TestWindow world;
    startWithPictures(world);
    world.window->setKeyboardImageColor(0, 200, 0, 255, img);
    int painted = 0;
    for (const QLabel *candidate : world.window->findChildren<QLabel *>()) {
        const bool green = !candidate->pixmap(Qt::ReturnByValue).isNull()
                           && shownColour(*candidate) == QColor(0, 200, 0);
        QCOMPARE(green, candidate->objectName() == label);
        painted += green ? 1 : 0;
    }
    QCOMPARE(painted, label.isEmpty() ? 0 : 1);
}

void TestKeyboardPictures::tintWithoutPicture()
{
    TestWindow world;
    world.start();
    static int messages;
    messages = 0;
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { ++messages; });
    world.window->setKeyboardImageColor(1, 2, 3, 30, 4);
    qInstallMessageHandler(before);
    QCOMPARE(messages, 0); // nothing is painted on nothing
    QVERIFY(world.get<QLabel>("keyboard_full")->pixmap(Qt::ReturnByValue).isNull());
}

void TestKeyboardPictures::tintOfNoColour()
{
    QCOMPARE(tintColour({255, 0, 128}, 30), QColor(255, 0, 128, 30));
    for (const ColourComponents &bad :
         {ColourComponents{256, 0, 0}, ColourComponents{0, -1, 0}, ColourComponents{0, 0, 999}}) {
        QCOMPARE(tintColour(bad, 30), QColor(Qt::black));
    }
    for (const int bad : {-1, 256}) {
        QCOMPARE(tintColour({1, 2, 3}, bad), QColor(Qt::black));
    }
    QCOMPARE(tintColour({0, 255, 0}, 0), QColor(0, 255, 0, 0));
    QCOMPARE(tintColour({255, 0, 255}, 255), QColor(255, 0, 255));
}

QTEST_MAIN(TestKeyboardPictures)
#include "tst_keyboardpictures.moc"
