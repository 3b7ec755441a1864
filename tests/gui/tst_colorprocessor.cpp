#include "colorpicker/colorprocessor.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>

class TestColorProcessor : public QObject
{
    Q_OBJECT

private slots:
    void processorTexts_data();
    void processorTexts();
    void processorOrder();
    void clipboard();
};

void TestColorProcessor::processorTexts_data()
{
    QTest::addColumn<bool>("hex");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result"); // HEX text of the square's colour; empty: refused
    QTest::addColumn<int>("hue");
    QTest::newRow("RGB") << false << "0 0 255"
                         << "0000ff" << 240;
    QTest::newRow("RGB grey") << false << "128 128 128"
                              << "808080" << -1;
    QTest::newRow("RGB two blanks") << false << "255  0 0"
                                    << "" << 0;
    QTest::newRow("RGB too high") << false << "256 0 0"
                                  << "" << 0;
    QTest::newRow("RGB negative") << false << "-1 0 0"
                                  << "" << 0;
    QTest::newRow("RGB two numbers") << false << "255 0"
                                     << "" << 0;
    QTest::newRow("RGB four numbers") << false << "255 0 0 0"
                                      << "" << 0;
    QTest::newRow("RGB empty") << false << ""
                               << "" << 0;
    QTest::newRow("HEX short") << true << "0A0"
                               << "00aa00" << 120;
    QTest::newRow("HEX long") << true << "00ff00"
                              << "00ff00" << 120;
    QTest::newRow("HEX with hash") << true << "#00ff00"
                                   << "" << 0;
    QTest::newRow("HEX five digits") << true << "00ff0"
                                     << "" << 0;
    QTest::newRow("HEX eight digits") << true << "ff00ff00"
                                      << "" << 0;
    QTest::newRow("HEX nine digits") << true << "00f00f00f"
                                     << "" << 0;
    QTest::newRow("HEX signs pass as numbers, name no colour") << true << "+f+f+f"
                                                               << "" << 0;
    QTest::newRow("HEX empty") << true << ""
                               << "" << 0;
}

void TestColorProcessor::processorTexts()
{
    QFETCH(bool, hex);
    QFETCH(QString, text);
    QFETCH(QString, result);
    HSelector strip;
    SVSelector square;
    ColorProcessor processor(&strip, &square);
    connect(&strip, SIGNAL(hueChanged(QColor)), &square, SLOT(changeHue(QColor)));
    const QSignalSpy finished(&processor, SIGNAL(updateFinished()));
    const QSignalSpy changed(&square, SIGNAL(colorChanged(QColor)));
    const QColor set = hex ? processor.setHex(text) : processor.setRGB(text);
    const bool taken = !result.isEmpty();
    QCOMPARE(set, taken ? QColor(QLatin1Char('#') + result) : QColor());
    QCOMPARE(finished.count(), taken ? 1 : 0);
    QCOMPARE(changed.isEmpty(), !taken);
    QTEST(strip.hue(), "hue");
    QCOMPARE(ColorProcessor::hexFromColor(square.color()),
             taken ? result : QStringLiteral("ff0000"));
}

void TestColorProcessor::processorOrder()
{
    HSelector strip;
    SVSelector square;
    ColorProcessor processor(&strip, &square);
    QStringList order;
    connect(&strip, &HSelector::hueChanged, this, [&] { order.append(QStringLiteral("hue")); });
    connect(&square, &SVSelector::colorChanged, this,
            [&] { order.append(QStringLiteral("square")); });
    connect(&processor, &ColorProcessor::updateFinished, this,
            [&] { order.append(QStringLiteral("finished")); });
    processor.setColor(QColor(0, 0, 100));
    processor.setColor(QColor(0, 0, 100)); // same hue: only the square speaks again
    QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("hue square finished square finished"));
    QCOMPARE(square.saturation(), 255);
    QCOMPARE(square.value(), 100);
    QCOMPARE(ColorProcessor::rgbTextFromColor(QColor(0, 0, 100)), QStringLiteral("0 0 100"));
    QCOMPARE(ColorProcessor::colorFromRgbText(QStringLiteral("0 0 100")), QColor(0, 0, 100));
}

void TestColorProcessor::clipboard()
{
    HSelector strip;
    SVSelector square;
    ColorProcessor processor(&strip, &square);
    processor.copyToClipboard(QStringLiteral("255, 0, 0"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("255, 0, 0"));
    QCOMPARE(processor.hexFromClipboard(), QString());
    QApplication::clipboard()->setText(QStringLiteral("##FF0000"));
    QCOMPARE(processor.hexFromClipboard(), QStringLiteral("FF0000"));
    QApplication::clipboard()->clear();
    QCOMPARE(processor.hexFromClipboard(), QString());
}

QTEST_MAIN(TestColorProcessor)
#include "tst_colorprocessor.moc"
