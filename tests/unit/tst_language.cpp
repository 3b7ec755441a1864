#include "app/language.h"

#include <QTest>

class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void translationForAName_data();
    void translationForAName();
    void translationThatNamesNoLanguage();
    void firstOfTheSameLanguage();
    void choice_data();
    void choice();
};

namespace {

const QStringList translations{QStringLiteral("de"), QStringLiteral("pt_BR"), QStringLiteral("uk"),
                               QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};

} // namespace

void TestLanguage::translationForAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("code");
    const auto row = [](const char *name, const char *code) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(code);
    };
    row("de", "de");
    row("de_DE", "de");
    row("de-AT", "de");
    row("DE", "de");
    row("pt_BR", "pt_BR");
    row("pt-BR", "pt_BR");
    row("pt", "pt_BR");
    row("pt-PT", "pt_BR");
    row("uk", "uk");
    row("zh_CN", "zh_CN");
    row("zh", "zh_CN");
    row("zh-Hans", "zh_CN");
    row("zh-Hans-SG", "zh_CN");
    row("zh_TW", "zh_TW");
    row("zh-Hant-TW", "zh_TW");
    row("zh-Hant", "zh_TW");
    row("zh-HK", "zh_TW");
    row("zh-MO", "zh_TW");
    row("fr", "");
    row("en", "");
    row("C", "");
    row("", "");
    row("xx", "");
    row("german", "");
    row("../de", "");
    row("de.qm/../../x", "de"); // what follows a language counts for nothing
    row("%1", "");
}

void TestLanguage::translationForAName()
{
    QFETCH(QString, name);
    QTEST(translationFor(name, translations), "code");
}

/// As a file may that somebody has put there.
void TestLanguage::translationThatNamesNoLanguage()
{
    const QStringList odd{QStringLiteral("nonsense"), QStringLiteral("C"), QStringLiteral("de")};
    QCOMPARE(translationFor(QStringLiteral("german"), odd), QString());
    QCOMPARE(translationFor(QStringLiteral("C"), odd), QString());
    QCOMPARE(translationFor(QStringLiteral("de"), odd), QStringLiteral("de"));
    // English is no translation of this program's, but may be one of another's.
    QCOMPARE(translationFor(QStringLiteral("en_GB"), {QStringLiteral("en")}), QStringLiteral("en"));
}

void TestLanguage::firstOfTheSameLanguage()
{
    const QStringList several{QStringLiteral("fr"), QStringLiteral("de_AT"),
                              QStringLiteral("de_CH")};
    QCOMPARE(translationFor(QStringLiteral("de_LU"), several), QStringLiteral("de_AT"));
    QCOMPARE(translationFor(QStringLiteral("de_CH"), several), QStringLiteral("de_CH"));
}

void TestLanguage::choice_data()
{
    QTest::addColumn<QString>("vendor");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("unknown");
    const auto row = [](const char *name, const char *vendor, const char *user, const char *system,
                        const char *code, const char *unknown = "") {
        QTest::newRow(name) << QString::fromLatin1(vendor) << QString::fromLatin1(user)
                            << QString::fromLatin1(system) << QString::fromLatin1(code)
                            << QString::fromLatin1(unknown);
    };
    row("nobody chose: English, whatever the system speaks", "", "", "de-DE", "");
    row("the vendor", "de", "", "", "de");
    row("the user", "", "de", "", "de");
    row("the user before the vendor", "de", "uk", "", "uk");
    row("the user's English before the vendor", "de", "en", "de", "");
    row("English by its country", "de", "en_GB", "de", "");
    row("the user follows the system", "", "system", "uk-UA", "uk");
    row("before the vendor, too", "de", "system", "uk-UA", "uk");
    row("the vendor follows the system", "system", "", "uk-UA", "uk");
    row("the user before what the vendor follows", "system", "de", "uk-UA", "de");
    row("in any letters", "", "System", "uk-UA", "uk");
    row("the system's first that there is", "", "system", "fr-FR fr uk de", "uk");
    row("English, where it comes first", "", "system", "fr en-US de", "");
    row("a system of which there is nothing", "de", "system", "fr-FR fr", "");
    row("a system that says nothing", "de", "system", "", "");
    row("a system without a locale", "", "system", "C", "");
    row("the user's unknown one", "", "xx", "", "", "xx");
    row("is not the vendor's", "de", "xx", "de", "", "xx");
    row("the vendor's unknown one", "german", "", "de", "", "german");
    row("the user before the vendor's unknown one", "german", "de", "", "de");
    row("one without a translation", "", "fr", "", "", "fr");
}

void TestLanguage::choice()
{
    QFETCH(QString, vendor);
    QFETCH(QString, user);
    QFETCH(QString, system);
    const LanguageChoice choice = chooseLanguage(
        vendor, user, system.split(QLatin1Char(' '), Qt::SkipEmptyParts), translations);
    QTEST(choice.code, "code");
    QTEST(choice.unknown, "unknown");
}

QTEST_APPLESS_MAIN(TestLanguage)
#include "tst_language.moc"
