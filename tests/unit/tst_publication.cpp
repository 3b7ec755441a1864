#include "companion/publication.h"

#include "lighting/companion.h"

#include <QTest>

class TestPublication : public QObject
{
    Q_OBJECT

private slots:
    void everyBrightnessArrives();
    void stepsAreNeighbours_data();
    void stepsAreNeighbours();
    void otherFieldsStay_data();
    void otherFieldsStay();
    void bytes();
};

/// Whatever a reader has read last, the brightness is what it reads in the end.
void TestPublication::everyBrightnessArrives()
{
    for (int brightness = 0; brightness <= 100; ++brightness) {
        for (int last = -1; last <= 101; ++last) {
            int read = last;
            bool found = false;
            QString text = QStringLiteral("on,%1,more").arg(last);
            for (const int published : companion::publications(brightness)) {
                QVERIFY(published >= 0 && published <= 100);
                text = companion::withBrightness(text, published);
                const auto news =
                    newCompanionBrightness(companionText(companion::segmentBytes(text)), read);
                read = news.value_or(read);
                found = found || news == brightness;
            }
            QVERIFY(found);
            QCOMPARE(read, brightness);
        }
    }
}

void TestPublication::stepsAreNeighbours_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<QVector<int>>("steps");
    QTest::newRow("dark") << 0 << QVector<int>{1, 0};
    QTest::newRow("dimmest") << 1 << QVector<int>{2, 1};
    QTest::newRow("between") << 40 << QVector<int>{41, 40};
    QTest::newRow("nearly full") << 99 << QVector<int>{100, 99};
    QTest::newRow("full") << 100 << QVector<int>{99, 100};
}

void TestPublication::stepsAreNeighbours()
{
    QFETCH(int, brightness);
    QTEST(companion::publications(brightness), "steps");
}

void TestPublication::otherFieldsStay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *text, const char *expected) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(expected);
    };
    QTest::newRow("null") << QString() << QStringLiteral(",40");
    row("", ",40");
    row("lit", "lit,40");
    row(",", ",40");
    row("lit,70", "lit,40");
    row("lit,none", "lit,40");
    row("lit,70,whatever", "lit,40,whatever");
    row("lit,70,", "lit,40,");
    row("lit,,70,,", "lit,40,70,,");
    row("l\u00efght \u2603,70,\U0001F4A1", "l\u00efght \u2603,40,\U0001F4A1");
}

void TestPublication::otherFieldsStay()
{
    QFETCH(QString, text);
    QTEST(companion::withBrightness(text, 40), "expected");
}

void TestPublication::bytes()
{
    QCOMPARE(companion::segmentBytes(QStringLiteral(",40")).toHex(),
             QByteArray("00000006002c00340030"));
}

QTEST_GUILESS_MAIN(TestPublication)
#include "tst_publication.moc"
