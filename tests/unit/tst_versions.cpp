#include "system/versions.h"

#include <QTest>

Q_DECLARE_METATYPE(VersionVerdict)

/// What the comparison of two version texts says.
class TestVersions : public QObject
{
    Q_OBJECT

private slots:
    void comparison_data();
    void comparison();
    void verdicts_data();
    void verdicts();
};

void TestVersions::comparison_data()
{
    QTest::addColumn<QString>("installed");
    QTest::addColumn<QString>("latest");
    QTest::addColumn<qint64>("result");
    const auto row = [](const char *installed, const char *latest, qint64 result) {
        const QByteArray shown = QByteArray(latest).replace('\n', "\\n").replace('\r', "\\r");
        QTest::addRow("%s and '%s'", installed, shown.constData())
            << QString::fromLatin1(installed) << QString::fromLatin1(latest) << result;
    };
    row("1.0.4", "1.0.4", 0);
    row("1.0.4", "1.0.3", 1);
    row("1.0.4", "1.0.5", -1);
    row("1.0.4", "1.0.10", -6);
    row("1.0.4", "1.1", -1);
    row("1.0.4", "2", -1);
    row("1.0.4", "0.9.9", 1);
    row("1.0.4", "1.0", 1);
    row("1.0.4", "1", 2);
    row("1.0.4", "1.0.4.0", -1);
    row("1.0.4", "1.0.4.0.0", -2);
    row("1.0.4", "1.0.4.", -1);
    // Empty, and what is not a number, is one part worth 0.
    row("1.0.4", "", 1);
    row("0.4", "", 1);
    row("1.0.4", ".", 1);
    row("1.0.4", "v1.0.5", 1);
    row("1.0.4", "1.0.5-beta", 4);
    row("1.0.4", "1.x.4", 0);
    row("1.0.4", "<html><body>404 Not Found</body></html>", 1);
    // Blanks around a number belong to its text form, a line feed among them.
    row("1.0.4", "1.0.4\n", 0);
    row("1.0.4", "1.0.5\r\n", -1);
    row("1.0.4", " 1.0.5", -1);
    row("1.0.4", "1.0.\n5", -1);
    row("1.0.4", "1.0 .5", -1);
    row("1.0.4", "1.0.-5", 9);
    row("1.0.4", "1.0.0005", -1);
    row("1.0.4", "1.0.0x9", 4);
    // Beyond 32 bits a part is no number; the widest difference still fits.
    row("1.0.4", "1.0.2147483648", 4);
    row("1.0.2147483647", "1.0.-2147483648", 4294967295);
    row("1.0.-2147483648", "1.0.2147483647", -4294967295);
}

void TestVersions::comparison()
{
    QFETCH(QString, installed);
    QFETCH(QString, latest);
    QTEST(compareVersions(installed, latest), "result");
}

void TestVersions::verdicts_data()
{
    QTest::addColumn<qint64>("comparison");
    QTest::addColumn<VersionVerdict>("verdict");
    QTest::newRow("far below") << qint64{-4294967295} << VersionVerdict::UpdateWaits;
    QTest::newRow("below") << qint64{-1} << VersionVerdict::UpdateWaits;
    QTest::newRow("equal") << qint64{0} << VersionVerdict::Latest;
    QTest::newRow("above") << qint64{1} << VersionVerdict::Newer;
    QTest::newRow("far above") << qint64{4294967295} << VersionVerdict::Newer;
}

void TestVersions::verdicts()
{
    QFETCH(qint64, comparison);
    QTEST(versionVerdict(comparison), "verdict");
}

QTEST_GUILESS_MAIN(TestVersions)
#include "tst_versions.moc"
