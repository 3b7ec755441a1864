#include "colorpicker/basiccolors.h"

#include <QTest>

class TestBasicColors : public QObject
{
    Q_OBJECT

private slots:
    void list_data();
    void list();
    void noItem_data();
    void noItem();
    void otherTexts_data();
    void otherTexts();
};

void TestBasicColors::list_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("matched");
    const auto row = [](int index, const char *name, const char *chosen, const char *matched) {
        QTest::newRow(name) << index << QString::fromLatin1(chosen) << QString::fromLatin1(matched);
    };
    row(1, "Red", "255 0 0", "255 0 0");
    row(2, "White", "255 255 255", "255 255 255");
    row(3, "Blue", "0 0 255", "0 0 255");
    row(4, "Cyan", "0 255 255", "0 255 255");
    row(5, "Purple", "155 0 255", "153 0 255");
    row(6, "Yellow", "255 255 0", "255 255 0");
    row(7, "Green", "0 255 0", "0 255 0");
    row(8, "Orange", "255 85 0", "255 85 0");
}

void TestBasicColors::list()
{
    QFETCH(int, index);
    QFETCH(QString, chosen);
    QFETCH(QString, matched);
    const BasicColor &color = basicColors.at(static_cast<std::size_t>(index) - 1);
    QCOMPARE(color.name, QTest::currentDataTag());
    QCOMPARE(basicColorText(index), chosen);
    QCOMPARE(basicColorIndex(matched), index);
    QVERIFY(isBasicColor(index, chosen));
    QVERIFY(isBasicColor(index, matched));
    QVERIFY(!isBasicColor(index, QStringLiteral("1 2 3")));
    QVERIFY(!isBasicColor(index, QString()));
    if (chosen != matched) {
        QCOMPARE(basicColorIndex(chosen), 0);
    }
}

void TestBasicColors::noItem_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("goesWithAny");
    QTest::newRow("none chosen") << 0 << true;
    QTest::newRow("nothing listed") << -1 << false;
    QTest::newRow("behind the list") << 9 << false;
    QTest::newRow("far behind it") << 1000 << false;
}

void TestBasicColors::noItem()
{
    QFETCH(int, index);
    QFETCH(bool, goesWithAny);
    QCOMPARE(basicColorText(index), QString());
    for (const char *text : {"255 0 0", "255 85 0", "1 2 3", ""}) {
        QCOMPARE(isBasicColor(index, QString::fromLatin1(text)), goesWithAny);
    }
}

void TestBasicColors::otherTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no colour") << QString();
    QTest::newRow("unlisted") << QStringLiteral("1 2 3");
    QTest::newRow("other blanks") << QStringLiteral("255  0 0");
    QTest::newRow("black") << QStringLiteral("0 0 0");
}

void TestBasicColors::otherTexts()
{
    QFETCH(QString, text);
    QCOMPARE(basicColors.size(), std::size_t(8));
    QCOMPARE(basicColorIndex(text), 0);
}

QTEST_GUILESS_MAIN(TestBasicColors)
#include "tst_basiccolors.moc"
