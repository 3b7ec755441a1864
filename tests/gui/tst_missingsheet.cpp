#include "tests/support/testwindow.h"

#include <QApplication>
#include <QProcess>
#include <QTest>

/// A program whose style sheet has not been built into it says so, and goes on without.
class TestMissingSheet : public QObject
{
    Q_OBJECT

private slots:
    void isTold_data();
    void isTold();
};

void TestMissingSheet::isTold_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QByteArray>("told");
    QTest::newRow("missing") << QStringLiteral("without")
                             << QByteArray("Unable to set stylesheet, file not found\n");
    QTest::newRow("there") << QStringLiteral("with") << QByteArray();
}

void TestMissingSheet::isTold()
{
    QFETCH(QString, argument);
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationFilePath(), {argument});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QTEST(program.readAllStandardOutput().replace("\r\n", "\n"), "told");
}

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QString mode = application.arguments().value(1);
    const bool missing = mode == QLatin1String("without");
    if (missing || mode == QLatin1String("with")) {
        if (missing) {
            Q_CLEANUP_RESOURCE(darkstyle);
        }
        TestWindow world;
        world.construct();
        return qApp->styleSheet().isEmpty() == missing ? 0 : 1;
    }
    TestMissingSheet test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_missingsheet.moc"
