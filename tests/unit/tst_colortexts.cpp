#include "colorpicker/colortexts.h"
#include "colorpicker/services.h"
#include "colorpicker/validator.h"
#include "colorpicker/vars.h"

#include <QTest>

Q_DECLARE_METATYPE(ColorModel)

namespace {

constexpr auto noModel = static_cast<ColorModel>(4);

} // namespace

class TestColorTexts : public QObject
{
    Q_OBJECT

private slots:
    void utilityClassesAreBareObjects();
    void checkFormat_data();
    void checkFormat();
    void isInRange_data();
    void isInRange();
    void validators_data();
    void validators();
    void normalize_data();
    void normalize();
    void clampColor_data();
    void clampColor();
    void rgbTextFromColor_data();
    void rgbTextFromColor();
    void colorFromRgbText_data();
    void colorFromRgbText();
    void hexFromColor_data();
    void hexFromColor();
    void hexFromPastedText_data();
    void hexFromPastedText();
};

void TestColorTexts::utilityClassesAreBareObjects()
{
    for (const QMetaObject *meta :
         {&Services::staticMetaObject, &Validator::staticMetaObject, &Vars::staticMetaObject}) {
        QCOMPARE(meta->superClass(), &QObject::staticMetaObject);
        QCOMPARE(meta->methodCount(), meta->methodOffset());
        QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    }
    QObject owner;
    QCOMPARE(Vars(&owner).parent(), &owner);
    QCOMPARE(Services(&owner).parent(), &owner);
    QCOMPARE(Validator(&owner).parent(), &owner);
}

void TestColorTexts::checkFormat_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ColorModel>("model");
    QTest::addColumn<bool>("expected");

    QTest::newRow("red") << "255 0 0" << ColorModel::Rgb << true;
    QTest::newRow("HSV") << "359 255 255" << ColorModel::Hsv << true;
    QTest::newRow("CMYK") << "1 2 3 4" << ColorModel::Cmyk << true;
    QTest::newRow("limits are not its business") << "999 -5 0" << ColorModel::Rgb << true;
    QTest::newRow("signs and zeros") << "+1 007 -0" << ColorModel::Rgb << true;
    QTest::newRow("two blanks") << "255  0 0" << ColorModel::Rgb << false;
    QTest::newRow("leading blank") << " 255 0 0" << ColorModel::Rgb << false;
    QTest::newRow("trailing blank") << "255 0 0 " << ColorModel::Rgb << false;
    QTest::newRow("empty second part") << "255  0" << ColorModel::Rgb << false;
    QTest::newRow("two parts") << "255 0" << ColorModel::Rgb << false;
    QTest::newRow("four parts") << "255 0 0 0" << ColorModel::Rgb << false;
    QTest::newRow("three parts for CMYK") << "1 2 3" << ColorModel::Cmyk << false;
    QTest::newRow("commas") << "255,0,0" << ColorModel::Rgb << false;
    QTest::newRow("tab") << "255\t0 0" << ColorModel::Rgb << false;
    QTest::newRow("letter") << "255 a 0" << ColorModel::Rgb << false;
    QTest::newRow("hexadecimal digit") << "ff 0 0" << ColorModel::Rgb << false;
    QTest::newRow("fraction") << "1.5 0 0" << ColorModel::Rgb << false;
    QTest::newRow("too large for an integer") << "99999999999 0 0" << ColorModel::Rgb << false;
    QTest::newRow("empty") << "" << ColorModel::Rgb << false;
    QTest::newRow("HEX never") << "ff0000" << ColorModel::Hex << false;
    QTest::newRow("HEX never, with blanks") << "1 2 3" << ColorModel::Hex << false;
    QTest::newRow("HEX never, one number") << "123456" << ColorModel::Hex << false;
    QTest::newRow("empty HEX") << "" << ColorModel::Hex << false;
    QTest::newRow("unknown model") << "1 2 3" << noModel << false;
    QTest::newRow("unknown model, one number") << "1" << noModel << false;
}

void TestColorTexts::checkFormat()
{
    QFETCH(QString, text);
    QFETCH(ColorModel, model);
    QTEST(Services::checkFormat(text, model), "expected");
}

