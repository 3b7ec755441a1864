#include "examples/agent/answer.h"
#include "fuzz/fuzzwindow.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "lighting/effects.h"
#include "tests/support/guitest.h"
#include "ui/darkstyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 someTime = 1'000'000'000'000;
constexpr ServiceEndpoint anyPort{ServiceEndpoint().address, 0};

QComboBox &effectList(const MainWindow &window)
{
    return *widget<QComboBox>(window, "Combo_Effect");
}

/// What the next agent is told, decoded by the agent's own decoder.
agent::Answer nextAnswer(const MainWindow &window)
{
    const LineInputs inputs{widget<QRadioButton>(window, "backlight_off")->isChecked(),
                            widget<QSlider>(window, "horizontalSlider")->value(),
                            {false, false, false}};
    const LineChoice choice = chooseLine(window.lightingState(), inputs);
    const agent::Decoded decoded = agent::decode(frameLine(choice.line));
    require(std::holds_alternative<agent::Answer>(decoded), "an agent can read the answer");
    return std::get<agent::Answer>(decoded);
}

void checkAnswer(const MainWindow &window)
{
    const agent::Answer answer = nextAnswer(window);
    require(!agent::effectName(answer.effectWord).isEmpty(), "the effect is one of the list");
    for (int zone = 0; zone < agent::zoneCount; ++zone) {
        const quint32 word = answer.zoneWords.at(static_cast<std::size_t>(zone));
        require(word == agent::offWord || agent::zoneColour(zone, word),
                "a zone's word has its zone, or all light is off");
    }
}

void checkControls(const MainWindow &window)
{
    const auto &slider = *widget<QSlider>(window, "horizontalSlider");
    require(slider.value() >= 0 && slider.value() <= 100, "the brightness is a percentage");
    require(effectList(window).currentIndex() >= 0, "an effect is selected");
    require(effectList(window).count() == static_cast<int>(effects.size()), "all are listed");
    require(widget<QComboBox>(window, "comboDimValue")->currentIndex() >= 0,
            "an idle time is selected");
    const bool on = widget<QRadioButton>(window, "backlight_on")->isChecked();
    require(on != widget<QRadioButton>(window, "backlight_off")->isChecked(),
            "the light is on or off");
    const bool perKey = widget<QCheckBox>(window, "UsePerKeyApp")->isChecked();
    require(widget<QTabWidget>(window, "tabWidget_2")->isTabVisible(3) == perKey,
            "the per-key page shows where it is chosen");
    require(window.width() > 0 && window.width() < 20'000 && window.height() < 20'000,
            "the window has a size");
}

/// Qt itself cannot read what it writes of a key that ends in a slash; the file is put aside then.
bool comesBack(const QString &key)
{
    return !key.endsWith(QLatin1Char('/'));
}

/// Whoever else keeps keys in the file keeps them. Of a file that does not parse Qt may have read
/// keys that it cannot write.
void checkForeignKeys(const IniContents &before, const IniContents &after)
{
    const QStringList keys = before.values.keys();
    if (!before.parses || !std::all_of(keys.cbegin(), keys.cend(), comesBack)) {
        return;
    }
    require(after.parses, "what the window has written parses");
    for (auto it = before.values.cbegin(); it != before.values.cend(); ++it) {
        if (!it.key().startsWith(QStringLiteral("settings/"))) {
            require(after.values.value(it.key()) == it.value(), "foreign keys stay as they are");
        }
    }
}

void checkWrites(const FuzzWorld &world, MainWindow &window, const IniContents &before)
{
    auto &box = *widget<QCheckBox>(window, "Check_CloseHides");
    box.click();
    const IniContents after = world.contentsOf(readFile(world.paths().settingsIni()));
    require(after.values.value(settingsPath(SettingKeys::minimizeClose)).toString()
                == (box.isChecked() ? QStringLiteral("true") : QStringLiteral("false")),
            "a choice is on the disk at once");
    checkForeignKeys(before, after);
}

/// The branding's colour, in the palette of a style that reads it anew.
void checkHighlight(const FuzzWorld &world, DarkStyle &style)
{
    const AppSettings &settings = world.paths();
    const QColor expected(settings.read(BrandingKeys::highlightRed),
                          settings.read(BrandingKeys::highlightGreen),
                          settings.read(BrandingKeys::highlightBlue));
    QPalette palette;
    style.polish(palette);
    require(palette.color(QPalette::Active, QPalette::Highlight) == expected,
            "the highlight is the branding's");
}

/// What holds once the settings have been loaded.
void checkLoaded(const FuzzWorld &world, MainWindow &window, const QByteArray &settingsFile)
{
    const IniContents before = world.contentsOf(settingsFile);
    window.delayedApply();
    checkControls(window);
    checkAnswer(window);
    const auto words = nextAnswer(window).zoneWords;
    window.delayedApply();
    require(nextAnswer(window).zoneWords == words, "the settings mean the same once more");
    require(before.parses ? !QFile::exists(world.damagedCopy())
                          : readFile(world.damagedCopy()) == settingsFile,
            "a file that does not parse is put aside as it is");
    checkWrites(world, window, before);
}

/// As the program starts.
void loadByNewWindow(const FuzzWorld &world, const QByteArray &settingsFile)
{
    FakePlatform platform;
    FakePrimaryRole role;
    MainWindow window(
        world.paths(), platform, role, [] { return someTime; }, anyPort);
    require(widget<QLabel>(window, "Title")->text() == world.paths().read(BrandingKeys::appName),
            "the title is the branding's");
    checkLoaded(world, window, settingsFile);
}

/// As it goes on after a resume, with files that have changed meanwhile. Ten times as quick.
void loadByOldWindow(const FuzzWorld &world, const QByteArray &settingsFile,
                     const QByteArray &brandingFile)
{
    static FakePlatform platform;
    static FakePrimaryRole role;
    static auto &window = *new MainWindow(
        world.paths(), platform, role, [] { return someTime; },
        anyPort); // never destroyed
    world.write("[settings]\nP751LEDStripe=true\n", {});
    window.LoadSettings();
    window.delayedApply();

    world.write(settingsFile, brandingFile);
    window.LoadSettings();
    window.SetAppVersion();
    checkLoaded(world, window, settingsFile);
}

/// Never destroyed: an application that outlives main() pulls down what is gone already.
DarkStyle &startApplication()
{
    static int argc = 1;
    static std::array<char *, 2> argv{qstrdup("settings"), nullptr};
    new QApplication(argc, argv.data());
    auto *const style = new DarkStyle;
    QApplication::setStyle(style); // the application takes ownership
    return *style;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static DarkStyle &style = startApplication();
    static const FuzzWorld world;

    Input input(data, size);
    const QByteArray settingsFile = input.takePart();
    const QByteArray brandingFile = input.takePart();
    world.write(settingsFile, brandingFile);
    checkHighlight(world, style);
    if ((settingsFile.size() + brandingFile.size()) % 8 == 0) {
        loadByNewWindow(world, settingsFile);
    } else {
        loadByOldWindow(world, settingsFile, brandingFile);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    world.clean();
    return 0;
}
