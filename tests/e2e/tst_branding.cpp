#include "app/settingskeys.h"
#include "app/translation.h"
#include "system/testing/desktop.h"
#include "tests/e2e/documentpages.h"
#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/testwindow.h"
#include "tests/support/versionserver.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QDirIterator>
#include <QLabel>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace {

const QByteArray settings = QByteArray(Lines::threeZonesSettings) + "P751LEDStripe=true\n";
const QString page = QStringLiteral("docs/branding.md");
const QString vendorsName = QStringLiteral("Brightboard 9");
const QColor vendorsHighlight(200, 30, 120);

/// The vendor's pictures are of one colour each.
struct Picture
{
    const char *name;
    QRgb colour;
};
constexpr std::array pictures{
    Picture{"close", 0xFF8000FF},          Picture{"close_focus", 0xFFFF80FF},
    Picture{"minimize", 0xFF00C0C0},       Picture{"minimize_focus", 0xFFC0FFFF},
    Picture{"colorpick", 0xFFE0E000},      Picture{"keyboard_full", 0xFF204060},
    Picture{"keyboard_left", 0xFF602040},  Picture{"keyboard_center", 0xFF406020},
    Picture{"keyboard_right", 0xFF604020}, Picture{"stripe_lidled", 0xFF206040},
};

QColor vendorsColour(const char *name)
{
    for (const Picture &picture : pictures) {
        if (qstrcmp(picture.name, name) == 0) {
            return picture.colour;
        }
    }
    return {};
}

/// @p colour over the preview's own, as the light shows: 30 parts of 255.
QColor lit(const QColor &picture, const QColor &light)
{
    const auto mixed = [](int under, int over) {
        return (under * 225 + over * 30) / 255;
    };
    return {mixed(picture.red(), light.red()), mixed(picture.green(), light.green()),
            mixed(picture.blue(), light.blue())};
}

bool near(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) <= 3 && qAbs(a.green() - b.green()) <= 3
           && qAbs(a.blue() - b.blue()) <= 3;
}

void copyFolder(const QString &from, const QString &to)
{
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString target = to + files.next().mid(from.size());
        QDir().mkpath(QFileInfo(target).absolutePath());
        if (!QFile::copy(files.filePath(), target)) {
            qFatal("cannot copy %s", qPrintable(files.filePath()));
        }
    }
}

} // namespace

/// A second brand of the same program: nothing but the branding folder is another.
class TestBranding : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pageIsComplete();
    void nameAndHighlight();
    void buttons();
    void previews();
    void updateServer();
    void language_data();
    void language();

private:
    /// Starts the vendor's program, and makes a window like it.
    /// @param own lines that the user's settings have besides
    void start(const QByteArray &own = {});
    QColor seen(const char *name, const QPoint &offset = {}) const
    {
        const QPoint place = ProgramWindow::onScreen(*twin->window, name, offset);
        return ProgramWindow::picture().pixelColor(place - ProgramWindow::geometry().topLeft());
    }
    void openPage(int index) const;

    QTemporaryDir vendor;
    QByteArray vendorsLines; ///< the page's own, but for the group and the server
    VersionServer server;
    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<TestWindow> twin;
};

void TestBranding::initTestCase()
{
    QApplication::setStyle(new DarkStyle);
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);

    const QStringList lines =
        DocumentPages::block(page, QStringLiteral("ini")).split(QLatin1Char('\n'));
    QCOMPARE(lines.value(0), QStringLiteral("[settings]"));
    vendorsLines = lines.mid(1)
                       .filter(QRegularExpression(QStringLiteral("^(app|high)")))
                       .join(QLatin1Char('\n'))
                       .toUtf8()
                   + '\n';

    server.answerWith("1.0.4");
    copyFolder(ProgramProcess::programFolder(), vendor.path());
    writeFile(vendor.filePath(QStringLiteral("branding/lumikey_branding.ini")),
              "[settings]\n" + vendorsLines + "updateserver=" + server.address().toUtf8() + '\n');
    for (const Picture &picture : pictures) {
        QImage image(620, 190, QImage::Format_RGB32); // without an alpha channel, as many are
        image.fill(picture.colour);
        QVERIFY(image.save(
            vendor.filePath(QStringLiteral("branding/%1.png").arg(QLatin1String(picture.name)))));
    }
}

void TestBranding::start(const QByteArray &own)
{
    twin.reset();
    server.requests.clear();
    program = std::make_unique<ProgramProcess>();
    ProgramProcess::writeSettings(settings + own);
    program->process.setWorkingDirectory(vendor.path());
    program->process.start(vendor.filePath(QFileInfo(ProgramProcess::executable()).fileName()),
                           QStringList());
    QVERIFY(program->waitForLog("The Service Server is running!"));
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
    twin = std::make_unique<TestWindow>();
    twin->writeBranding(vendorsLines);
    twin->writeSettings(settings);
    twin->start();
    Desktop::movePointer({0, 0});
}

void TestBranding::openPage(int index) const
{
    auto *const tabs = twin->get<QTabWidget>("tabWidget_2");
    ProgramWindow::onScreen(*twin->window, "tabWidget_2"); // lays the twin out
    const QPoint tab = tabs->tabBar()->tabRect(index).center();
    ProgramWindow::click(ProgramWindow::geometry().topLeft()
                         + tabs->tabBar()->mapTo(twin->window.get(), tab));
    tabs->setCurrentIndex(index);
    QTest::qWait(500);
}

