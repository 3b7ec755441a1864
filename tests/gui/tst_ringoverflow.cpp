#include "pickerprobe.h"

#include "colorpicker/ringoverflow.h"
#include "colorpicker/svselector.h"

#include <QPainter>
#include <QPointer>
#include <QTest>

using namespace PickerProbe;

namespace {

constexpr QSize squareSize(260, 260);
constexpr QSize ringsSize(274, 274); // seven pixels more on each side
constexpr QPoint beside(7, 7);

/// A square in a column in a panel, which has room for all rings.
struct Panel
{
    explicit Panel(const QPoint &inColumn = {}, const QSize &columnSize = squareSize)
    {
        window.resize(320, 320);
        column.setGeometry(QRect(QPoint(20, 25), columnSize));
        square.setGeometry(QRect(inColumn, squareSize));
        window.show();
    }
    QList<RingOverflow *> overflows() const { return window.findChildren<RingOverflow *>(); }

    QWidget window;
    QWidget column{&window};
    SVSelector square{&column};
};

/// What is drawn of a widget anew.
class Drawings : public QObject
{
public:
    explicit Drawings(QWidget &watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++count;
            region += static_cast<const QPaintEvent *>(event)->region();
        }
        return false;
    }
    int count = 0;
    QRegion region;
};

} // namespace

/// The part of the square's ring that reaches over its edge.
class TestRingOverflow : public QObject
{
    Q_OBJECT

private slots:
    void liesWhereAllRingsHaveRoom_data();
    void liesWhereAllRingsHaveRoom();
    void windowWithoutRoomWillDo();
    void squareAloneHasNone();
    void thereIsOneHoweverOftenShown();
    void followsTheSquare();
    void staysBeneathWhatWasRaised();
    void ringIsOnePicture_data();
    void ringIsOnePicture();
    void ringMovesOutsideAsWell();
    void drawingComesToRest();
    void goesWithTheSquare();
};

void TestRingOverflow::liesWhereAllRingsHaveRoom_data()
{
    QTest::addColumn<QPoint>("inColumn");
    QTest::addColumn<QSize>("columnSize");
    QTest::addColumn<bool>("columnHasRoom");
    QTest::newRow("no room") << QPoint(0, 0) << squareSize << false;
    QTest::newRow("just enough") << QPoint(7, 7) << ringsSize << true;
    QTest::newRow("more than enough") << QPoint(9, 10) << QSize(290, 290) << true;
    QTest::newRow("too little on the left") << QPoint(6, 7) << QSize(290, 290) << false;
    QTest::newRow("too little above") << QPoint(7, 6) << QSize(290, 290) << false;
    QTest::newRow("too little on the right") << QPoint(7, 7) << QSize(273, 290) << false;
    QTest::newRow("too little below") << QPoint(7, 7) << QSize(290, 273) << false;
}

void TestRingOverflow::liesWhereAllRingsHaveRoom()
{
    QFETCH(QPoint, inColumn);
    QFETCH(QSize, columnSize);
    QFETCH(bool, columnHasRoom);
    Panel panel(inColumn, columnSize);
    QCOMPARE(panel.overflows().size(), 1);
    const RingOverflow &overflow = *panel.overflows().first();
    QCOMPARE(overflow.parentWidget(), columnHasRoom ? &panel.column : &panel.window);
    const QPoint origin = columnHasRoom ? QPoint() : QPoint(20, 25);
    QCOMPARE(overflow.geometry(), QRect(origin + inColumn - beside, ringsSize));
    QVERIFY(overflow.isVisible());
}

void TestRingOverflow::windowWithoutRoomWillDo()
{
    QWidget window;
    window.resize(squareSize);
    const SVSelector square(&window);
    window.show();
    QCOMPARE(window.findChildren<RingOverflow *>().size(), 1);
}

void TestRingOverflow::squareAloneHasNone()
{
    SVSelector square;
    square.resize(squareSize);
    square.show();
    QVERIFY(QTest::qWaitForWindowExposed(&square));
    QVERIFY(square.findChildren<RingOverflow *>().isEmpty());
    QCOMPARE(square.grab().size(), squareSize);
}

void TestRingOverflow::thereIsOneHoweverOftenShown()
{
    Panel panel;
    panel.square.hide();
    panel.square.show();
    panel.window.hide();
    panel.window.show();
    QCOMPARE(panel.overflows().size(), 1);
}