void TestColorTexts::isInRange_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<ColorModel>("model");
    QTest::addColumn<int>("component");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("expected");

    QTest::newRow("hue 0") << 0 << ColorModel::Hsv << 0 << 0 << true;
    QTest::newRow("hue 359") << 359 << ColorModel::Hsv << 0 << 0 << true;
    QTest::newRow("hue 360") << 360 << ColorModel::Hsv << 0 << 0 << false;
    QTest::newRow("hue -1") << -1 << ColorModel::Hsv << 0 << 0 << false;
    QTest::newRow("saturation 255") << 255 << ColorModel::Hsv << 1 << 0 << true;
    QTest::newRow("saturation 256") << 256 << ColorModel::Hsv << 1 << 0 << false;
    QTest::newRow("value 255") << 255 << ColorModel::Hsv << 2 << 0 << true;
    QTest::newRow("value 256") << 256 << ColorModel::Hsv << 2 << 0 << false;
    QTest::newRow("HSV component 3") << 0 << ColorModel::Hsv << 3 << 0 << false;
    QTest::newRow("HSV component -1") << 0 << ColorModel::Hsv << -1 << 0 << false;
    QTest::newRow("red 255") << 255 << ColorModel::Rgb << 0 << 0 << true;
    QTest::newRow("blue 256") << 256 << ColorModel::Rgb << 2 << 0 << false;
    QTest::newRow("RGB any component") << 255 << ColorModel::Rgb << 17 << 0 << true;
    QTest::newRow("RGB -1") << -1 << ColorModel::Rgb << 0 << 0 << false;
    QTest::newRow("cyan") << 255 << ColorModel::Cmyk << 0 << 0 << true;
    QTest::newRow("black") << 255 << ColorModel::Cmyk << 3 << 0 << true;
    QTest::newRow("black 256") << 256 << ColorModel::Cmyk << 3 << 0 << false;
    QTest::newRow("CMYK component 4") << 0 << ColorModel::Cmyk << 4 << 0 << false;
    QTest::newRow("CMYK component -1") << 0 << ColorModel::Cmyk << -1 << 0 << false;
    QTest::newRow("short HEX 15") << 15 << ColorModel::Hex << 2 << 3 << true;
    QTest::newRow("short HEX 16") << 16 << ColorModel::Hex << 0 << 3 << false;
    QTest::newRow("short HEX any component") << 15 << ColorModel::Hex << 9 << 3 << true;
    QTest::newRow("long HEX 255") << 255 << ColorModel::Hex << 2 << 6 << true;
    QTest::newRow("long HEX 256") << 256 << ColorModel::Hex << 0 << 6 << false;
    QTest::newRow("long HEX -1") << -1 << ColorModel::Hex << 0 << 6 << false;
    QTest::newRow("HEX length 0") << 0 << ColorModel::Hex << 0 << 0 << false;
    QTest::newRow("HEX length 4") << 0 << ColorModel::Hex << 0 << 4 << false;
    QTest::newRow("unknown model") << 0 << noModel << 0 << 3 << false;
}

void TestColorTexts::isInRange()
{
    QFETCH(int, value);
    QFETCH(ColorModel, model);
    QFETCH(int, component);
    QFETCH(int, length);
    QTEST(Validator::isInRange(static_cast<quint32>(value), model, component, length), "expected");
}