void TestBranding::pageIsComplete()
{
    const QString text = DocumentPages::text(page);
    const QStringList files =
        QDir(DocumentPages::path(QStringLiteral("branding"))).entryList({QStringLiteral("*.png")});
    QVERIFY(!files.isEmpty());
    for (const QString &file : files) {
        QVERIFY2(text.contains(QLatin1Char('`') + file + QLatin1Char('`')), qPrintable(file));
    }
    for (const SettingKey &key : std::initializer_list<SettingKey>{
             BrandingKeys::appName, BrandingKeys::highlightRed, BrandingKeys::highlightGreen,
             BrandingKeys::highlightBlue, BrandingKeys::updateServer, BrandingKeys::language}) {
        const QString name = QString::fromLatin1(key.name);
        QVERIFY2(text.contains(QLatin1Char('`') + name + QLatin1Char('`')), key.name);
        QVERIFY2(text.contains(QLatin1Char('\n') + name + QLatin1Char('=')), key.name);
    }
}

void TestBranding::nameAndHighlight()
{
    start();
    QCOMPARE(twin->get<QLabel>("Title")->text(), vendorsName);
    ProgramWindow::onScreen(*twin->window, "Title"); // lays the twin out
    const QRect place = twin->get<QLabel>("Title")->geometry();
    const QImage expected = twin->window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QImage shown = ProgramWindow::picture().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown.copy(place), expected.copy(place));
    twin->get<QLabel>("Title")->setText(QStringLiteral("Lumikey"));
    QVERIFY(shown.copy(place)
            != twin->window->grab().toImage().convertToFormat(QImage::Format_RGB32).copy(place));

    // The slider's filled part.
    QCOMPARE(seen("horizontalSlider"), vendorsHighlight);
}

void TestBranding::buttons()
{
    start();
    for (const char *name : {"close", "minimize"}) {
        const QByteArray button = QByteArray(name) + "Button";
        QCOMPARE(seen(button.constData()), vendorsColour(name));
        const QPoint place = ProgramWindow::onScreen(*twin->window, button.constData());
        // In two steps: a jump alone may not be told to the window.
        Desktop::movePointer(place + QPoint(5, 0));
        QTest::qWait(200);
        Desktop::movePointer(place);
        QTest::qWait(500);
        QCOMPARE(seen(button.constData()),
                 vendorsColour((QByteArray(name) + "_focus").constData()));
    }
    // Above the hub, which shows the colour of the zone whatever the wheel looks like.
    const QPoint aboveHub(0, -twin->get<QWidget>("colorpick1")->height() * 3 / 8);
    QCOMPARE(seen("colorpick1", aboveHub), vendorsColour("colorpick"));
}

void TestBranding::previews()
{
    start();
    const auto check = [this](const char *name, const QColor &light) {
        const QColor expected = lit(vendorsColour(name), light);
        const QColor found = seen(qstrcmp(name, "stripe_lidled") == 0 ? "stripe_led" : name);
        QVERIFY2(near(found, expected),
                 qPrintable(found.name() + QLatin1Char(' ') + expected.name()));
    };
    check("keyboard_left", Qt::red);
    check("keyboard_center", Qt::green);
    check("keyboard_right", Qt::blue);
    openPage(2);
    check("stripe_lidled", QColor(1, 2, 3));
    openPage(0);
    // Zones are shown: the whole keyboard's picture has no light on it.
    QCOMPARE(seen("keyboard_full"), vendorsColour("keyboard_full"));
}

void TestBranding::updateServer()
{
    start();
    // At the start, as every time.
    QCOMPARE(server.requests.size(), 1);
    QVERIFY2(server.requests.first().startsWith("GET /lumikey/version HTTP/1.1\r\n"),
             server.requests.first().constData());
}

void TestBranding::language_data()
{
    QTest::addColumn<QByteArray>("own");
    QTest::addColumn<bool>("german");
    QTest::newRow("the vendor's") << QByteArray() << true;
    QTest::newRow("the user's") << QByteArray("language=en\n") << false;
    QTest::newRow("one that there is not") << QByteArray("language=xx\n") << false;
}

void TestBranding::language()
{
    QFETCH(QByteArray, own);
    QFETCH(bool, german);
    const QString file = vendor.filePath(QStringLiteral("branding/lumikey_branding.ini"));
    const QByteArray before = readFile(file);
    const auto putBack = qScopeGuard([&] { writeFile(file, before); });
    writeFile(file, before + "language=de\n"); // as on the page
    start(own);
    // A window of this process speaks what is installed here.
    const auto looksAsIn = [this](QTranslator *language) {
        if (language) {
            QCoreApplication::installTranslator(language);
        }
        twin = std::make_unique<TestWindow>();
        twin->writeBranding(vendorsLines);
        twin->writeSettings(settings);
        twin->start();
        ProgramWindow::onScreen(*twin->window, "label"); // lays the twin out
        const auto &text = *twin->get<QLabel>("label");
        const QRect label(text.mapTo(twin->window.get(), QPoint()), text.size());
        const QImage shown = ProgramWindow::picture().convertToFormat(QImage::Format_RGB32);
        const QImage here = twin->window->grab().toImage().convertToFormat(QImage::Format_RGB32);
        return shown.copy(label) == here.copy(label);
    };
    QCOMPARE(looksAsIn(nullptr), !german);
    const auto translation = Translation::load(Translation::builtInFolder(), QStringLiteral("de"));
    QCOMPARE(looksAsIn(translation.get()), german);
    QCOMPARE(program->log().contains("Unknown language: \"xx\""), own.contains("xx"));
}

QTEST_MAIN(TestBranding)
#include "tst_branding.moc"
