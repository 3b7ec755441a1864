#include "examples/agent/answer.h"
#include "system/testing/desktop.h"
#include "tests/e2e/documentpages.h"
#include "tests/e2e/programlines.h"
#include "tests/support/guitest.h"
#include "tests/support/patience.h"
#include "tests/support/programprocess.h"
#include "tests/support/programwindow.h"
#include "tests/support/serviceclient.h"
#include "tests/support/testpaths.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QStandardPaths>
#include <QTest>

namespace {

const QString effectNone = QStringLiteral("effect 0x00000000");

const QString page = QStringLiteral("docs/agent-protocol.md");

/// One of the agents, running.
class MinimalAgent
{
public:
    explicit MinimalAgent(const QStringList &command)
    {
        process.setStandardOutputFile(folder.filePath(QStringLiteral("output")));
        process.start(command.first(), command.mid(1));
    }
    ~MinimalAgent()
    {
        process.kill();
        if (!QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; },
                             patienceMs)) {
            process.waitForFinished();
        }
    }
    Q_DISABLE_COPY(MinimalAgent)

    /// All lines so far, but those that were taken.
    QStringList lines() const
    {
        const QString text = QString::fromUtf8(readFile(folder.filePath(QStringLiteral("output"))))
                                 .remove(QLatin1Char('\r'));
        return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(taken);
    }
    /// Waits until the newest line is @p line, and takes all so far; these.
    QStringList take(const QString &line)
    {
        if (!QTest::qWaitFor([&] { return !lines().isEmpty() && lines().last() == line; },
                             patienceMs)) {
            qWarning("the agent did not come to: %s", qPrintable(line));
        }
        const QStringList found = lines();
        taken += found.size();
        return found;
    }

    QProcess process;

private:
    QTemporaryDir folder;
    int taken = 0;
};

} // namespace

/// The page for authors of agents: its agents follow the real program, its figures are the
/// program's.
class TestMinimalAgents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pageHoldsTheSources_data();
    void pageHoldsTheSources();
    void dumpOnThePage();
    void effectsOnThePage();
    void outputOnThePage_data();
    void outputOnThePage();
    void changes_data();
    void changes();

private:
    void startShown();
    void clickOn(const char *name) const
    {
        ProgramWindow::click(ProgramWindow::onScreen(*twin->window, name));
    }
    void chooseEffect(const QStringList &keys) const
    {
        clickOn("Combo_Effect");
        QTest::qWait(500); // the list opens
        Desktop::press(keys + QStringList{QStringLiteral("Return")});
    }

    std::unique_ptr<ProgramProcess> program;
    std::unique_ptr<TestWindow> twin;
};

void TestMinimalAgents::initTestCase()
{
    QApplication::setStyle(new DarkStyle);
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
}

void TestMinimalAgents::pageHoldsTheSources_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("Python") << QStringLiteral("python") << QStringLiteral("agent.py");
    QTest::newRow("PowerShell") << QStringLiteral("powershell") << QStringLiteral("agent.ps1");
    QTest::newRow("C++") << QStringLiteral("cpp") << QStringLiteral("agent.cpp");
}

void TestMinimalAgents::pageHoldsTheSources()
{
    QFETCH(QString, language);
    QFETCH(QString, file);
    const QString source = DocumentPages::text(QStringLiteral("examples/minimal/") + file);
    QVERIFY(!source.isEmpty());
    QCOMPARE(DocumentPages::block(page, language), source);
}

void TestMinimalAgents::dumpOnThePage()
{
    program = std::make_unique<ProgramProcess>();
    const QByteArray settings = DocumentPages::block(page, QStringLiteral("ini")).toUtf8();
    QVERIFY(settings.startsWith("[settings]\n"));
    writeFile(ProgramProcess::settingsFile(), settings);
    QVERIFY(program->startAndServe());
    QTest::qWait(Lines::appliedAfterMs);
    ServiceClient::readLine(); // the two that wake the keyboard
    ServiceClient::readLine();
    const QByteArray answer = ServiceClient::readAnswer();

    QByteArray hex;
    const QStringList lines = DocumentPages::block(page, QStringLiteral("dump"))
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        QCOMPARE(line.section(QLatin1Char(':'), 0, 0).toInt(nullptr, 16), hex.size() / 2);
        hex += line.mid(10, 47).remove(QLatin1Char(' ')).toLatin1();
    }
    QCOMPARE(hex, answer.toHex());
    QCOMPARE(DocumentPages::block(page, QStringLiteral("line")).trimmed(),
             ServiceClient::lineOf(answer));
}

void TestMinimalAgents::effectsOnThePage()
{
    const QString text = DocumentPages::text(page);
    int index = 0;
    for (const agent::Effect &effect : agent::effects) {
        const QString row = QString::asprintf("\n| %d | %s | %u | 0x%08x |\n", index++, effect.name,
                                              effect.word, effect.word);
        QVERIFY2(text.contains(row), qPrintable(row));
    }
}

void TestMinimalAgents::outputOnThePage_data()
{
    changes_data();
}

