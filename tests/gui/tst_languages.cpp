#include "app/translation.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"
#include "ui/messages.h"
#include "ui/toolkittexts.h"
#include "ui/trayicon.h"
#include "updateworld.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QTabWidget>
#include <QtTest>

namespace {

/// Translates each text there is into itself between brackets, so that a text without them is one
/// that no translation can reach.
class Brackets final : public QTranslator
{
public:
    QString translate(const char * /*context*/, const char *source, const char * /*comment*/,
                      int /*n*/) const override
    {
        return QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']');
    }
    bool isEmpty() const override { return false; }
};

bool isBracketed(const QString &text)
{
    return text.startsWith(QLatin1Char('['));
}

/// Every text that a widget shows or that screen readers say of it.
QStringList textsOf(const QWidget &widget)
{
    QStringList texts{widget.accessibleName(), widget.accessibleDescription(), widget.toolTip(),
                      widget.statusTip(), widget.whatsThis()};
    if (const auto *const label = qobject_cast<const QLabel *>(&widget)) {
        texts += label->text();
    } else if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget)) {
        texts += button->text();
    } else if (const auto *const tabs = qobject_cast<const QTabWidget *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts += tabs->tabText(i);
        }
    } else if (const auto *const list = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < list->count(); ++i) {
            texts += list->itemText(i);
        }
    }
    if (widget.isWindow()) {
        texts += widget.windowTitle();
    }
    texts.removeAll(QString());
    return texts;
}

constexpr std::array questions{&Messages::installFirmwareLibrary, &Messages::updateNow,
                               &Messages::updateNeedsRights, &Messages::uninstallNeedsRights,
                               &Messages::perKeyNeedsRights};
constexpr std::array verdicts{VersionVerdict::UpdateWaits, VersionVerdict::Latest,
                              VersionVerdict::Newer};

} // namespace

/// Every text goes through the translation, and every language has them all.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void form();
    void brightness();
    void prompts();
    void statusMessages();
    void versions_data();
    void versions();
    void boxes();
    void trayMenu();
    void square();
    void menuOfAField();
    void toolkitTexts_data();
    void toolkitTexts();
    void boxesShowEverything_data();
    void boxesShowEverything();

private:
    TestWindow &bracketed()
    {
        speak(std::make_unique<Brackets>());
        world = std::make_unique<TestWindow>();
        world->writeSettings("backlight_on=true\nbrightlevel=100\nP751LEDStripe=true\n");
        world->start();
        return *world;
    }
    void speak(std::unique_ptr<QTranslator> spoken)
    {
        translator = std::move(spoken);
        QCoreApplication::installTranslator(translator.get());
    }
    static void addLanguages()
    {
        QTest::addColumn<QString>("code");
        const QStringList codes = Translation::codes(Translation::builtInFolder());
        for (const QString &code : codes) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }

    std::unique_ptr<QTranslator> translator;
    std::unique_ptr<TestWindow> world;
};

void TestLanguages::initTestCase()
{
    QApplication::setStyle(new DarkStyle);
}

void TestLanguages::cleanup()
{
    world.reset();
    translator.reset();
}

void TestLanguages::form()
{
    const MainWindow &window = *bracketed().window;
    int texts = 0;
    auto widgets = window.findChildren<QWidget *>();
    widgets += world->window.get();
    for (const QWidget *const widget : qAsConst(widgets)) {
        if (widget->objectName() == QLatin1String("Title")) {
            continue; // the vendor's
        }
        for (const QString &text : textsOf(*widget)) {
            ++texts;
            QVERIFY2(isBracketed(text), qPrintable(widget->objectName() + QLatin1Char(' ') + text));
        }
    }
    QVERIFY2(texts > 95, qPrintable(QString::number(texts)));
}

void TestLanguages::brightness()
{
    const TestWindow &window = bracketed();
    const auto *const label = window.get<QLabel>("label_2");
    QCOMPARE(label->text(), QStringLiteral("[Brightness Level: 100%]"));
    window.get<QAbstractButton>("CheckBox_AutoDim")->click();
    QCOMPARE(label->text(), QStringLiteral("[Brightness Level: 100% (Auto dim mode)]"));
    window.get<QComboBox>("Combo_Effect")->setCurrentIndex(1);
    QCOMPARE(label->text(), QStringLiteral("[Brightness Level: 100% (disabled for Effects)]"));
}

void TestLanguages::prompts()
{
    const TestWindow &window = bracketed();
    const auto *const prompt = window.get<QLabel>("label_8");
    for (const char *opener :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5"}) {
        const QString before = prompt->text();
        window.get<QAbstractButton>(opener)->click();
        QVERIFY2(isBracketed(prompt->text()) && prompt->text() != before, opener);
        window.get<QAbstractButton>("pushButton_2")->click();
    }
}

void TestLanguages::statusMessages()
{
    MainWindow &window = *bracketed().window;
    const auto *const bar = world->get<QStatusBar>("statusBar");
    QGuiApplication::clipboard()->setText(QStringLiteral("ff0000"));
    window.pasteHex();
    QCOMPARE(bar->currentMessage(), QStringLiteral("[Hex value pasted]"));
    window.copyRGB();
    QCOMPARE(bar->currentMessage(), QStringLiteral("[RGB copied]"));
    window.copyHex();
    QCOMPARE(bar->currentMessage(), QStringLiteral("[Hex copied]"));
    window.copyHexHash();
    QCOMPARE(bar->currentMessage(), QStringLiteral("[Hex # copied]"));
}

