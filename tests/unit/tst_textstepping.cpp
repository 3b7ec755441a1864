#include "colorpicker/textstepping.h"

#include <QTest>

#include <array>

Q_DECLARE_METATYPE(ColorModel)

class TestTextStepping : public QObject
{
    Q_OBJECT

private slots:
    void hexComponentAt_data();
    void hexComponentAt();
    void decimalComponentAt_data();
    void decimalComponentAt();
    void stepText_data();
    void stepText();
    void stepJoinsWithTheSeparator();
    void componentSpan_data();
    void componentSpan();
};

void TestTextStepping::hexComponentAt_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("expected");

    constexpr std::array<int, 4> ofThree{0, 0, 1, 2};
    constexpr std::array<int, 7> ofSix{0, 0, 0, 1, 1, 2, 2};
    for (std::size_t i = 0; i < ofThree.size(); ++i) {
        QTest::addRow("3 digits, at %d", int(i)) << 3 << int(i) << ofThree[i];
    }
    for (std::size_t i = 0; i < ofSix.size(); ++i) {
        QTest::addRow("6 digits, at %d", int(i)) << 6 << int(i) << ofSix[i];
    }
    QTest::newRow("behind 3 digits") << 3 << 4 << 2;
    QTest::newRow("far behind 3 digits") << 3 << 9 << 2;
    QTest::newRow("behind 6 digits") << 6 << 7 << 2;
    QTest::newRow("far behind 6 digits") << 6 << 20 << 2;
}

void TestTextStepping::hexComponentAt()
{
    QFETCH(int, length);
    QFETCH(int, position);
    QTEST(TextStepping::hexComponentAt(position, length), "expected");
}

void TestTextStepping::decimalComponentAt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("expected");

    constexpr std::array<int, 9> inText{0, 0, 0, 1, 1, 1, 2, 2, 2};
    for (std::size_t i = 0; i < inText.size(); ++i) {
        QTest::addRow("12 34 56, at %d", int(i)) << "12 34 56"
                                                 << " " << int(i) << inText[i];
    }
    QTest::newRow("four components") << "1 2 3 4"
                                     << " " << 7 << 3;
    QTest::newRow("two-character separator") << "1, 2, 3"
                                             << ", " << 3 << 1;
    QTest::newRow("at its start") << "1, 2, 3"
                                  << ", " << 1 << 0;
    QTest::newRow("in its middle") << "1, 2, 3"
                                   << ", " << 2 << 1;
    QTest::newRow("at the very start") << " 1 2"
                                       << " " << 1 << 1;
    QTest::newRow("separators do not overlap") << "1---2"
                                               << "--" << 5 << 1;
    QTest::newRow("no separator") << "123"
                                  << "" << 2 << 0;
}

void TestTextStepping::decimalComponentAt()
{
    QFETCH(QString, text);
    QFETCH(QString, separator);
    QFETCH(int, position);
    QTEST(TextStepping::decimalComponentAt(text, position, separator), "expected");
}