void TestColorTexts::validators_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<ColorModel>("model");
    QTest::addColumn<bool>("expected");

    QTest::newRow("red") << "255 0 0" << ColorModel::Rgb << true;
    QTest::newRow("white") << "255 255 255" << ColorModel::Rgb << true;
    QTest::newRow("red too high") << "256 0 0" << ColorModel::Rgb << false;
    QTest::newRow("green too high") << "0 256 0" << ColorModel::Rgb << false;
    QTest::newRow("blue too high") << "0 0 256" << ColorModel::Rgb << false;
    QTest::newRow("negative red") << "-1 0 0" << ColorModel::Rgb << false;
    QTest::newRow("negative blue") << "0 0 -1" << ColorModel::Rgb << false;
    QTest::newRow("not a number counts as 0") << "x 0 0" << ColorModel::Rgb << true;
    QTest::newRow("missing counts as 0") << "255 0" << ColorModel::Rgb << true;
    QTest::newRow("empty counts as 0") << "" << ColorModel::Rgb << true;
    QTest::newRow("fourth is not looked at") << "1 2 3 999" << ColorModel::Rgb << true;
    QTest::newRow("an empty part is one, too") << "1  2 999" << ColorModel::Rgb << true;
    QTest::newRow("CMYK") << "255 255 255 255" << ColorModel::Cmyk << true;
    QTest::newRow("fifth is not looked at") << "1 2 3 4 999" << ColorModel::Cmyk << true;
    QTest::newRow("cyan too high") << "256 0 0 0" << ColorModel::Cmyk << false;
    QTest::newRow("magenta too high") << "0 256 0 0" << ColorModel::Cmyk << false;
    QTest::newRow("yellow too high") << "0 0 256 0" << ColorModel::Cmyk << false;
    QTest::newRow("black too high") << "0 0 0 256" << ColorModel::Cmyk << false;
    QTest::newRow("negative black") << "0 0 0 -1" << ColorModel::Cmyk << false;
    QTest::newRow("HSV 359 in all three, on purpose") << "359 359 359" << ColorModel::Hsv << true;
    QTest::newRow("HSV 300 in the last two") << "10 300 300" << ColorModel::Hsv << true;
    QTest::newRow("fourth beside HSV") << "1 2 3 999" << ColorModel::Hsv << true;
    QTest::newRow("hue 360") << "360 0 0" << ColorModel::Hsv << false;
    QTest::newRow("saturation 360") << "0 360 0" << ColorModel::Hsv << false;
    QTest::newRow("value 360") << "0 0 360" << ColorModel::Hsv << false;
    QTest::newRow("hue -1") << "-1 0 0" << ColorModel::Hsv << false;
    QTest::newRow("short HEX") << "F0a" << ColorModel::Hex << true;
    QTest::newRow("long HEX") << "ff00aa" << ColorModel::Hex << true;
    QTest::newRow("upper HEX") << "FF00AA" << ColorModel::Hex << true;
    QTest::newRow("five digits") << "ff00a" << ColorModel::Hex << false;
    QTest::newRow("four digits") << "ff00" << ColorModel::Hex << false;
    QTest::newRow("two digits") << "ff" << ColorModel::Hex << false;
    QTest::newRow("seven digits") << "ff00aa0" << ColorModel::Hex << false;
    QTest::newRow("nine digits") << "00f00f00f" << ColorModel::Hex << false;
    QTest::newRow("hash before six") << "#ff00aa" << ColorModel::Hex << false;
    QTest::newRow("hash in six") << "#f00aa" << ColorModel::Hex << false;
    QTest::newRow("not digits") << "gg0000" << ColorModel::Hex << false;
    QTest::newRow("last not a digit") << "00000g" << ColorModel::Hex << false;
    QTest::newRow("short, not a digit") << "0g0" << ColorModel::Hex << false;
    QTest::newRow("negative pieces") << "-1-1-1" << ColorModel::Hex << false;
    QTest::newRow("empty HEX") << "" << ColorModel::Hex << false;
    QTest::newRow("unknown model") << "0 0 0" << noModel << false;
}

void TestColorTexts::validators()
{
    QFETCH(QString, text);
    QFETCH(ColorModel, model);
    QFETCH(bool, expected);
    QCOMPARE(Validator::validate(text, model), expected);
    switch (model) {
    case ColorModel::Hsv:
        QCOMPARE(Validator::isValidHsv(text), expected);
        break;
    case ColorModel::Rgb:
        QCOMPARE(Validator::isValidRgb(text), expected);
        break;
    case ColorModel::Cmyk:
        QCOMPARE(Validator::isValidCmyk(text), expected);
        break;
    case ColorModel::Hex:
        QCOMPARE(Validator::isValidHex(text), expected);
        break;
    }
}

void TestColorTexts::normalize_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("already normal") << "255 0 0"
                                    << "255 0 0";
    QTest::newRow("commas") << "255,0,0"
                            << "255 0 0";
    QTest::newRow("commas and blanks") << "  255 ,  0   0 "
                                       << "255 0 0";
    QTest::newRow("comma and blank") << "255, 0, 0"
                                     << "255 0 0";
    QTest::newRow("tabs and line ends") << "\t255\n0\t \t0\r\n"
                                        << "255 0 0";
    QTest::newRow("blanks only") << "   "
                                 << "";
    QTest::newRow("comma at an end stays a blank") << ",1,2"
                                                   << " 1 2";
    QTest::newRow("trimmed before the commas turn") << "1 2 , "
                                                    << "1 2 ";
    QTest::newRow("HEX") << " ff0000 "
                         << "ff0000";
    QTest::newRow("other signs stay") << "1;2"
                                      << "1;2";
}

void TestColorTexts::normalize()
{
    QFETCH(QString, text);
    QTEST(Services::normalize(text), "expected");
}

