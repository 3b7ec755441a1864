#include "formlooks.h"
#include "formrows.h"
#include "formspaces.h"
#include "formtables.h"
#include "formwindow.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QSlider>
#include <QStatusBar>
#include <QTabWidget>
#include <QtTest>

#include <array>
#include <memory>

namespace {

/// Index of the item that is, or holds, the given object; -1 when the layout lacks it.
int itemIndex(const QLayout &layout, const QObject *object)
{
    for (int index = 0; index < layout.count(); ++index) {
        QLayoutItem *item = layout.itemAt(index);
        if (item->widget() == object || item->layout() == object) {
            return index;
        }
    }
    return -1;
}

/// Turn of the item at an index of a box, spacers not counted.
int turn(const QLayout &box, int index)
{
    int before = 0;
    for (int i = 0; i < index; ++i) {
        before += box.itemAt(i)->spacerItem() == nullptr ? 1 : 0;
    }
    return before;
}

/// How many rows of a table bear this text.
template<typename Row, std::size_t size>
int countRows(const std::array<Row, size> &table, const char *Row::*name, const char *wanted)
{
    return static_cast<int>(std::count_if(std::begin(table), std::end(table), [&](const Row &row) {
        return qstrcmp(row.*name, wanted) == 0;
    }));
}

} // namespace

/// Holds the live form against the tables of formtables.h and formlooks.h, row by row.
class TestForm : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void windowProperties();
    void holdsNothingUnlisted();
    void layout_data();
    void layout();
    void widget_data();
    void widget();
    void page_data();
    void page();
    void comboItems_data();
    void comboItems();
    void slider();
    void initialState();
    void connection_data();
    void connection();

private:
    QWidget *child(const char *object) const
    {
        return window->findChild<QWidget *>(QLatin1String(object));
    }
    void checkPlace(const formtables::Place &place, const QObject *object) const;
    void checkLooks(const QWidget &widget, const char *object) const;

    std::unique_ptr<QMainWindow> window;
};

void TestForm::init()
{
    window = makeWindow();
}

void TestForm::cleanup()
{
    window.reset();
}

void TestForm::windowProperties()
{
    QCOMPARE(window->objectName(), QStringLiteral("MainWindow"));
    QCOMPARE(window->windowTitle(), QStringLiteral("Lumikey"));
    QCOMPARE(window->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(window->maximumSize(), QSize(formtables::unbounded, 1200));
    QCOMPARE(window->styleSheet(), QString());
    QVERIFY(window->centralWidget());
    QCOMPARE(window->centralWidget()->objectName(), QStringLiteral("centralWidget"));
    QCOMPARE(window->centralWidget()->metaObject()->className(), "QWidget");

    auto *statusBar = window->findChild<QStatusBar *>(QStringLiteral("statusBar"));
    QVERIFY(statusBar);
    QCOMPARE(window->statusBar(), statusBar);
    QVERIFY(statusBar->isSizeGripEnabled());
    QVERIFY(!statusBar->autoFillBackground());
    QCOMPARE(statusBar->styleSheet(), QString());

    // A name given before stays.
    QCOMPARE(makeWindow(QStringLiteral("other"))->objectName(), QStringLiteral("other"));
}

/// Every named widget of the form is in the tables, so a new one cannot slip past them.
void TestForm::holdsNothingUnlisted()
{
    QSet<QString> known = {QStringLiteral("centralWidget"), QStringLiteral("statusBar")};
    for (const auto &row : formtables::widgets) {
        known.insert(QLatin1String(row.object));
    }
    for (const auto &row : formtables::pages) {
        known.insert(QLatin1String(row.page));
    }
    const auto all = window->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        const QString name = widget->objectName();
        const bool toolkits = name.isEmpty() || name.startsWith(QLatin1String("qt_"))
                              || qobject_cast<const QTabBar *>(widget->parentWidget());
        QVERIFY2(toolkits || known.contains(name), qPrintable(name));
    }
}