void TestRingOverflow::followsTheSquare()
{
    Panel panel;
    QWidget cover(&panel.window);
    cover.show();
    const RingOverflow &overflow = *panel.overflows().first();
    panel.column.move(30, 31);
    QCOMPARE(overflow.geometry(), QRect(QPoint(23, 24), ringsSize));
    QVERIFY(panel.window.children().last() == panel.overflows().first()); // on top
    panel.square.move(3, 4);
    QCOMPARE(overflow.geometry(), QRect(QPoint(26, 28), ringsSize));
    panel.square.resize(200, 210);
    QCOMPARE(overflow.geometry(), QRect(26, 28, 214, 224));
}

void TestRingOverflow::staysBeneathWhatWasRaised()
{
    Panel panel;
    QWidget cover(&panel.window);
    cover.show();
    cover.raise();
    QEvent event(QEvent::Enter);
    QApplication::sendEvent(&panel.square, &event);
    QVERIFY(panel.window.children().last() == &cover);
}

void TestRingOverflow::ringIsOnePicture_data()
{
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("value");
    QTest::addColumn<QPoint>("middle"); // in the square
    QTest::newRow("a pure colour") << 255 << 255 << QPoint(257, 2);
    QTest::newRow("white") << 0 << 255 << QPoint(2, 2);
    QTest::newRow("black") << 0 << 0 << QPoint(2, 257);
    QTest::newRow("black of a hue") << 255 << 0 << QPoint(257, 257);
    QTest::newRow("at an edge") << 255 << 100 << QPoint(257, 157);
    QTest::newRow("amid the square") << 100 << 100 << QPoint(102, 157);
}

/// Inside the square's widget as the widget draws it, outside as if that had no edge.
void TestRingOverflow::ringIsOnePicture()
{
    QFETCH(int, saturation);
    QFETCH(int, value);
    QFETCH(QPoint, middle);
    Panel panel;
    QVERIFY(QTest::qWaitForWindowExposed(&panel.window));
    panel.square.setSaturationValue(saturation, value);
    panel.window.grab(); // which tells the overflow where the ring is
    const QImage image = panel.window.grab().toImage().convertToFormat(QImage::Format_RGB32);

    QImage expected(image.size(), QImage::Format_RGB32);
    expected.fill(image.pixel(0, 0));
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(20, 25);
    painter.setPen(QPen(QColor(0xdd, 0xdd, 0xdd), 2));
    painter.setBrush(QColor(0x33, 0x33, 0x33));
    painter.drawEllipse(middle, 5, 5);
    painter.drawPixmap(0, 0, panel.square.grab());
    painter.end();
    QCOMPARE(image, expected);
}

void TestRingOverflow::ringMovesOutsideAsWell()
{
    Panel panel;
    QVERIFY(QTest::qWaitForWindowExposed(&panel.window));
    panel.square.setSaturationValue(100, 100);
    const QRect whole(QPoint(), ringsSize);
    const Drawings first(*panel.overflows().first());
    QTRY_VERIFY(first.region.contains(whole.topLeft()));
    const Drawings drawings(*panel.overflows().first());
    panel.square.setSaturationValue(255, 255);
    QTRY_VERIFY(drawings.region.contains(whole.topLeft()));
    QVERIFY(drawings.region.contains(whole.bottomRight()));
}

/// Else the square and what lies over it would keep each other busy.
void TestRingOverflow::drawingComesToRest()
{
    Panel panel;
    QVERIFY(QTest::qWaitForWindowExposed(&panel.window));
    const Drawings drawings(*panel.overflows().first());
    panel.square.setSaturationValue(100, 100);
    QTRY_VERIFY(drawings.count > 0);
    const auto isAtRest = [&drawings] {
        const int before = drawings.count;
        QTest::qWait(50);
        return drawings.count == before;
    };
    QTRY_VERIFY(isAtRest());
}

void TestRingOverflow::goesWithTheSquare()
{
    QWidget window;
    window.resize(320, 320);
    auto *const square = new SVSelector(&window);
    square->setGeometry(QRect(QPoint(20, 20), squareSize));
    window.show();
    const QPointer<RingOverflow> overflow = window.findChild<RingOverflow *>();
    QVERIFY(overflow);
    delete square;
    QVERIFY(overflow && overflow->isHidden());
    QTRY_VERIFY(overflow.isNull());
}

QTEST_MAIN(TestRingOverflow)
#include "tst_ringoverflow.moc"