/// What an agent prints that was there first, with the page's settings.
void TestMinimalAgents::outputOnThePage()
{
    QFETCH(QStringList, command);
    if (QStandardPaths::findExecutable(command.first()).isEmpty()) {
        QSKIP(qPrintable(command.first() + QStringLiteral(" is not on this system")));
    }
    const QByteArray settings = DocumentPages::block(page, QStringLiteral("ini")).toUtf8();
    const QStringList onThePage = DocumentPages::block(page, QStringLiteral("output"))
                                      .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(onThePage.size() >= 2);
    twin.reset();
    program = std::make_unique<ProgramProcess>();
    writeFile(ProgramProcess::settingsFile(), settings);
    MinimalAgent agent(command);
    QVERIFY(agent.process.waitForStarted());
    startShown();
    twin = std::make_unique<TestWindow>();
    twin->writeSettings(settings.mid(int(qstrlen("[settings]\n"))));
    twin->start();
    QStringList printed = agent.take(onThePage.at(onThePage.size() - 2));
    clickOn("backlight_off");
    printed += agent.take(onThePage.last());
    // One that finds Lumikey only when its settings are applied has not seen it without them.
    QStringList late = onThePage;
    late.erase(late.begin() + 1, late.begin() + 3);
    QVERIFY2(printed == onThePage || printed == late, qPrintable(printed.join(QLatin1Char('\n'))));
}

void TestMinimalAgents::changes_data()
{
    QTest::addColumn<QStringList>("command");
    // With its drive, where there are drives: the current directory is another one later.
    QTest::newRow("C++") << QStringList{
        TestPaths::helper(QStringLiteral(LUMIKEY_MINIMAL_AGENT_PATH))};
    QTest::newRow("Python") << QStringList{
        QStringLiteral("python3"),
        DocumentPages::path(QStringLiteral("examples/minimal/agent.py"))};
    QTest::newRow("PowerShell") << QStringList{
        QStringLiteral("pwsh"), QStringLiteral("-NoProfile"), QStringLiteral("-File"),
        DocumentPages::path(QStringLiteral("examples/minimal/agent.ps1"))};
}

void TestMinimalAgents::startShown()
{
    QVERIFY(program->startAndServe());
    QTRY_VERIFY(ProgramWindow::shown() != 0);
    QTest::qWait(Lines::appliedAfterMs);
}

void TestMinimalAgents::changes()
{
    QFETCH(QStringList, command);
    if (QStandardPaths::findExecutable(command.first()).isEmpty()) {
        QSKIP(qPrintable(command.first() + QStringLiteral(" is not on this system")));
    }
    twin.reset();
    program = std::make_unique<ProgramProcess>();
    ProgramProcess::writeSettings(Lines::threeZonesSettings);
    startShown();
    twin = std::make_unique<TestWindow>();
    twin->writeSettings(Lines::threeZonesSettings);
    twin->start();
    const QString wake = QStringLiteral("wake");
    const QString zones = QStringLiteral("left #ff0000, centre #00ff00, right #0000ff, ");

    MinimalAgent agent(command);
    QVERIFY(agent.process.waitForStarted());
    const QString first = zones + QStringLiteral("stripe #010203, ") + effectNone;
    QCOMPARE(agent.take(first), QStringList({wake, first}));

    const QString off = QStringLiteral("off, ") + effectNone;
    clickOn("backlight_off");
    QCOMPARE(agent.take(off), QStringList{off});

    // The stripe stays black until the slider moves.
    const QString black = zones + QStringLiteral("stripe #000000, ");
    clickOn("backlight_on");
    QCOMPARE(agent.take(black + effectNone), QStringList({wake, black + effectNone}));

    const QString wave = black + QStringLiteral("effect 0xb0000000");
    chooseEffect({QStringLiteral("End")});
    QCOMPARE(agent.take(wave), QStringList{wave});
    chooseEffect({QStringLiteral("Home")});
    QCOMPARE(agent.take(black + effectNone), QStringList{black + effectNone});

    clickOn("colorpick1");
    twin->get<QAbstractButton>("colorpick1")->click();
    QTest::qWait(500);
    clickOn("leRGB");
    Desktop::press({QStringLiteral("ctrl+a")});
    for (const QChar letter : QStringLiteral("0 128 255")) {
        Desktop::press({letter == QLatin1Char(' ') ? QStringLiteral("space") : QString(letter)});
    }
    clickOn("pushButton");
    const QString blue =
        QStringLiteral("left #0080ff, centre #00ff00, right #0000ff, stripe #000000, ")
        + effectNone;
    QCOMPARE(agent.take(blue), QStringList{blue});

    twin->get<QAbstractButton>("pushButton")->click();
    clickOn("horizontalSlider"); // takes the focus
    Desktop::press({QStringLiteral("Home")});
    QVERIFY(agent.take(off).endsWith(off));

    // Away and back: what is the same as before is news all the same.
    program->kill();
    QTest::qWait(2500); // the agent notices
    startShown();
    QVERIFY(agent.take(off).endsWith(off));
    QCOMPARE(agent.process.state(), QProcess::Running);
}

QTEST_MAIN(TestMinimalAgents)
#include "tst_minimalagents.moc"