void TestForm::checkPlace(const formtables::Place &place, const QObject *object) const
{
    QVERIFY(object);
    QCOMPARE(object->metaObject()->className(), place.className);
    const QLatin1String holder(place.holder);
    if (place.row == formtables::wholeWidget) {
        QCOMPARE(static_cast<const QObject *>(child(place.holder)->layout()), object);
        return;
    }
    auto *layout = window->findChild<QLayout *>(holder);
    QVERIFY(layout);
    const int index = itemIndex(*layout, object);
    QVERIFY2(index >= 0, place.holder);
    const auto *aligned = formtables::find(formtables::itemAlignments, place.object);
    QCOMPARE(layout->itemAt(index)->alignment(), aligned ? aligned->alignment : Qt::Alignment());
    if (auto *grid = qobject_cast<QGridLayout *>(layout)) {
        int row = -1;
        int column = -1;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        QCOMPARE(row, place.row);
        QCOMPARE(column, place.column);
        QCOMPARE(rowSpan, 1);
        QCOMPARE(columnSpan, 1);
    } else {
        QCOMPARE(turn(*layout, index), place.row);
    }
}

void TestForm::layout_data()
{
    addRows(formtables::layouts, &formtables::Place::object);
}

void TestForm::layout()
{
    QFETCH(int, index);
    const formtables::Place &row = formtables::layouts.at(static_cast<std::size_t>(index));
    checkPlace(row, window->findChild<QLayout *>(QLatin1String(row.object)));
}

void TestForm::widget_data()
{
    addRows(formtables::widgets, &formtables::Place::object);
}

void TestForm::widget()
{
    QFETCH(int, index);
    const formtables::Place &row = formtables::widgets.at(static_cast<std::size_t>(index));
    const QWidget *found = child(row.object);
    checkPlace(row, found);
    if (!QTest::currentTestFailed()) {
        checkLooks(*found, row.object);
    }
}

void TestForm::checkLooks(const QWidget &widget, const char *object) const
{
    const auto *words = formtables::find(formtables::texts, object);
    if (!words || !words->replacedAtStart || isUntouched(*window)) {
        QCOMPARE(shownText(widget), QLatin1String(words ? words->text : ""));
    }

    const auto *spoken = formtables::find(formtables::accessibleNames, object);
    QCOMPARE(widget.accessibleName(), QLatin1String(spoken ? spoken->text : ""));

    const auto *named = formtables::find(formtables::limits, object);
    const auto &limits = named ? *named : formtables::defaultLimits;
    QCOMPARE(widget.minimumSize(), QSize(limits.minimumWidth, limits.minimumHeight));
    QCOMPARE(widget.maximumSize(), QSize(limits.maximumWidth, limits.maximumHeight));

    const auto *sheet = formtables::find(formtables::sheets, object);
    QCOMPARE(widget.styleSheet(), QLatin1String(sheet ? sheet->sheet : ""));

    const QVariant alignment = widget.property("alignment");
    const auto *aligned = formtables::find(formtables::alignments, object);
    QVERIFY(!aligned || alignment.isValid());
    if (alignment.isValid() && (qobject_cast<const QLabel *>(&widget) || aligned)) {
        const int unaligned = Qt::AlignLeft | Qt::AlignVCenter;
        QCOMPARE(alignment.toInt(), aligned ? aligned->alignment : unaligned);
    }

    const auto *weight = formtables::find(formtables::weights, object);
    QCOMPARE(widget.testAttribute(Qt::WA_SetFont), weight != nullptr);
    if (weight) {
        QCOMPARE(widget.font().weight(), weight->weight);
        QCOMPARE(widget.font().bold(), weight->weight == QFont::Bold);
    }

    const auto *look = formtables::find(formtables::frames, object);
    if (look) {
        const auto *frame = qobject_cast<const QFrame *>(&widget);
        QVERIFY(frame);
        QCOMPARE(frame->frameShape(), look->shape);
        QCOMPARE(frame->frameShadow(), look->shadow);
    }

    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        const bool scaled = lists(formtables::scaledPictures, object);
        QCOMPARE(label->hasScaledContents(), scaled);
    }
    QVERIFY(!widget.autoFillBackground() || !qstrcmp(object, "tabWidget")
            || !qstrcmp(object, "tabWidget_2"));
}

