#include "ui/darkstyle.h"

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QtTest>

namespace {

constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb dimmed = qRgb(176, 176, 176);
constexpr QRgb dark = qRgb(90, 90, 90);
/// As bright to the eye as the dimmed grey, to the step.
constexpr QRgb tinted = qRgb(192, 165, 176);
constexpr QRgb brighterTinted = qRgb(195, 165, 176);

/// Stands below the style and notes what it is asked to draw.
class DrawingNote : public QProxyStyle
{
public:
    DrawingNote()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {}
    void drawItemText(QPainter * /*painter*/, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole) const override
    {
        drawn = {rect, flags, palette, enabled, text, textRole};
    }

    struct Drawn
    {
        QRect rect;
        int flags = 0;
        QPalette palette;
        bool enabled = false;
        QString text;
        QPalette::ColorRole role = QPalette::NoRole;
    };
    mutable Drawn drawn;
};

} // namespace

/// What the style does to single widgets, and to their texts.
class TestDarkStyleWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void textColour_data();
    void textColour();
    void restOfTheTextIsHandedOn();
    void pointerIsFollowed();
    void lists();
    void iconOfABox();
    void otherLengthsAreTheBaseStyles();
    void lastTab_data();
    void lastTab();

private:
    DrawingNote *base = nullptr; ///< kept for the life of the process
};

void TestDarkStyleWidgets::initTestCase()
{
    base = new DrawingNote;
    QCOMPARE(DarkStyle::sharedBaseStyle(base), base);
}

void TestDarkStyleWidgets::textColour_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QRgb>("given");
    QTest::addColumn<QRgb>("drawn");
    const auto text = QPalette::WindowText;
    QTest::newRow("enabled") << true << text << white << white;
    QTest::newRow("disabled") << false << text << white << dimmed;
    QTest::newRow("disabled, of a button") << false << QPalette::ButtonText << white << dimmed;
    QTest::newRow("disabled, dark already") << false << text << dark << dark;
    QTest::newRow("disabled, just as bright") << false << text << tinted << tinted;
    QTest::newRow("disabled, a step brighter") << false << text << brighterTinted << dimmed;
    QTest::newRow("disabled, by the painter's pen") << false << QPalette::NoRole << white << white;
}

void TestDarkStyleWidgets::textColour()
{
    QFETCH(bool, enabled);
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QRgb, given);
    QFETCH(QRgb, drawn);
    QPalette palette(Qt::black);
    palette.setColor(role, QColor(given));
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    DarkStyle().drawItemText(&painter, image.rect(), 0, palette, enabled, QStringLiteral("text"),
                             role);
    QCOMPARE(base->drawn.palette.color(role), QColor(drawn));
}

void TestDarkStyleWidgets::restOfTheTextIsHandedOn()
{
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    const QRect rect(1, 2, 3, 4);
    DarkStyle().drawItemText(&painter, rect, Qt::AlignRight, QPalette(), false,
                             QStringLiteral("text"), QPalette::Text);
    QCOMPARE(base->drawn.rect, rect);
    QCOMPARE(base->drawn.flags, int(Qt::AlignRight));
    QCOMPARE(base->drawn.enabled, false);
    QCOMPARE(base->drawn.text, QStringLiteral("text"));
    QCOMPARE(base->drawn.role, QPalette::Text);
}

/// As the base style wants it: without, a button does not change under the pointer.
void TestDarkStyleWidgets::pointerIsFollowed()
{
    QPushButton button;
    QVERIFY(!button.testAttribute(Qt::WA_Hover));
    DarkStyle().polish(&button);
    QVERIFY(button.testAttribute(Qt::WA_Hover));
}

void TestDarkStyleWidgets::lists()
{
    DarkStyle style;
    QComboBox box;
    QVERIFY(!qobject_cast<QStyledItemDelegate *>(box.itemDelegate()));
    style.polish(&box);
    auto *const styled = qobject_cast<QStyledItemDelegate *>(box.itemDelegate());
    QVERIFY(styled);
    style.polish(&box);
    QCOMPARE(box.itemDelegate(), styled); // it serves on
}

void TestDarkStyleWidgets::iconOfABox()
{
    const DarkStyle style;
    QWidget box;
    for (const int size : {10, 12, 40}) {
        QFont font = box.font();
        font.setPixelSize(size);
        box.setFont(font);
        QCOMPARE(style.pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box), size * 27 / 10);
    }
    // Of no box nobody knows the font.
    QCOMPARE(style.pixelMetric(QStyle::PM_MessageBoxIconSize),
             base->pixelMetric(QStyle::PM_MessageBoxIconSize));
}

void TestDarkStyleWidgets::otherLengthsAreTheBaseStyles()
{
    const DarkStyle style;
    const QPushButton button;
    for (const auto metric : {QStyle::PM_IndicatorWidth, QStyle::PM_ButtonIconSize,
                              QStyle::PM_ScrollBarExtent, QStyle::PM_SliderLength}) {
        QVERIFY(base->pixelMetric(metric, nullptr, &button) > 0);
        QCOMPARE(style.pixelMetric(metric, nullptr, &button),
                 base->pixelMetric(metric, nullptr, &button));
    }
}

void TestDarkStyleWidgets::lastTab_data()
{
    // A letter a tab: e for enabled, d for disabled, a capital where it is hidden.
    QTest::addColumn<QString>("tabs");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("no tabs") << "" << false;
    QTest::newRow("an enabled one") << "e" << true;
    QTest::newRow("a disabled one") << "d" << false;
    QTest::newRow("a hidden one") << "E" << false;
    QTest::newRow("enabled at the end") << "de" << true;
    QTest::newRow("disabled at the end") << "ed" << false;
    QTest::newRow("hidden and disabled at the end") << "eD" << true;
    QTest::newRow("hidden and enabled at the end") << "dE" << false;
    QTest::newRow("two hidden and enabled at the end") << "edEE" << false;
    QTest::newRow("two hidden and disabled at the end") << "deDD" << true;
}

/// The last that is shown decides, because the sheet's rule for the last one asks for it.
void TestDarkStyleWidgets::lastTab()
{
    QFETCH(QString, tabs);
    QFETCH(bool, enabled);
    QTabBar bar;
    for (const QChar letter : qAsConst(tabs)) {
        const int index = bar.addTab(QStringLiteral("Tab"));
        bar.setTabEnabled(index, letter.toLower() == QLatin1Char('e'));
        bar.setTabVisible(index, letter.isLower());
    }
    DarkStyle::layOutTabs(&bar);
    QCOMPARE(bar.property("lastTabEnabled"), QVariant(enabled));
}

QTEST_MAIN(TestDarkStyleWidgets)
#include "tst_darkstylewidgets.moc"
