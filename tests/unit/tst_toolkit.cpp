#include "app/toolkit.h"

#include <QGuiApplication>
#include <QTest>

/// What the toolkit knows of the program. There is no application object: with one, some of it
/// would come too late.
class TestToolkit : public QObject
{
    Q_OBJECT

private slots:
    void preparedBeforeTheApplication();
    void adaptedBehindIt();
    void identity();
};

void TestToolkit::preparedBeforeTheApplication()
{
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_DisableHighDpiScaling));
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_ForceRasterWidgets));
    Toolkit::prepare();
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_DisableHighDpiScaling));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_ForceRasterWidgets));
    QVERIFY(!QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
}

void TestToolkit::adaptedBehindIt()
{
    QVERIFY(QGuiApplication::isFallbackSessionManagementEnabled());
    Toolkit::adapt();
    QVERIFY(!QGuiApplication::isFallbackSessionManagementEnabled());
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
}

void TestToolkit::identity()
{
    Toolkit::identify(QStringLiteral("1.2.3"));
    QCOMPARE(QCoreApplication::organizationDomain(), QStringLiteral("TARVENWORKS"));
    QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("TARVENWORKS"));
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Lumikey"));
    QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("1.2.3"));
}

QTEST_APPLESS_MAIN(TestToolkit)
#include "tst_toolkit.moc"