void TestForm::page_data()
{
    addRows(formtables::pages, &formtables::Page::page);
}

void TestForm::page()
{
    QFETCH(int, index);
    const formtables::Page &row = formtables::pages.at(static_cast<std::size_t>(index));
    auto *tabs = qobject_cast<QTabWidget *>(child(row.tabWidget));
    QVERIFY(tabs);
    QCOMPARE(tabs->count(),
             countRows(formtables::pages, &formtables::Page::tabWidget, row.tabWidget));
    QVERIFY(tabs->widget(row.index));
    QCOMPARE(tabs->widget(row.index)->objectName(), QLatin1String(row.page));
    QCOMPARE(tabs->widget(row.index)->metaObject()->className(), "QWidget");
    QCOMPARE(tabs->tabText(row.index), QLatin1String(row.text));
}

void TestForm::comboItems_data()
{
    addRows(formtables::items, &formtables::Item::combo);
}

void TestForm::comboItems()
{
    QFETCH(int, index);
    const formtables::Item &row = formtables::items.at(static_cast<std::size_t>(index));
    auto *combo = qobject_cast<QComboBox *>(child(row.combo));
    QVERIFY(combo);
    QCOMPARE(combo->count(), countRows(formtables::items, &formtables::Item::combo, row.combo));
    QCOMPARE(combo->itemText(row.index), QLatin1String(row.text));
    QVERIFY(combo->itemIcon(row.index).isNull());
    QVERIFY(!combo->isEditable());
}

void TestForm::slider()
{
    auto *slider = qobject_cast<QSlider *>(child("horizontalSlider"));
    QVERIFY(slider);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(slider->minimum(), 0);
    QCOMPARE(slider->maximum(), 100);
    QCOMPARE(slider->pageStep(), 1);
    QVERIFY(slider->hasTracking());
}

void TestForm::initialState()
{
    if (!isUntouched(*window)) {
        QSKIP("the window's own start has already changed the form");
    }
    QCOMPARE(window->minimumSize(), QSize(630, 630));
    QCOMPARE(window->size(), QSize(630, 630));
    QCOMPARE(qobject_cast<QSlider *>(child("horizontalSlider"))->value(), 100);
    for (const char *tabs : {"tabWidget", "tabWidget_2"}) {
        QCOMPARE(qobject_cast<QTabWidget *>(child(tabs))->currentIndex(), 0);
    }
    for (const char *combo : {"comboBox_BasicColors", "Combo_Effect", "comboDimValue"}) {
        QCOMPARE(qobject_cast<QComboBox *>(child(combo))->currentIndex(), 0);
    }
    for (const auto &row : formtables::widgets) {
        const bool disabled = lists(formtables::initiallyDisabled, row.object);
        QVERIFY2(child(row.object)->isEnabled() != disabled, row.object);
        QVERIFY2(!child(row.object)->isHidden(), row.object);
        if (auto *button = qobject_cast<QAbstractButton *>(child(row.object))) {
            QVERIFY2(!button->isChecked(), row.object);
        }
        if (auto *label = qobject_cast<QLabel *>(child(row.object))) {
            QVERIFY2(label->pixmap(Qt::ReturnByValue).isNull(), row.object);
        }
    }
}

void TestForm::connection_data()
{
    addRows(formtables::connections, &formtables::Connection::sender);
}

/// The sender has that signal, and a slot that is joined by name bears the names of both.
void TestForm::connection()
{
    QFETCH(int, index);
    const formtables::Connection &row = formtables::connections.at(static_cast<std::size_t>(index));
    const QWidget *sender = child(row.sender);
    QVERIFY(sender);
    QVERIFY(sender->metaObject()->indexOfSignal(row.signal) >= 0);
    if (row.byName) {
        QCOMPARE(QByteArray(row.slot), QByteArray("on_") + row.sender + '_' + row.signal);
    }
    QVERIFY(formtables::signalCode(row).endsWith(row.signal));
    QVERIFY(QMetaObject::checkConnectArgs(row.signal, row.slot));
}

QTEST_MAIN(TestForm)
#include "tst_form.moc"
