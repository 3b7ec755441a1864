#include "app/instancename.h"

#include <QTest>

namespace {

constexpr int everything = 0;

InstanceIdentity someone()
{
    return {QStringLiteral("Lumikey"),
            QStringLiteral("Org"),
            QStringLiteral("org.example"),
            QStringLiteral("1.0.4"),
            QStringLiteral("C:/Apps/Lumikey/Lumikey.exe"),
            QString::fromUtf8("Zoë"),
            {QStringLiteral("C:/Users/zoe"), QStringLiteral("D:/other")}};
}

} // namespace

/// The expected names were made by another program from the list of what is hashed.
class TestInstanceName : public QObject
{
    Q_OBJECT

private slots:
    void options_data();
    void options();
    void homesStandInForTheUser();
    void fields_data();
    void fields();
    void defaultsOfTheToolkit();
    void pathsCaseDoesNotMatter();
    void slashes();
};

void TestInstanceName::options_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << 0 << QStringLiteral("3ECdAM8E8xxbGHGZIIAdzYWnynVE6aNONksqC3CSYqQ=");
    QTest::newRow("user") << 1 << QStringLiteral("iHAs+QLpbdjCjPoK9urI0rQ3L6dIg7ERWiYChiwkYTo=");
    QTest::newRow("another option, alone")
        << 4 << QStringLiteral("3ECdAM8E8xxbGHGZIIAdzYWnynVE6aNONksqC3CSYqQ=");
    QTest::newRow("no version") << 8
                                << QStringLiteral("T41Ju+AL7AlwozLx0TdSlFP8nIB4jpAca4h+_tAM7GE=");
    QTest::newRow("no path") << 16
                             << QStringLiteral("YbLT3+ASBzMtvcOqKwGUi_I5gHz3pyIf7GveE82Yra0=");
    QTest::newRow("neither") << 24
                             << QStringLiteral("TevFhskLZXANxWs3g7DQj_gDQc4Ux1D6PrlMNvAa1cg=");
    QTest::newRow("neither, and the user")
        << 25 << QStringLiteral("U9+Xj4OUQSiLhJVNN91iYBtV9HZ_njUx2k8QLOr7Rlc=");
}

void TestInstanceName::options()
{
    QFETCH(int, options);
    QTEST(instanceName(someone(), options), "name");
}

void TestInstanceName::homesStandInForTheUser()
{
    InstanceIdentity identity = someone();
    identity.userName.reset();
    QCOMPARE(instanceName(identity, InstanceOptions::perUser),
             QStringLiteral("nAMfvJ8PJjuBRufopn5WvXnY1sHhU+2ZIczh11T6y+4="));
}

void TestInstanceName::fields_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<bool>("counts");
    QTest::newRow("application") << 0 << true;
    QTest::newRow("organisation") << 1 << true;
    QTest::newRow("domain") << 2 << true;
    QTest::newRow("version") << 3 << true;
    QTest::newRow("path") << 4 << true;
    QTest::newRow("user") << 5 << true;
    QTest::newRow("homes of a known user") << 6 << false;
}

void TestInstanceName::fields()
{
    QFETCH(int, field);
    InstanceIdentity identity = someone();
    const std::array<QString *, 6> texts{
        &identity.applicationName,    &identity.organizationName,    &identity.organizationDomain,
        &identity.applicationVersion, &identity.applicationFilePath, &*identity.userName};
    if (field < static_cast<int>(texts.size())) {
        texts.at(static_cast<std::size_t>(field))->append(QLatin1Char('x'));
    } else {
        identity.homeLocations.append(QStringLiteral("x"));
    }
    QTEST(instanceName(identity, InstanceOptions::perUser)
              != instanceName(someone(), InstanceOptions::perUser),
          "counts");
}

void TestInstanceName::defaultsOfTheToolkit()
{
    InstanceIdentity identity;
    identity.applicationName = QStringLiteral("Lumikey");
    identity.applicationFilePath = QStringLiteral("/opt/Lumikey/Lumikey");
    identity.userName = QStringLiteral("root");
    QCOMPARE(instanceName(identity, InstanceOptions::perUser),
             QStringLiteral("EIv1NcgFyGrQRCpXXNfG8r8szh2he67A6Loo0mWM+Wo="));
    QCOMPARE(instanceName({}, everything),
             QStringLiteral("A03W2OgKz2PbX90sOIq8QSkVhDFztupUz6liMhn8SH0="));
}

void TestInstanceName::pathsCaseDoesNotMatter()
{
    InstanceIdentity identity = someone();
    identity.applicationFilePath = QStringLiteral("c:/APPS/lumikey/LUMIKEY.EXE");
    QCOMPARE(instanceName(identity, everything), instanceName(someone(), everything));
}

void TestInstanceName::slashes()
{
    InstanceIdentity identity;
    identity.applicationName = QStringLiteral("app0"); // its Base64 text has a slash
    QCOMPARE(instanceName(identity, everything),
             QStringLiteral("8lffoi1Vtvr2wTUT+CV0UThtbPIuJZrDqIajA_xIv74="));
}

QTEST_GUILESS_MAIN(TestInstanceName)
#include "tst_instancename.moc"
