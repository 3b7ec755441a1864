#include "clipping.h"
#include "formlooks.h"
#include "formtables.h"
#include "formwindow.h"
#include "tests/support/effectwidgets.h"
#include "ui/darkstyle.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QTranslator>
#include <QtTest>

namespace {

/// Marks whatever is looked up in the form's translation context.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return std::strcmp(context, "MainWindow") == 0 ? QLatin1Char('~') + QLatin1String(source)
                                                       : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// Looks at the form as its users do: on screen, by keyboard, by screen reader, in their language.
class TestFormView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void translatable();
    void buddies_data();
    void buddies();
    void tabOrder();
    void accessibleNames();
    void showsEverything_data();
    void showsEverything();
    void growsWithLargerMinimums_data();
    void growsWithLargerMinimums();
    void nothingJumps_data();
    void nothingJumps();

private:
    QWidget *child(const char *object) const
    {
        return window->findChild<QWidget *>(QLatin1String(object));
    }
    QTabWidget *tabs(const char *object) const { return qobject_cast<QTabWidget *>(child(object)); }
    void showView(int zonePage, int settingsPage, bool effects, bool picker) const;

    std::unique_ptr<QMainWindow> window;
};

void TestFormView::initTestCase()
{
    auto *style = new DarkStyle;
    style->setParent(qApp);
    QApplication::setStyle(style);
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
}

void TestFormView::init()
{
    window = makeWindow();
}

void TestFormView::cleanup()
{
    window.reset();
}

void TestFormView::translatable()
{
    window.reset();
    MarkingTranslator translator;
    QCoreApplication::installTranslator(&translator);
    window = makeWindow();
    const auto translated = [](const QString &shown, const char *source) {
        return shown == QLatin1Char('~') + QLatin1String(source);
    };
    QVERIFY(translated(window->windowTitle(), "Lumikey"));
    for (const auto &row : formtables::texts) {
        if (!row.replacedAtStart || isUntouched(*window)) {
            QVERIFY2(translated(shownText(*child(row.object)), row.text), row.object);
        }
    }
    for (const auto &row : formtables::pages) {
        QVERIFY2(translated(tabs(row.tabWidget)->tabText(row.index), row.text), row.page);
    }
    for (const auto &row : formtables::items) {
        QVERIFY2(
            translated(qobject_cast<QComboBox *>(child(row.combo))->itemText(row.index), row.text),
            row.combo);
    }
    QCoreApplication::removeTranslator(&translator);
}

void TestFormView::buddies_data()
{
    QTest::addColumn<QString>("buddy");
    QTest::newRow("label_2") << QStringLiteral("horizontalSlider");
    QTest::newRow("label_4") << QStringLiteral("Combo_Effect");
    QTest::newRow("label_6") << QStringLiteral("leRGB");
    QTest::newRow("label_7") << QStringLiteral("leHex");
    QTest::newRow("label_12") << QStringLiteral("comboBox_BasicColors");
}

void TestFormView::buddies()
{
    QFETCH(QString, buddy);
    const auto *label = qobject_cast<QLabel *>(child(QTest::currentDataTag()));
    QVERIFY(label);
    QVERIFY(label->buddy());
    QCOMPARE(label->buddy()->objectName(), buddy);
}

void TestFormView::tabOrder()
{
    QStringList wanted;
    for (const char *object : formtables::tabOrder) {
        wanted += QLatin1String(object);
    }
    QStringList order;
    const QWidget *first = child(formtables::tabOrder.front());
    QVERIFY(first);
    const QWidget *next = first;
    do {
        if (wanted.contains(next->objectName())) {
            order += next->objectName();
        }
        next = next->nextInFocusChain();
    } while (next != first);
    QCOMPARE(order, wanted);
}

/// Whatever can be operated or looked at tells a screen reader what it is.
void TestFormView::accessibleNames()
{
    for (const auto &row : formtables::widgets) {
        QWidget *widget = child(row.object);
        const bool container = qobject_cast<QTabWidget *>(widget) || !qstrcmp(row.object, "widget")
                               || !qstrcmp(row.object, "pColorPicker")
                               || formtables::find(formtables::frames, row.object);
        if (container) {
            continue;
        }
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        const QString name = accessible ? accessible->text(QAccessible::Name) : QString();
        QVERIFY2(!name.trimmed().isEmpty(), row.object);
    }
}