void TestColorTexts::clampColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("inside") << QColor(1, 2, 3) << QColor(1, 2, 3, 255);
    QTest::newRow("ends") << QColor(0, 255, 0) << QColor(0, 255, 0, 255);
    QTest::newRow("other ends") << QColor(255, 0, 255) << QColor(255, 0, 255, 255);
    QTest::newRow("alpha") << QColor(1, 2, 3, 4) << QColor(1, 2, 3, 255);
    QTest::newRow("HSV becomes RGB") << QColor::fromHsv(120, 255, 255) << QColor(0, 255, 0, 255);
    QTest::newRow("beyond the ends") << QColor::fromRgbF(1.5, -0.5, 0.0) << QColor(255, 0, 0, 255);
    QTest::newRow("invalid") << QColor() << QColor(0, 0, 0, 255);
}

void TestColorTexts::clampColor()
{
    QFETCH(QColor, color);
    Services::clampColor(color);
    QTEST(color, "expected");
}

void TestColorTexts::rgbTextFromColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("expected");

    QTest::newRow("red") << QColor(255, 0, 0) << "255 0 0";
    QTest::newRow("no zero-filling") << QColor(1, 22, 255) << "1 22 255";
    QTest::newRow("from HSV") << QColor::fromHsv(240, 255, 255) << "0 0 255";
    QTest::newRow("transparent") << QColor(1, 2, 3, 0) << "1 2 3";
    QTest::newRow("invalid") << QColor() << "0 0 0";
    // Such colours hold channels beyond the range.
    QTest::newRow("too bright") << QColor::fromRgbF(2.0, -1.0, 0.0) << "255 0 0";
}

void TestColorTexts::rgbTextFromColor()
{
    QFETCH(QColor, color);
    QTEST(ColorTexts::rgbTextFromColor(color), "expected");
}

void TestColorTexts::colorFromRgbText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("red") << "255 0 0" << QColor(255, 0, 0, 255);
    QTest::newRow("all in base 10") << "19 128 255" << QColor(19, 128, 255, 255);
    QTest::newRow("zero-filled") << "010 020 099" << QColor(10, 20, 99, 255);
    QTest::newRow("not a number is 0") << "1 x 3" << QColor(1, 0, 3, 255);
    QTest::newRow("missing is 0") << "7" << QColor(7, 0, 0, 255);
    QTest::newRow("fourth is dropped") << "1 2 3 4" << QColor(1, 2, 3, 255);
    QTest::newRow("empty part counts") << "1  3" << QColor(1, 0, 3, 255);
    QTest::newRow("out of range") << "256 0 0" << QColor();
}

void TestColorTexts::colorFromRgbText()
{
    QFETCH(QString, text);
    QFETCH(QColor, expected);
    if (!expected.isValid()) {
        QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    }
    QCOMPARE(ColorTexts::colorFromRgbText(text), expected);
}

void TestColorTexts::hexFromColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("expected");

    QTest::newRow("red") << QColor(255, 0, 0) << "ff0000";
    QTest::newRow("lower case, zero-filled") << QColor(1, 171, 205) << "01abcd";
    QTest::newRow("from HSV") << QColor::fromHsv(120, 255, 255) << "00ff00";
}

void TestColorTexts::hexFromColor()
{
    QFETCH(QColor, color);
    QTEST(ColorTexts::hexFromColor(color), "expected");
}

void TestColorTexts::hexFromPastedText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("plain") << "00ff7f"
                           << "00ff7f";
    QTest::newRow("all hashes go, case stays") << "##FF0000"
                                               << "FF0000";
    QTest::newRow("hash inside") << "FF#00#00"
                                 << "FF0000";
    QTest::newRow("short") << "#0A0"
                           << "0A0";
    QTest::newRow("five digits") << "#12345"
                                 << "";
    QTest::newRow("seven digits") << "1234567"
                                  << "";
    QTest::newRow("not digits") << "gg0000"
                                << "";
    QTest::newRow("decimal text") << "255 0 0"
                                  << "";
    QTest::newRow("a number with a blank behind it") << "ff000 "
                                                     << "ff000 ";
    QTest::newRow("hashes only") << "###"
                                 << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TestColorTexts::hexFromPastedText()
{
    QFETCH(QString, text);
    QTEST(ColorTexts::hexFromPastedText(text), "expected");
}

QTEST_GUILESS_MAIN(TestColorTexts)
#include "tst_colortexts.moc"