void TestTextStepping::stepText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ColorModel>("model");
    QTest::addColumn<int>("component");
    QTest::addColumn<int>("delta");
    QTest::addColumn<QString>("expected"); // empty: refused
    QTest::addColumn<int>("cursor");

    constexpr auto hsv = ColorModel::Hsv;
    constexpr auto rgb = ColorModel::Rgb;
    constexpr auto cmyk = ColorModel::Cmyk;
    constexpr auto hex = ColorModel::Hex;
    QTest::newRow("hue beyond 255") << "255 0 0" << hsv << 0 << 1 << "256 0 0" << 3;
    QTest::newRow("hue down") << "255 0 0" << hsv << 0 << -1 << "254 0 0" << 3;
    QTest::newRow("hue to 359") << "358 0 0" << hsv << 0 << 1 << "359 0 0" << 3;
    QTest::newRow("hue stops at 359") << "359 0 0" << hsv << 0 << 1 << "" << 0;
    QTest::newRow("hue stops at 0") << "0 0 0" << hsv << 0 << -1 << "" << 0;
    QTest::newRow("saturation stops at 255") << "0 255 0" << hsv << 1 << 1 << "" << 0;
    QTest::newRow("value stops at 255") << "0 0 255" << hsv << 2 << 1 << "" << 0;
    QTest::newRow("valid, but its result is not") << "10 300 0" << hsv << 1 << -1 << "" << 0;
    QTest::newRow("longer") << "99 0 0" << rgb << 0 << 1 << "100 0 0" << 3;
    QTest::newRow("shorter") << "100 0 0" << rgb << 0 << -1 << "99 0 0" << 2;
    QTest::newRow("middle longer") << "1 9 2" << rgb << 1 << 1 << "1 10 2" << 4;
    QTest::newRow("middle shorter") << "1 10 2" << rgb << 1 << -1 << "1 9 2" << 3;
    QTest::newRow("last longer") << "1 2 99" << rgb << 2 << 1 << "1 2 100" << 7;
    QTest::newRow("last shorter") << "1 2 100" << rgb << 2 << -1 << "1 2 99" << 6;
    QTest::newRow("red stops at 255") << "255 0 0" << rgb << 0 << 1 << "" << 0;
    QTest::newRow("leading zeros go") << "007 0 0" << rgb << 0 << 1 << "8 0 0" << 1;
    QTest::newRow("black") << "1 2 3 4" << cmyk << 3 << 1 << "1 2 3 5" << 7;
    QTest::newRow("too many parts") << "1 2 3 4" << rgb << 0 << 1 << "" << 0;
    QTest::newRow("too high") << "256 0 0" << rgb << 0 << -1 << "" << 0;
    QTest::newRow("no such part") << "1 2 3" << rgb << 3 << 1 << "" << 0;
    QTest::newRow("HEX text under HSV") << "ff0000" << hsv << 0 << 1 << "" << 0;
    QTest::newRow("empty") << "" << hsv << 0 << 1 << "" << 0;
    QTest::newRow("short HEX up") << "0e0" << hex << 1 << 1 << "0f0" << 5;
    QTest::newRow("short HEX at its limit") << "0f0" << hex << 1 << 1 << "" << 0;
    QTest::newRow("short HEX at 0") << "0f0" << hex << 0 << -1 << "" << 0;
    QTest::newRow("long HEX up") << "0900ff" << hex << 0 << 1 << "0a00ff" << 5;
    QTest::newRow("long HEX down") << "001000" << hex << 1 << -1 << "000f00" << 5;
    QTest::newRow("long HEX at its limit") << "0000ff" << hex << 2 << 1 << "" << 0;
    QTest::newRow("long HEX at 0") << "0000ff" << hex << 1 << -1 << "" << 0;
    QTest::newRow("only the stepped piece is rewritten")
        << "AABBCC" << hex << 1 << 1 << "AAbcCC" << 5;
    QTest::newRow("invalid HEX") << "00gg00" << hex << 0 << 1 << "" << 0;
    QTest::newRow("five digits") << "00000" << hex << 0 << 1 << "" << 0;
}

void TestTextStepping::stepText()
{
    QFETCH(QString, text);
    QFETCH(ColorModel, model);
    QFETCH(int, component);
    QFETCH(int, delta);
    QFETCH(QString, expected);
    const bool isHex = model == ColorModel::Hex;
    const QString separator = isHex ? QString() : QStringLiteral(" ");
    const auto stepped = TextStepping::step(text, component, delta, 5, {model, separator});
    QCOMPARE(stepped.has_value(), !expected.isEmpty());
    if (stepped) {
        QCOMPARE(stepped->text, expected);
        QTEST(stepped->cursor, "cursor");
    }
}

/// Also a HEX text, whose pieces no separator has kept apart.
void TestTextStepping::stepJoinsWithTheSeparator()
{
    const auto stepped = TextStepping::step(QStringLiteral("0a0b0c"), 2, 1, 3,
                                            {ColorModel::Hex, QStringLiteral("-")});
    QVERIFY(stepped.has_value());
    QCOMPARE(stepped->text, QStringLiteral("0a-0b-0d"));
    QCOMPARE(stepped->cursor, 3);
}

void TestTextStepping::componentSpan_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ColorModel>("model");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");

    QTest::newRow("first") << "12 3 456" << ColorModel::Rgb << 0 << 0 << 2;
    QTest::newRow("second") << "12 3 456" << ColorModel::Rgb << 1 << 3 << 1;
    QTest::newRow("third") << "12 3 456" << ColorModel::Rgb << 2 << 5 << 3;
    QTest::newRow("after the last") << "12 3 456" << ColorModel::Rgb << 3 << 0 << 2;
    QTest::newRow("before the first") << "12 3 456" << ColorModel::Rgb << -1 << 5 << 3;
    QTest::newRow("before the first of four") << "1 2 3 44" << ColorModel::Cmyk << -1 << 6 << 2;
    QTest::newRow("short HEX") << "abc" << ColorModel::Hex << 1 << 1 << 1;
    QTest::newRow("long HEX") << "aabbcc" << ColorModel::Hex << 2 << 4 << 2;
    QTest::newRow("HEX after the last") << "aabbcc" << ColorModel::Hex << 3 << 0 << 2;
    QTest::newRow("HEX before the first") << "abc" << ColorModel::Hex << -1 << 2 << 1;
}

void TestTextStepping::componentSpan()
{
    QFETCH(QString, text);
    QFETCH(ColorModel, model);
    QFETCH(int, index);
    const auto span = TextStepping::componentSpan(text, index, {model, QStringLiteral(" ")});
    QTEST(span.start, "start");
    QTEST(span.length, "length");
}

QTEST_GUILESS_MAIN(TestTextStepping)
#include "tst_textstepping.moc"
