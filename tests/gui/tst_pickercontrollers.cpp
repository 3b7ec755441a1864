#include "colorpicker/colorprocessor.h"
#include "colorpicker/hselector.h"
#include "colorpicker/maincontroller.h"
#include "colorpicker/sliderscontroller.h"
#include "colorpicker/svselector.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr std::array channels{"Hue",  "Saturation", "Value",   "Red",    "Green",
                              "Blue", "Cyan",       "Magenta", "Yellow", "Black"};
constexpr std::size_t guardedChannels = 3;

QStringList ownMethods(const QMetaObject &meta)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        methods.append(QLatin1String(isSignal ? "signal " : "slot ")
                       + QString::fromLatin1(method.methodSignature()));
    }
    return methods;
}

/// A window that is a text and a memory.
class FieldOwner final : public RgbFieldOwner
{
public:
    QString rgbText() const override { return text; }
    void setRgbText(const QString &newText) override
    {
        text = newText;
        calls.append(QStringLiteral("set ") + newText);
    }
    void updateColorRGB(const QString &RGB) override
    {
        calls.append(QStringLiteral("update ") + RGB);
        if (announcer) {
            // As a slider that follows the new colour would.
            emit announcer->RGBChanged(QColor(1, 2, 3));
        }
    }

    QString text;
    QStringList calls;
    SlidersController *announcer = nullptr;
};

} // namespace

class TestPickerControllers : public QObject
{
    Q_OBJECT

private slots:
    void sliderMethods();
    void pureColors_data();
    void pureColors();
    void channelColourPassesUnchanged();
    void selectorSwallowsOneMovement();
    void mainMethods();
    void mainChangesOneChannel_data();
    void mainChangesOneChannel();
    void mainSilencesAttachedSliders();

private:
    static bool invoke(SlidersController &sliders, const QString &slot, int value)
    {
        return QMetaObject::invokeMethod(&sliders, qPrintable(slot), Q_ARG(int, value));
    }
    static bool invoke(SlidersController &sliders, const QString &slot, const QColor &colour)
    {
        return QMetaObject::invokeMethod(&sliders, qPrintable(slot), Q_ARG(QColor, colour));
    }
    static QSignalSpy colourSpy(SlidersController &sliders, const char *channel)
    {
        const QByteArray signal = QByteArray(channel).toLower() + "Changed(QColor)";
        return QSignalSpy(&sliders, (QByteArray::number(QSIGNAL_CODE) + signal).constData());
    }
};

void TestPickerControllers::sliderMethods()
{
    QStringList expected{QStringLiteral("signal RGBChanged(QColor)"),
                         QStringLiteral("signal CMYKChanged(QColor)")};
    for (const char *channel : channels) {
        const QString name = QString::fromLatin1(channel).toLower();
        expected.append(QStringLiteral("signal %1Changed(int)").arg(name));
        expected.append(QStringLiteral("signal %1Changed(QColor)").arg(name));
    }
    for (const char *channel : channels) {
        const QString name = QString::fromLatin1(channel);
        expected.append(QStringLiteral("slot change%1(int)").arg(name));
        expected.append(QStringLiteral("slot change%1(QColor)").arg(name));
        expected.append(QStringLiteral("slot change%1FromSelector(QColor)").arg(name));
    }
    QCOMPARE(expected.size(), 52);
    QCOMPARE(ownMethods(SlidersController::staticMetaObject), expected);
}

void TestPickerControllers::pureColors_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<int>("value");
    QTest::addColumn<QColor>("colour");
    const auto row = [](const char *channel, int value, const QColor &colour) {
        QTest::addRow("%s %d", channel, value) << QString::fromLatin1(channel) << value << colour;
    };
    row("Hue", 200, QColor::fromHsv(200, 0, 0));
    row("Hue", 360, QColor::fromHsv(0, 0, 0));
    row("Saturation", 77, QColor::fromHsv(0, 77, 0));
    row("Value", 255, QColor::fromHsv(0, 0, 255));
    row("Red", 10, QColor::fromRgb(10, 0, 0));
    row("Green", 20, QColor::fromRgb(0, 20, 0));
    row("Blue", 30, QColor::fromRgb(0, 0, 30));
    row("Cyan", 40, QColor::fromCmyk(40, 0, 0, 0));
    row("Magenta", 50, QColor::fromCmyk(0, 50, 0, 0));
    row("Yellow", 60, QColor::fromCmyk(0, 0, 60, 0));
    row("Black", 70, QColor::fromCmyk(0, 0, 0, 70));
}

void TestPickerControllers::pureColors()
{
    QFETCH(QString, channel);
    QFETCH(int, value);
    QFETCH(QColor, colour);
    SlidersController sliders;
    QSignalSpy spy = colourSpy(sliders, channel.toLatin1().constData());
    QVERIFY(invoke(sliders, QStringLiteral("change") + channel, value));
    QCOMPARE(spy.size(), 1);
    const auto announced = spy.first().first().value<QColor>();
    QCOMPARE(announced, colour); // compares the colour model as well
    QCOMPARE(announced.alpha(), 255);
    // The guard is still set.
    QVERIFY(invoke(sliders, QStringLiteral("change") + channel, value));
    QCOMPARE(spy.size(), 2);
}

