#include "system/platform.h"
#include "system/testing/currentuser.h"
#include "tests/support/programprocess.h"
#include "tests/support/testsystem.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

/// The system's own door, compared with what the system says elsewhere.
class TestPlatform : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void autostartEntry_data();
    void autostartEntry();
    void missingAutostartEntry();
    void userName();
    void messageFont();
    void rightsCanBeTold();
    void sleepTakesItsTime();
    void queueHoldsABurst();

private:
    std::unique_ptr<ProgramProcess> world; ///< a throw-away user; no program runs
    std::unique_ptr<Platform> platform = createPlatform();
};

void TestPlatform::init()
{
    world = std::make_unique<ProgramProcess>();
}

void TestPlatform::autostartEntry_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("/apps/");
    QTest::newRow("blanks") << QStringLiteral("/my own apps/");
    QTest::newRow("beyond ASCII") << QString::fromUtf8("/Geräte/");
}

void TestPlatform::autostartEntry()
{
    QFETCH(QString, folder);
    QString path = folder + platform->executableForm().fileName;
    path.replace(QLatin1Char('/'), platform->executableForm().separator);
    platform->setAutostartValue(path);
    QCOMPARE(TestSystem::autostartEntry().value_or(QString()), path);
    QCOMPARE(platform->autostartValue(QStringLiteral("none")), path);
    platform->removeAutostartValue();
    QVERIFY(!TestSystem::autostartEntry().has_value());
}

void TestPlatform::missingAutostartEntry()
{
    QCOMPARE(platform->autostartValue(QStringLiteral("none")), QStringLiteral("none"));
    platform->removeAutostartValue();
    QVERIFY(!TestSystem::autostartEntry().has_value());
}

void TestPlatform::userName()
{
    QCOMPARE(platform->userName().value_or(QString()), CurrentUser::name());
}

void TestPlatform::messageFont()
{
    // The toolkit's message boxes are written in it, too, where there is one.
    const auto family = platform->messageFontFamily();
    if (!platform->executableForm().fileName.endsWith(QStringLiteral(".exe"))) {
        QVERIFY(!family);
        return;
    }
    QVERIFY(family && !family->isEmpty());
    QCOMPARE(*family, QApplication::font("QMessageBox").family());
}

void TestPlatform::rightsCanBeTold()
{
    QCOMPARE(platform->isElevated(), CurrentUser::isElevated());
}

void TestPlatform::sleepTakesItsTime()
{
    QElapsedTimer timer;
    timer.start();
    platform->sleep(120);
    QVERIFY2(timer.elapsed() >= 110, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
}

void TestPlatform::queueHoldsABurst()
{
    constexpr int burst = 120; // Qt asks for 50
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    platform->lengthenListenQueue(server.socketDescriptor());
    std::vector<std::unique_ptr<QTcpSocket>> clients;
    for (int i = 0; i < burst; ++i) {
        clients.push_back(std::make_unique<QTcpSocket>());
        clients.back()->connectToHost(server.serverAddress(), server.serverPort());
        // Blocks this thread, so the server accepts nobody meanwhile.
        QVERIFY2(clients.back()->waitForConnected(3000), qPrintable(QString::number(i)));
    }
}

QTEST_MAIN(TestPlatform)
#include "tst_platform.moc"
