#include "app/appsettings.h"
#include "app/translation.h"
#include "tests/support/guitest.h"

#include <QCoreApplication>
#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr const char *firstLabel = "Backlight Status";

QStringList logged;

QString shown(const char *text)
{
    return QCoreApplication::translate("MainWindow", text);
}

} // namespace

// A static library's resources; outside any namespace, as the macro demands.
static void registerBadTranslations()
{
    Q_INIT_RESOURCE(badtranslations);
}

/// How the program comes to speak a language, and what becomes of bad files and texts.
class TestTranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void form_data();
    void form();
    void codesAreInTheNamesOfFiles();
    void noFileOfAShorterName();
    void everyLanguageSpeaks_data();
    void everyLanguageSpeaks();
    void choices_data();
    void choices();
    void brokenTexts();
    void foreignFiles_data();
    void foreignFiles();
    void damagedFiles_data();
    void damagedFiles();

private:
    AppSettings settings() const
    {
        return AppSettings(folder->filePath(QStringLiteral("Documents")));
    }
    void choose(const QByteArray &language) const
    {
        writeFile(settings().settingsIni(), "[settings]\nlanguage=" + language + '\n');
    }

    std::unique_ptr<QTemporaryDir> folder;
    QString startDirectory;
};

void TestTranslation::initTestCase()
{
    registerBadTranslations();
    startDirectory = QDir::currentPath();
}

void TestTranslation::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QDir::setCurrent(folder->path());
    logged.clear();
}

void TestTranslation::cleanup()
{
    const auto spoken = QCoreApplication::instance()->findChildren<QTranslator *>();
    qDeleteAll(spoken);
    QDir::setCurrent(startDirectory);
}

void TestTranslation::form_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translated");
    QTest::addColumn<bool>("kept");
    const auto row = [](const char *source, const char *translated, bool kept) {
        QTest::addRow("%s: %s", source, translated)
            << QString::fromLatin1(source) << QString::fromLatin1(translated) << kept;
    };
    row("words", "other words", true);
    row("%1 of %2", "%2, %1", true);
    row("%1%", "%%1", true);
    row("%1%", "%1 %", true);
    row("100 % sure", "100 % sicher", true);
    row("100% sure", "sicher", true);
    row("%1", "", false);
    row("%1", "%2", false);
    row("%1", "%11", false);
    row("%1", "%L1", false);
    row("%1", "%1 %1", false);
    row("%1 %2", "%1", false);
    row("words", "%1", false);
    row("a\nb", "c\nd", true);
    row("a\nb", "c d", false);
    row("a b", "c\nd", false);
    row("a b\n", "c d\n", true);
    row("a b\n", "c\nd", false);
    row("a b\n", "c d", false);
}

void TestTranslation::form()
{
    QFETCH(QString, source);
    QFETCH(QString, translated);
    QTEST(keepsForm(source, translated), "kept");
}

void TestTranslation::codesAreInTheNamesOfFiles()
{
    const QString place = folder->filePath(QStringLiteral("translations"));
    for (const char *name : {"lumikey_pt_BR.qm", "lumikey_de.qm", "lumikey_.qm", "lumikey_fr.ts",
                             "other_it.qm", "mylumikey_ja.qm", "lumikey_ko.qm.old"}) {
        writeFile(place + QLatin1Char('/') + QLatin1String(name), "any");
    }
    QVERIFY(QDir().mkpath(place + QStringLiteral("/lumikey_es.qm")));
    QCOMPARE(Translation::codes(place),
             QStringList({QStringLiteral("de"), QStringLiteral("pt_BR")}));
    QCOMPARE(Translation::codes(folder->filePath(QStringLiteral("missing"))), QStringList());
}

/// The toolkit itself would be content with one.
void TestTranslation::noFileOfAShorterName()
{
    const QString place = folder->filePath(QStringLiteral("translations"));
    writeFile(place + QStringLiteral("/lumikey_de.qm"),
              readFile(Translation::builtInFolder() + QStringLiteral("/lumikey_de.qm")));
    QVERIFY(Translation::load(place, QStringLiteral("de")));
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QStringLiteral("Cannot read translation: ") + place
                                                + QStringLiteral("/lumikey_de_AT.qm")));
    QVERIFY(!Translation::load(place, QStringLiteral("de_AT")));
}