void TestPickerControllers::channelColourPassesUnchanged()
{
    const QColor colour = QColor::fromHsv(12, 34, 56, 78);
    for (const char *channel : channels) {
        SlidersController sliders;
        QSignalSpy spy = colourSpy(sliders, channel);
        QVERIFY(invoke(sliders, QStringLiteral("change") + QLatin1String(channel), colour));
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().first().value<QColor>(), colour);
    }
}

void TestPickerControllers::selectorSwallowsOneMovement()
{
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const QString slot = QStringLiteral("change") + QLatin1String(channels.at(i));
        SlidersController sliders;
        QSignalSpy spy = colourSpy(sliders, channels.at(i));
        QVERIFY(invoke(sliders, slot + QLatin1String("FromSelector"), QColor(Qt::red)));
        QVERIFY(invoke(sliders, slot + QLatin1String("FromSelector"), QColor(Qt::blue)));
        QCOMPARE(spy.size(), 0);
        QVERIFY(invoke(sliders, slot, 5));
        // Red and the channels after it take the colour and have nothing to swallow.
        const int announced = i < guardedChannels ? 0 : 1;
        QCOMPARE(spy.size(), announced);
        QVERIFY(invoke(sliders, slot, 6));
        QCOMPARE(spy.size(), announced + 1);
        // A guard belongs to one channel.
        QVERIFY(invoke(sliders, slot + QLatin1String("FromSelector"), QColor(Qt::red)));
        const char *const other = channels.at((i + 1) % channels.size());
        QSignalSpy otherSpy = colourSpy(sliders, other);
        QVERIFY(invoke(sliders, QStringLiteral("change") + QLatin1String(other), 7));
        QCOMPARE(otherSpy.size(), 1);
    }
}

void TestPickerControllers::mainMethods()
{
    QStringList expected;
    for (const char *channel : channels) {
        expected.append(
            QStringLiteral("signal %1Changed(QColor)").arg(QString::fromLatin1(channel).toLower()));
    }
    expected.append({QStringLiteral("slot changeRed(QColor)"),
                     QStringLiteral("slot changeGreen(QColor)"),
                     QStringLiteral("slot changeBlue(QColor)")});
    QCOMPARE(ownMethods(MainController::staticMetaObject), expected);
}

void TestPickerControllers::mainChangesOneChannel_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("red") << QByteArray("changeRed") << "1 2 3"
                         << "10 2 3";
    QTest::newRow("green") << QByteArray("changeGreen") << "1 2 3"
                           << "1 20 3";
    QTest::newRow("blue") << QByteArray("changeBlue") << "1 2 3"
                          << "1 2 30";
    QTest::newRow("empty field") << QByteArray("changeGreen") << ""
                                 << "0 20 0";
}

void TestPickerControllers::mainChangesOneChannel()
{
    QFETCH(QByteArray, slot);
    QFETCH(QString, before);
    QFETCH(QString, after);
    HSelector strip;
    SVSelector square;
    ColorProcessor processor(&strip, &square);
    FieldOwner owner;
    owner.text = before;
    MainController controller(&strip, &square, &processor, &owner);
    QCOMPARE(controller.hueSelector(), &strip);
    QCOMPARE(controller.saturationValueSelector(), &square);
    QVERIFY(controller.slidersController() == nullptr);
    QVERIFY(QMetaObject::invokeMethod(&controller, slot.constData(),
                                      Q_ARG(QColor, QColor(10, 20, 30))));
    QCOMPARE(owner.calls,
             QStringList({QStringLiteral("set ") + after, QStringLiteral("update ") + after}));
}

void TestPickerControllers::mainSilencesAttachedSliders()
{
    HSelector strip;
    SVSelector square;
    ColorProcessor processor(&strip, &square);
    FieldOwner owner;
    owner.text = QStringLiteral("0 0 0");
    SlidersController sliders;
    owner.announcer = &sliders;
    MainController controller(&strip, &square, &processor, &owner);
    controller.setSlidersController(&sliders);
    connect(&sliders, SIGNAL(RGBChanged(QColor)), &controller, SLOT(changeRed(QColor)));

    controller.changeGreen(QColor(0, 9, 0));
    // The announcement in the middle reached nobody, so green was not followed by red.
    QCOMPARE(owner.calls,
             QStringList({QStringLiteral("set 0 9 0"), QStringLiteral("update 0 9 0")}));
    const QMetaObject &meta = SlidersController::staticMetaObject;
    const int signal = meta.indexOfSignal("RGBChanged(QColor)");
    for (const char *slot : {"changeRedFromSelector(QColor)", "changeGreenFromSelector(QColor)",
                             "changeBlueFromSelector(QColor)"}) {
        const int method = meta.indexOfMethod(slot);
        QVERIFY2(QMetaObject::disconnectOne(&sliders, signal, &sliders, method), slot);
        QVERIFY2(!QMetaObject::disconnectOne(&sliders, signal, &sliders, method), slot);
    }
    QVERIFY(!sliders.disconnect(SIGNAL(RGBChanged(QColor)))); // nobody else was joined again
}

QTEST_MAIN(TestPickerControllers)
#include "tst_pickercontrollers.moc"
