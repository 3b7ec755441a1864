#include "app/appsettings.h"
#include "app/brightnessstore.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

/// When a brightness reaches the disk.
class TestBrightnessStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void eachChoiceAtOnce();
    void draggedOnceInAWhile();
    void aWhileIsATenthOfASecond();
    void letGo();
    void anotherChoiceWhileOneWaits();
    void nothingWaits();

private:
    int stored() const { return settings->read(SettingKeys::brightLevel); }

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<AppSettings> settings;
};

void TestBrightnessStore::init()
{
    folder = std::make_unique<QTemporaryDir>();
    settings = std::make_unique<AppSettings>(folder->path());
}

void TestBrightnessStore::eachChoiceAtOnce()
{
    BrightnessStore store(*settings);
    for (const int brightness : {10, 11, 12, 0, 100}) {
        store.choose(brightness, false);
        QCOMPARE(stored(), brightness);
    }
}

void TestBrightnessStore::draggedOnceInAWhile()
{
    BrightnessStore store(*settings);
    store.choose(10, true);
    QCOMPARE(stored(), 10);
    store.choose(20, true);
    store.choose(30, true);
    QCOMPARE(stored(), 10); // no event loop has run, so no time has passed for the store
    QTRY_COMPARE(stored(), 30);
    store.choose(40, true);
    QCOMPARE(stored(), 30); // the pause begins anew with each write
    QTRY_COMPARE(stored(), 40);
    QTest::qWait(3 * BrightnessStore::storePeriodMs);
    store.choose(50, true); // the handle has stood still meanwhile
    QCOMPARE(stored(), 50);
}

void TestBrightnessStore::aWhileIsATenthOfASecond()
{
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int time = 0; time < 10 && shortest > 170; ++time) { // a busy machine is late
        BrightnessStore store(*settings);
        store.choose(10, true);
        QElapsedTimer timer;
        timer.start();
        store.choose(20, true);
        QVERIFY(QTest::qWaitFor([this] { return stored() == 20; }));
        shortest = qMin(shortest, timer.elapsed());
    }
    QVERIFY2(shortest >= 90 && shortest <= 170, qPrintable(QString::number(shortest)));
}

void TestBrightnessStore::letGo()
{
    BrightnessStore store(*settings);
    store.choose(10, true);
    store.choose(20, true);
    store.storeWaiting();
    QCOMPARE(stored(), 20);
}

void TestBrightnessStore::anotherChoiceWhileOneWaits()
{
    BrightnessStore store(*settings);
    store.choose(10, true);
    store.choose(20, true);
    store.choose(30, false);
    QCOMPARE(stored(), 30);
    QTest::qWait(3 * BrightnessStore::storePeriodMs);
    QCOMPARE(stored(), 30);
}

void TestBrightnessStore::nothingWaits()
{
    BrightnessStore store(*settings);
    store.storeWaiting();
    store.choose(10, false);
    settings->write(SettingKeys::brightLevel, 70); // by somebody else
    store.storeWaiting();
    QTest::qWait(3 * BrightnessStore::storePeriodMs);
    QCOMPARE(stored(), 70);
}

QTEST_GUILESS_MAIN(TestBrightnessStore)
#include "tst_brightnessstore.moc"