void TestLanguages::versions_data()
{
    QTest::addColumn<QByteArray>("latest");
    QTest::newRow("older") << QByteArray("0.0.1");
    QTest::newRow("newer") << QByteArray("99.0.%1"); // which is no placeholder any more
}

void TestLanguages::versions()
{
    QFETCH(QByteArray, latest);
    speak(std::make_unique<Brackets>());
    UpdateWorld update(latest);
    BoxWatcher watcher(QMessageBox::No);
    update.construct();
    QCOMPARE(update.label("Label_SoftwareServerVersion"),
             QLatin1String("[Latest: ") + QString::fromLatin1(latest) + QLatin1Char(']'));
    QVERIFY(isBracketed(update.label("Label_SoftwareVersion")));
    QVERIFY(isBracketed(update.label("Label_SoftwareVersion_desc")));
}

void TestLanguages::boxes()
{
    MainWindow &window = *bracketed().window;
    BoxWatcher watcher(QMessageBox::No);
    int buttons = 0;
    watcher.look = [&](const QMessageBox &box) {
        for (const QAbstractButton *const button : box.buttons()) {
            ++buttons;
            QVERIFY2(isBracketed(button->text()), qPrintable(button->text()));
        }
    };
    for (const Message *const question : questions) {
        ask(&window, *question);
    }
    watcher.answer = QMessageBox::Ok;
    for (const VersionVerdict verdict : verdicts) {
        if (const char *const notice = Messages::versionTexts(verdict).notice) {
            tell(&window, {Messages::updateTitle, notice});
        }
    }
    QCOMPARE(watcher.seen.size(), 7);
    QCOMPARE(buttons, 5 * 2 + 2);
    for (const SeenBox &box : qAsConst(watcher.seen)) {
        QVERIFY2(isBracketed(box.title), qPrintable(box.title));
        QVERIFY2(isBracketed(box.text), qPrintable(box.text));
    }
}

void TestLanguages::trayMenu()
{
    const auto *const icon = bracketed().window->findChild<QSystemTrayIcon *>();
    QStringList entries;
    for (const QAction *const action : icon->contextMenu()->actions()) {
        entries += action->text();
    }
    QCOMPARE(entries, QStringList({QStringLiteral("[Show Interface]"), QStringLiteral("[Exit]")}));
}

void TestLanguages::square()
{
    auto *const square = bracketed().get<QWidget>("svSelector");
    const QString said =
        QAccessible::queryAccessibleInterface(square)->text(QAccessible::Description);
    QVERIFY2(isBracketed(said) && !said.contains(QLatin1Char('%')), qPrintable(said));
}

void TestLanguages::menuOfAField()
{
    const TestWindow &window = bracketed();
    for (const char *name : {"leRGB", "leHex"}) {
        const std::unique_ptr<QMenu> menu(window.get<QLineEdit>(name)->createStandardContextMenu());
        int entries = 0;
        for (const QAction *const action : menu->actions()) {
            if (!action->isSeparator()) {
                ++entries;
                QVERIFY2(isBracketed(action->text()), qPrintable(action->text()));
            }
        }
        QVERIFY(entries >= 7);
    }
}

void TestLanguages::toolkitTexts_data()
{
    addLanguages();
}

void TestLanguages::toolkitTexts()
{
    QFETCH(QString, code);
    const auto translation = Translation::load(Translation::builtInFolder(), code);
    for (const ToolkitText &row : ::toolkitTexts) {
        QVERIFY2(!translation->translate(row.context, row.text, nullptr, -1).isEmpty(), row.text);
    }
}

void TestLanguages::boxesShowEverything_data()
{
    addLanguages();
}

void TestLanguages::boxesShowEverything()
{
    QFETCH(QString, code);
    speak(Translation::load(Translation::builtInFolder(), code));
    const QFont before = QApplication::font();
    for (const int size : {12, 36}) { // those of the least and the greatest display
        QFont font = before;
        font.setPixelSize(size);
        QApplication::setFont(font);
        world = std::make_unique<TestWindow>();
        world->start();
        BoxWatcher watcher(QMessageBox::No);
        watcher.look = [&](QMessageBox &box) {
            const auto *const label = widget<QLabel>(box, "qt_msgbox_label");
            // The window manager may still be at the size that the box had before.
            QTRY_VERIFY2(label->height() >= label->heightForWidth(label->width()),
                         qPrintable(label->text()));
            QTRY_VERIFY(box.rect().contains(QRect(label->mapTo(&box, QPoint()), label->size())));
            QVERIFY(box.width() <= box.screen()->availableSize().width());
            for (const QAbstractButton *const button : box.buttons()) {
                QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->text()));
            }
        };
        for (const Message *const question : questions) {
            ask(world->window.get(), *question);
        }
        QCOMPARE(watcher.seen.size(), int(questions.size()));
        world.reset();
    }
    QApplication::setFont(before);
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
