#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"

#include <QAccessible>
#include <QTest>
#include <QTranslator>

namespace {

/// Knows the texts of the window's context alone.
class ContextBrackets final : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char * /*comment*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "MainWindow") == 0
                   ? QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']')
                   : QString();
    }
    bool isEmpty() const override { return false; }
};

QAccessibleInterface &accessible(QWidget &widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

} // namespace

/// What screen readers may do with the picker's widgets, beside what they do in the window.
class TestPickerAccessible : public QObject
{
    Q_OBJECT

private slots:
    void hueIsChosenWithinItsRange_data();
    void hueIsChosenWithinItsRange();
    void eachTakesTheFocus();
    void sampleIsPressedFirst();
    void squareSpeaksTheWindowsLanguage();
};

void TestPickerAccessible::hueIsChosenWithinItsRange_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("hue");
    QTest::newRow("least") << 0 << 0;
    QTest::newRow("a degree") << 1 << 1;
    QTest::newRow("most") << 360 << 360;
    QTest::newRow("less than the least") << -20 << 0;
    QTest::newRow("more than the most") << 500 << 360;
}

void TestPickerAccessible::hueIsChosenWithinItsRange()
{
    QFETCH(int, asked);
    HSelector strip;
    accessible(strip).valueInterface()->setCurrentValue(asked);
    QTEST(strip.hue(), "hue");
    QTEST(accessible(strip).valueInterface()->currentValue().toInt(), "hue");
}

void TestPickerAccessible::eachTakesTheFocus()
{
    HSelector strip;
    SVSelector square;
    ColorSample sample;
    for (QWidget *const widget : std::initializer_list<QWidget *>{&strip, &square, &sample}) {
        QAccessibleActionInterface *const actions = accessible(*widget).actionInterface();
        QVERIFY(actions != nullptr);
        QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    }
    QVERIFY(accessible(square).valueInterface() == nullptr);
    QVERIFY(accessible(sample).valueInterface() == nullptr);
}

void TestPickerAccessible::sampleIsPressedFirst()
{
    ColorSample sample;
    QAccessibleActionInterface *const actions = accessible(sample).actionInterface();
    QCOMPARE(actions->actionNames().first(), QAccessibleActionInterface::pressAction());
}

void TestPickerAccessible::squareSpeaksTheWindowsLanguage()
{
    SVSelector square;
    square.setSaturationValue(12, 34);
    ContextBrackets language;
    QCoreApplication::installTranslator(&language);
    const QString text = accessible(square).text(QAccessible::Description);
    QCoreApplication::removeTranslator(&language);
    QCOMPARE(text, QStringLiteral("[Saturation 12, value 34]"));
}

QTEST_MAIN(TestPickerAccessible)
#include "tst_pickeraccessible.moc"
