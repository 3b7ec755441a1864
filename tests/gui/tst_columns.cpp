#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// Makes one of the form's texts longer than any other.
class LongText final : public QTranslator
{
public:
    explicit LongText(QByteArray longText)
        : text(std::move(longText))
    {}
    QString translate(const char * /*context*/, const char *source, const char * /*comment*/,
                      int /*n*/) const override
    {
        return source == text ? QString(60, QLatin1Char('W')) : QString();
    }
    bool isEmpty() const override { return false; }

private:
    QByteArray text;
};

/// What begins the second column, by the page of the lower tabs.
constexpr std::array secondColumn{
    std::pair{0, "horizontalSlider"}, std::pair{0, "Check_CloseHides"},
    std::pair{0, "touch_mouse_wake"}, std::pair{0, "StartHidden_2"},
    std::pair{0, "pushButton_3"},     std::pair{1, "Label_SoftwareServerVersion"},
    std::pair{1, "Button_Update"},
};

/// How far to the right the second column begins, in the order of the table.
QVector<int> secondColumnOf(const TestWindow &world)
{
    MainWindow &window = *world.window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.resize(1600, 700);
    window.show();
    QVector<int> edges;
    for (const auto &[page, name] : secondColumn) {
        world.get<QTabWidget>("tabWidget")->setCurrentIndex(page);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        edges += world.get<QWidget>(name)->mapTo(&window, QPoint()).x();
    }
    return edges;
}

} // namespace

/// What is laid out by the font and the language alone.
class TestColumns : public QObject
{
    Q_OBJECT

private slots:
    // As the program does, so that the first window has the sheet's sizes as well.
    void initTestCase() { QApplication::setStyle(new DarkStyle); }

    void longestTextMovesTheWholeColumn_data();
    void longestTextMovesTheWholeColumn();
    void underTheSquare_data();
    void underTheSquare();
};

void TestColumns::longestTextMovesTheWholeColumn_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : {"Backlight Status", "Enabled", "Disabled", "Start with Windows",
                             "Start hidden in system tray", "User Per-Key RGB CLEVO App",
                             "Installed Version:", "Check for Update"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void TestColumns::longestTextMovesTheWholeColumn()
{
    QFETCH(QByteArray, text);
    TestWindow english;
    english.construct();
    const QVector<int> before = secondColumnOf(english);
    english.window.reset();

    LongText translator(text);
    QCoreApplication::installTranslator(&translator);
    TestWindow world;
    world.construct();
    const QVector<int> after = secondColumnOf(world);
    QCoreApplication::removeTranslator(&translator);

    const int moved = after.constFirst() - before.constFirst();
    QVERIFY2(moved > 0, qPrintable(QString::number(moved)));
    for (int i = 0; i < after.size(); ++i) {
        QVERIFY2(after.at(i) - before.at(i) == moved,
                 secondColumn.at(static_cast<std::size_t>(i)).second);
    }
}

void TestColumns::underTheSquare_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("leastSpacing");
    QTest::addColumn<int>("mostSpacing");
    QTest::newRow("room for all") << 12 << 6 << 6;
    QTest::newRow("room for the sample") << 30 << 0 << 5;
    QTest::newRow("no room") << 60 << 0 << 0;
}

/// The sample ends with the strip. First the spaces give way to a larger font, then the sample.
void TestColumns::underTheSquare()
{
    QFETCH(int, pixelSize);
    QFETCH(int, leastSpacing);
    QFETCH(int, mostSpacing);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPixelSize(pixelSize);
    QApplication::setFont(font);
    TestWindow world;
    world.construct();
    const int caption = world.get<QWidget>("label_5")->sizeHint().height();
    QApplication::setFont(before);

    const int spacing =
        world.window->findChild<QLayout *>(QStringLiteral("verticalLayout_4"))->spacing();
    QVERIFY2(spacing >= leastSpacing && spacing <= mostSpacing,
             qPrintable(QString::number(spacing)));
    const auto *const sample = world.get<QWidget>("colorSample");
    QCOMPARE(sample->minimumHeight(), sample->maximumHeight());
    const int strip = world.get<QWidget>("hSelector")->minimumHeight();
    const int square = world.get<QWidget>("svSelector")->minimumHeight();
    QCOMPARE(square + spacing + caption + spacing + sample->minimumHeight(), strip);
    constexpr int least = 60; // of the sample, by the form
    if (mostSpacing > 0) {
        QVERIFY(sample->minimumHeight() >= least);
    }
    if (spacing < 6) { // and not more than it takes
        QVERIFY(sample->minimumHeight() <= least + 1);
    }
}

QTEST_MAIN(TestColumns)
#include "tst_columns.moc"