void TestTranslation::everyLanguageSpeaks_data()
{
    QTest::addColumn<QString>("code");
    const QStringList codes = Translation::codes(Translation::builtInFolder());
    // Those that must not get lost; another one need not stand here.
    for (const char *code :
         {"de", "fr", "es", "it", "pt_BR", "pl", "tr", "ru", "uk", "zh_CN", "zh_TW", "ja", "ko"}) {
        QVERIFY2(codes.contains(QLatin1String(code)), code);
    }
    for (const QString &code : codes) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

void TestTranslation::everyLanguageSpeaks()
{
    QFETCH(QString, code);
    choose(code.toLatin1());
    speakChosenLanguage(settings(), {});
    QVERIFY(shown(firstLabel) != QLatin1String(firstLabel));
}

void TestTranslation::choices_data()
{
    QTest::addColumn<QByteArray>("vendor");
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("line"); // in the log
    const QString english = QString::fromLatin1(firstLabel);
    const QString german = QStringLiteral("Tastaturbeleuchtung");
    QTest::newRow("none") << QByteArray() << QByteArray() << english << QString();
    QTest::newRow("vendor") << QByteArray("de") << QByteArray() << german << QString();
    QTest::newRow("user") << QByteArray() << QByteArray("de") << german << QString();
    QTest::newRow("user first") << QByteArray("de") << QByteArray("en") << english << QString();
    QTest::newRow("system") << QByteArray() << QByteArray("system") << german << QString();
    QTest::newRow("unknown") << QByteArray("de") << QByteArray("xx") << english
                             << QStringLiteral("Unknown language: \"xx\"");
    QTest::newRow("a path") << QByteArray() << QByteArray("../../de") << english
                            << QStringLiteral("Unknown language: \"../../de\"");
    QTest::newRow("lines") << QByteArray() << QByteArray(R"("x\ny")") << english
                           << QStringLiteral("Unknown language: \"x\\ny\"");
}

void TestTranslation::choices()
{
    QFETCH(QByteArray, vendor);
    QFETCH(QByteArray, user);
    QFETCH(QString, line);
    if (!user.isEmpty()) {
        choose(user);
    }
    writeFile(QStringLiteral("branding/lumikey_branding.ini"),
              "[settings]\n" + (vendor.isEmpty() ? QByteArray() : "language=" + vendor + '\n'));
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { logged += text; });
    speakChosenLanguage(settings(), {QStringLiteral("de-DE")});
    qInstallMessageHandler(before);
    QTEST(shown(firstLabel), "label");
    QCOMPARE(logged, line.isEmpty() ? QStringList() : QStringList(line));
}

/// They show in English, and each is one line in the log however often it shows; the others of the
/// same file are translated.
void TestTranslation::brokenTexts()
{
    choose("de");
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { logged += text; });
    const auto putBack = qScopeGuard([before] { qInstallMessageHandler(before); });
    speakChosenLanguage(settings(), {}, QStringLiteral(":/badtranslations"));
    QCOMPARE(logged, QStringList());
    QCOMPARE(shown(firstLabel), QStringLiteral("Beleuchtung"));
    int lines = 0;
    for (const char *text : {"Installed: %1", "Latest: %1",
                             "You are running the latest version, there is no update.\n"}) {
        QCOMPARE(shown(text), QString::fromLatin1(text));
        QCOMPARE(shown(text), QString::fromLatin1(text));
        QCOMPARE(logged.size(), ++lines);
        QVERIFY(logged.last().startsWith(QLatin1String("Placeholders or line ends differ")));
    }
    for (const char *text : {"Settings", "%1 of %2"}) { // which that file lacks
        QCOMPARE(shown(text), QString::fromLatin1(text));
    }
    QCOMPARE(logged.size(), lines);
}

void TestTranslation::foreignFiles_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::newRow("of another program") << QByteArray("es");
    QTest::newRow("into another language") << QByteArray("fr");
}

void TestTranslation::foreignFiles()
{
    QFETCH(QByteArray, code);
    choose(code);
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { logged += text; });
    speakChosenLanguage(settings(), {}, QStringLiteral(":/badtranslations"));
    qInstallMessageHandler(before);
    QCOMPARE(shown(firstLabel), QString::fromLatin1(firstLabel));
    QCOMPARE(logged.size(), 1);
    QVERIFY2(logged.first().startsWith(QLatin1String("Not a translation of Lumikey")),
             qPrintable(logged.first()));
}

void TestTranslation::damagedFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("line"); // in the log begins so
    const QString unreadable = QStringLiteral("Cannot read translation:");
    const QByteArray whole =
        readFile(Translation::builtInFolder() + QStringLiteral("/lumikey_de.qm"));
    QVERIFY(whole.size() > 1000);
    QTest::newRow("empty") << QByteArray() << unreadable;
    QTest::newRow("some text") << QByteArray("[settings]\nlanguage=de\n") << unreadable;
    QTest::newRow("cut off") << whole.left(whole.size() / 2) << unreadable;
    QTest::newRow("of another kind") << "\x89PNG" + whole.mid(4) << unreadable;
    QTest::newRow("no text in it")
        << whole.left(16) << QStringLiteral("Not a translation of Lumikey into de:");
}

void TestTranslation::damagedFiles()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    writeFile(folder->filePath(QStringLiteral("translations/lumikey_de.qm")), content);
    choose("de");
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { logged += text; });
    speakChosenLanguage(settings(), {}, folder->filePath(QStringLiteral("translations")));
    qInstallMessageHandler(before);
    QCOMPARE(shown(firstLabel), QString::fromLatin1(firstLabel));
    QCOMPARE(logged.size(), 1);
    QVERIFY2(logged.first().startsWith(line), qPrintable(logged.first()));
}

QTEST_GUILESS_MAIN(TestTranslation)
#include "tst_translation.moc"
