#include "formrows.h"
#include "formspaces.h"
#include "formtables.h"
#include "formwindow.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QProxyStyle>
#include <QtTest>

#include <array>

namespace {

/// Leaves spaces that no form asks for, so that what a layout leaves to the style stands out.
class UnlikeStyle : public QProxyStyle
{
public:
    static constexpr int space = 17;
    static constexpr int margin = 19;

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return space;
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
            return margin;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }
};

/// What a layout leaves between its items under that style.
int space(int wanted)
{
    return wanted == formtables::byStyle ? UnlikeStyle::space : wanted;
}

/// One of several numbers with commas between them; 0 where there are fewer.
int number(const char *list, int index)
{
    return QString::fromLatin1(list).section(QLatin1Char(','), index, index).toInt();
}

/// How many rows and columns a grid has.
struct Extent
{
    const char *grid;
    int rows;
    int columns;
};
constexpr std::array extents{
    Extent{"gridLayout", 1, 3},    Extent{"gridLayout_2", 4, 1},  Extent{"gridLayout_3", 5, 1},
    Extent{"gridLayout_4", 1, 3},  Extent{"gridLayout_5", 1, 1},  Extent{"gridLayout_6", 5, 2},
    Extent{"gridLayout_7", 7, 2},  Extent{"gridLayout_8", 6, 1},  Extent{"gridLayout_9", 1, 5},
    Extent{"gridLayout_10", 2, 3}, Extent{"gridLayout_11", 6, 1}, Extent{"gridLayout_12", 5, 1},
    Extent{"gridLayout_13", 6, 1}, Extent{"gridLayout_14", 5, 1},
};

} // namespace

/// Holds what the live form leaves free against the tables of formspaces.h and formtables.h.
class TestFormSpaces : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void spaces_data();
    void spaces();
    void extent_data();
    void extent();
    void verticalSpacer_data();
    void verticalSpacer();
    void effectsBarSpacer();
    void pickerSpacers();

private:
    static void checkSpacer(QLayoutItem &item, int height, QSizePolicy::Policy policy);

    std::unique_ptr<QMainWindow> window;
};

void TestFormSpaces::initTestCase()
{
    QApplication::setStyle(new UnlikeStyle);
}

void TestFormSpaces::init()
{
    window = makeWindow();
}

void TestFormSpaces::cleanup()
{
    window.reset();
}

void TestFormSpaces::spaces_data()
{
    addRows(formtables::spaces, &formtables::Spaces::layout);
}

void TestFormSpaces::spaces()
{
    QFETCH(int, index);
    const formtables::Spaces &row = formtables::spaces.at(static_cast<std::size_t>(index));
    const auto *layout = window->findChild<QLayout *>(QLatin1String(row.layout));
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), row.margins);
    if (const auto *box = qobject_cast<const QBoxLayout *>(layout)) {
        QCOMPARE(box->spacing(), space(row.across));
        for (int i = 0; i < box->count(); ++i) {
            QCOMPARE(box->stretch(i), number(row.rows, i));
        }
        return;
    }
    const auto *grid = qobject_cast<const QGridLayout *>(layout);
    QVERIFY(grid);
    QCOMPARE(grid->horizontalSpacing(), space(row.across));
    QCOMPARE(grid->verticalSpacing(), space(row.down));
    for (int i = 0; i < grid->rowCount(); ++i) {
        QCOMPARE(grid->rowStretch(i), number(row.rows, i));
        QCOMPARE(grid->rowMinimumHeight(i), number(row.leastHeights, i));
    }
    for (int i = 0; i < grid->columnCount(); ++i) {
        QCOMPARE(grid->columnStretch(i), number(row.columns, i));
        QCOMPARE(grid->columnMinimumWidth(i), number(row.leastWidths, i));
    }
}

void TestFormSpaces::extent_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    for (const Extent &row : extents) {
        QTest::newRow(row.grid) << row.rows << row.columns;
    }
}

/// A grid has no row and no column but those that hold something: an empty one takes room, too.
void TestFormSpaces::extent()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    const auto *const grid =
        window->findChild<QGridLayout *>(QLatin1String(QTest::currentDataTag()));
    QVERIFY(grid);
    QCOMPARE(grid->rowCount(), rows);
    QCOMPARE(grid->columnCount(), columns);
}

void TestFormSpaces::verticalSpacer_data()
{
    addRows(formtables::verticalSpacers, &formtables::SpacerRow::layout);
}

void TestFormSpaces::verticalSpacer()
{
    QFETCH(int, index);
    const auto &row = formtables::verticalSpacers.at(static_cast<std::size_t>(index));
    auto *grid = window->findChild<QGridLayout *>(QLatin1String(row.layout));
    QVERIFY(grid);
    QLayoutItem *item = grid->itemAtPosition(row.row, 0);
    QVERIFY(item);
    checkSpacer(*item, row.height, row.policy);
    for (int column = 1; column < grid->columnCount(); ++column) {
        QLayoutItem *other = grid->itemAtPosition(row.row, column);
        QVERIFY(!other || other == item);
    }
}

void TestFormSpaces::effectsBarSpacer()
{
    auto *grid = window->findChild<QGridLayout *>(QStringLiteral("gridLayout_9"));
    QVERIFY(grid);
    QLayoutItem *item = grid->itemAtPosition(0, 2);
    QVERIFY(item);
    QVERIFY(item->spacerItem());
    QCOMPARE(item->sizeHint(), QSize(50, 20));
    QCOMPARE(item->spacerItem()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

/// Between the picker's fields, its list and its buttons.
void TestFormSpaces::pickerSpacers()
{
    auto *box = window->findChild<QBoxLayout *>(QStringLiteral("verticalLayout_7"));
    QVERIFY(box);
    for (const int index : {2, 5}) {
        QVERIFY(box->itemAt(index));
        checkSpacer(*box->itemAt(index), 8, QSizePolicy::Expanding);
    }
}

void TestFormSpaces::checkSpacer(QLayoutItem &item, int height, QSizePolicy::Policy policy)
{
    const QSpacerItem *spacer = item.spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(1, height));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), policy);
}

QTEST_MAIN(TestFormSpaces)
#include "tst_formspaces.moc"