void TestFormView::showView(int zonePage, int settingsPage, bool effects, bool picker) const
{
    tabs("tabWidget_2")->setCurrentIndex(zonePage);
    tabs("tabWidget")->setCurrentIndex(settingsPage);
    for (const char *object : EffectWidgets::hidden) {
        child(object)->setVisible(!effects);
    }
    for (const char *object : EffectWidgets::notes) {
        child(object)->setVisible(effects);
    }
    child("colorpickframe")->setVisible(picker);
    child("tabWidget")->setVisible(!picker);
    child("tabWidget_2")->setVisible(!picker);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

void TestFormView::showsEverything_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("zonePage");
    QTest::addColumn<int>("settingsPage");
    QTest::addColumn<bool>("effects");
    QTest::addColumn<bool>("picker");
    // The window's minimum is narrowed by the DPI adaptation, so both widths count.
    for (const QSize &size : {QSize(630, 630), QSize(600, 630), QSize(1000, 900)}) {
        for (int zonePage = 0; zonePage < 4; ++zonePage) {
            for (int settingsPage = 0; settingsPage < 2; ++settingsPage) {
                QTest::addRow("%dx%d zones %d settings %d", size.width(), size.height(), zonePage,
                              settingsPage)
                    << size << zonePage << settingsPage << false << false;
            }
        }
        for (int zonePage = 0; zonePage < 2; ++zonePage) {
            QTest::addRow("%dx%d zones %d effects", size.width(), size.height(), zonePage)
                << size << zonePage << 0 << true << false;
        }
        QTest::addRow("%dx%d picker", size.width(), size.height())
            << size << 0 << 0 << false << true;
    }
}

void TestFormView::showsEverything()
{
    QFETCH(QSize, size);
    QFETCH(int, zonePage);
    QFETCH(int, settingsPage);
    QFETCH(bool, effects);
    QFETCH(bool, picker);
    const auto setText = [this](const char *object, const char *words) {
        child(object)->setProperty("text", QString::fromLatin1(words));
    };
    // The longest texts that these labels ever get.
    setText("label_2", "Brightness Level: 100% (disabled for Effects)");
    setText("label_8", "Select Center Keyboard Zone Color:");
    setText("Label_SoftwareVersion_desc",
            "Your version is newer then the official latest! Are you a beta tester?");
    window->setMinimumSize(600, 630);
    showView(zonePage, settingsPage, effects, picker);
    window->resize(size);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(window->size(), size);

    QCOMPARE(clippedWidgets(*window), QStringList());
    QVERIFY(child("statusBar")->isVisible());
    if (picker) {
        QVERIFY(child("colorpickframe")->height() >= 400);
    }
}

void TestFormView::growsWithLargerMinimums_data()
{
    QTest::addColumn<int>("zonePage");
    QTest::addColumn<bool>("picker");
    for (int zonePage = 0; zonePage < 4; ++zonePage) {
        QTest::addRow("zones %d", zonePage) << zonePage << false;
    }
    QTest::newRow("picker") << 0 << true;
}

/// On denser screens minimum sizes are raised above the form's own maxima; the layouts make room.
void TestFormView::growsWithLargerMinimums()
{
    QFETCH(int, zonePage);
    QFETCH(bool, picker);
    child("frame")->setMinimumHeight(180);
    for (const char *object : {"keyboard_full", "stripe_led", "stripe_led_2"}) {
        child(object)->setMinimumSize(440, 165);
    }
    for (const char *object : {"keyboard_left", "keyboard_center", "keyboard_right"}) {
        child(object)->setMinimumSize(245, 165);
    }
    for (const char *object :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5", "colorpick5_3"}) {
        child(object)->setMinimumSize(60, 60);
    }
    for (const char *object : {"comboBox_BasicColors", "leRGB", "leHex", "bHex", "bPasteHex",
                               "pushButton_2", "pushButton", "pushButton_3", "Button_Update"}) {
        child(object)->setMinimumHeight(56);
    }
    showView(zonePage, 0, false, picker);
    window->resize(1000, 900);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QCOMPARE(clippedWidgets(*window), QStringList());
}

void TestFormView::nothingJumps_data()
{
    QTest::addColumn<int>("zonePage");
    QTest::addColumn<QString>("picture");
    QTest::newRow("single zone") << 0 << QStringLiteral("keyboard_full");
    QTest::newRow("three zones") << 1 << QStringLiteral("keyboard_center");
}

/// Choosing an effect puts a note where the colours were, without moving the bars around it.
void TestFormView::nothingJumps()
{
    QFETCH(int, zonePage);
    QFETCH(QString, picture);
    const auto places = [this] {
        QVector<QRect> rects;
        for (const char *object : {"frame", "tabWidget_2", "frame_2", "tabWidget"}) {
            rects += child(object)->geometry();
        }
        return rects;
    };
    const auto centre = [this](const QString &object) {
        const auto *widget = window->findChild<QWidget *>(object);
        return widget->mapTo(window.get(), widget->rect().center());
    };
    showView(zonePage, 0, false, false);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QVector<QRect> before = places();
    const QPoint pictureCentre = centre(picture);
    showView(zonePage, 0, true, false);
    QCOMPARE(places(), before);
    showView(zonePage, 0, false, false);
    QCOMPARE(places(), before);
    // One pixel: halves of odd widths are rounded either way.
    QVERIFY((centre(picture) - pictureCentre).manhattanLength() <= 1);
}

QTEST_MAIN(TestFormView)
#include "tst_formview.moc"
