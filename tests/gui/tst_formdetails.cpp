#include "formwindow.h"
#include "tests/support/guitest.h"
#include "tests/support/notedmessages.h"

#include <QAbstractButton>
#include <QLabel>
#include <QtTest>

#include <array>

namespace {

/// How a widget grows. The other widgets of the form leave that to the toolkit.
struct Growth
{
    const char *object;
    QSizePolicy::Policy across;
    QSizePolicy::Policy down;
};
constexpr std::array growths{
    Growth{"colorpickframe", QSizePolicy::Preferred, QSizePolicy::Expanding},
    Growth{"svSelector", QSizePolicy::Fixed, QSizePolicy::Fixed},
    // A server's answer may be long: it takes what room there is, and asks for none.
    Growth{"Label_SoftwareServerVersion", QSizePolicy::Ignored, QSizePolicy::Ignored},
};

/// The buttons with a sample of their colour in the middle.
constexpr std::array wheels{"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5"};

} // namespace

/// What few of the form's widgets have, and that the others have not.
class TestFormDetails : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void growth_data();
    void growth();
    void nobodyGrowsMoreThanOthers();
    void samplesOfColours();
    void indents();
    void textFormats();
    void nothingIsWrongWithIt();

private:
    std::unique_ptr<QMainWindow> window;
};

void TestFormDetails::init()
{
    window = makeWindow();
}

void TestFormDetails::cleanup()
{
    window.reset();
}

void TestFormDetails::growth_data()
{
    QTest::addColumn<QSizePolicy::Policy>("across");
    QTest::addColumn<QSizePolicy::Policy>("down");
    for (const Growth &row : growths) {
        QTest::newRow(row.object) << row.across << row.down;
    }
}

void TestFormDetails::growth()
{
    QFETCH(QSizePolicy::Policy, across);
    QFETCH(QSizePolicy::Policy, down);
    const QSizePolicy policy = widget<QWidget>(*window, QTest::currentDataTag())->sizePolicy();
    QCOMPARE(policy.horizontalPolicy(), across);
    QCOMPARE(policy.verticalPolicy(), down);
}

void TestFormDetails::nobodyGrowsMoreThanOthers()
{
    auto all = window->findChildren<QWidget *>();
    all += window.get();
    for (const QWidget *one : qAsConst(all)) {
        const QSizePolicy policy = one->sizePolicy();
        QVERIFY2(policy.horizontalStretch() == 0 && policy.verticalStretch() == 0,
                 qPrintable(one->objectName()));
    }
}

void TestFormDetails::samplesOfColours()
{
    for (const char *wheel : wheels) {
        QCOMPARE(widget<QAbstractButton>(*window, wheel)->iconSize(), QSize(18, 18));
    }
}

/// The first column's caption stands over the texts below, whose boxes have a frame.
void TestFormDetails::indents()
{
    for (const auto *label : window->findChildren<QLabel *>()) {
        const int wanted = label->objectName() == QLatin1String("label") ? 3 : -1;
        QVERIFY2(label->indent() == wanted, qPrintable(label->objectName()));
    }
}

/// What a server has said is no markup.
void TestFormDetails::textFormats()
{
    for (const auto *label : window->findChildren<QLabel *>()) {
        const bool said = label->objectName() == QLatin1String("Label_SoftwareServerVersion");
        QVERIFY2(label->textFormat() == (said ? Qt::PlainText : Qt::AutoText),
                 qPrintable(label->objectName()));
    }
}

/// Of a size beyond its own limits, of a place that is taken and the like the toolkit tells the
/// log.
void TestFormDetails::nothingIsWrongWithIt()
{
    window.reset();
    const NotedMessages noted;
    window = makeWindow();
    QCOMPARE(NotedMessages::texts, QStringList());
}

QTEST_MAIN(TestFormDetails)
#include "tst_formdetails.moc"
