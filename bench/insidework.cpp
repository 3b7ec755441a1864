#include "app/appsettings.h"
#include "colorpicker/svpicture.h"
#include "lighting/devicewords.h"
#include "system/testing/filesmade.h"
#include "tests/support/testwindow.h"
#include "ui/keyboardpictures.h"
#include "ui/mainwindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QSettings>
#include <QSlider>
#include <QTextStream>

#include <functional>

#include <malloc.h>

// Work inside the program, each beside the plain way to do the same, in turns:
//
//   insidework square|step|write|foreign ROUNDS    one line a round: microseconds of both
//   insidework written ROUNDS                      one line a round: files and bytes of both
//   insidework changes COUNT                       one line a sample: memory, and how much of the
//                                                  heap is in use, in KiB
//
// Ends with 1 where both ways do not come to the same result.
namespace {

constexpr int foreignKeys = 10'000;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

double microsecondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1000;
}

/// Measures in turns and prints each round, per piece of work.
void inTurns(int rounds, int pieces, const std::function<void(int)> &program,
             const std::function<void(int)> &baseline)
{
    const auto all = [pieces](const std::function<void(int)> &work) {
        return microsecondsOf([&] {
                   for (int piece = 0; piece < pieces; ++piece) {
                       work(piece);
                   }
               })
               / pieces;
    };
    all(program); // both warm
    all(baseline);
    for (int round = 0; round < rounds; ++round) {
        const double first = all(program);
        const double second = all(baseline);
        out() << first << ' ' << second << '\n';
    }
}

QImage plainSquare(int hue)
{
    constexpr int size = 256;
    QImage picture(size, size, QImage::Format_RGB32);
    for (int row = 0; row < size; ++row) {
        auto *const line = reinterpret_cast<QRgb *>(picture.scanLine(row));
        for (int saturation = 0; saturation < size; ++saturation) {
            line[saturation] = QColor::fromHsv(hue, saturation, size - 1 - row).rgb();
        }
    }
    return picture;
}

int square(int rounds)
{
    constexpr int hues = 360;
    for (int hue = 0; hue < hues; ++hue) {
        if (svPicture(hue) != plainSquare(hue)) {
            qCritical("the pictures of hue %d differ", hue);
            return 1;
        }
    }
    inTurns(rounds, hues, svPicture, plainSquare);
    return 0;
}

/// The window of a settings file with the whole keyboard in one colour, shown.
class ShownWindow
{
public:
    ShownWindow()
    {
        world.settings = AppSettings(world.folder.filePath(QStringLiteral("Documents")));
        const QDir pictures(QCoreApplication::applicationDirPath()
                            + QStringLiteral("/../bin/branding"));
        const QStringList names = pictures.entryList(QDir::Files);
        for (const QString &name : names) {
            QFile::copy(pictures.filePath(name), QStringLiteral("branding/") + name);
        }
        world.writeBranding({});
        world.writeSettings("backlight_on=true\nbrightlevel=100\nsinglecolorselectedlast=true\n"
                            "Zone4Color=0 120 255\nStripeLid=0 255 0\n");
        world.start().show();
        slider = world.get<QSlider>("horizontalSlider");
        for (const char *const name : {"keyboard_left", "keyboard_center", "keyboard_right",
                                       "keyboard_full", "stripe_led"}) {
            labels.append(world.get<QLabel>(name));
        }
        QCoreApplication::processEvents();
    }

    /// What the program does within 100 ms of each move of the slider.
    void step() const
    {
        world.window->brightnessapply();
        QCoreApplication::processEvents();
    }

    /// The same, but that every picture is decoded from its file.
    void decodingStep()
    {
        const QString colour = world.window->lightingState().singleZoneColor;
        const QString stripeColour = world.window->lightingState().stripeLidColor;
        const auto brightness = static_cast<uint>(slider->value());
        words.stripeWord = wordText(deviceWord(Zone::Stripe, stripeColour, brightness));
        decode(KeyboardPicture::Stripe, stripeColour, brightness);
        words.leftWord = wordText(deviceWord(Zone::Left, colour, brightness));
        words.centreWord = wordText(deviceWord(Zone::Centre, colour, brightness));
        words.rightWord = wordText(deviceWord(Zone::Right, colour, brightness));
        for (const auto picture : {KeyboardPicture::Left, KeyboardPicture::Centre,
                                   KeyboardPicture::Right, KeyboardPicture::Full}) {
            decode(picture, colour, brightness);
        }
        world.settings.writeIfChanged(SettingKeys::singleColourLast, true);
        QCoreApplication::processEvents();
    }

    /// What both ways come to: the words, and what the labels show.
    bool sameAfterBoth()
    {
        step();
        QVector<QImage> shown;
        for (const QLabel *const label : labels) {
            shown.append(label->pixmap(Qt::ReturnByValue).toImage());
        }
        decodingStep();
        for (int i = 0; i < labels.size(); ++i) {
            if (shown.at(i).isNull()
                || shown.at(i) != labels.at(i)->pixmap(Qt::ReturnByValue).toImage()) {
                return false;
            }
        }
        const LightingState &state = world.window->lightingState();
        return state.leftWord == words.leftWord && state.centreWord == words.centreWord
               && state.rightWord == words.rightWord && state.stripeWord == words.stripeWord;
    }

    void setBrightness(int value) const { slider->setValue(value); }

private:
    void decode(KeyboardPicture picture, const QString &colour, uint brightness)
    {
        constexpr int alpha = 30;
        const QPixmap decoded = QPixmap::fromImage(QImage(pictureFile(picture)));
        const ColourComponents part = scaledComponents(colour, brightness);
        labels.at(static_cast<int>(picture))->setPixmap(tinted(decoded, tintColour(part, alpha)));
    }

    TestWindow world;
    QSlider *slider = nullptr;
    QVector<QLabel *> labels; ///< in the order of KeyboardPicture
    LightingState words;
};

int step(int rounds)
{
    constexpr int highest = 100;
    constexpr int lowest = 41;
    ShownWindow window;
    for (const int brightness : {highest, lowest}) {
        window.setBrightness(brightness);
        if (!window.sameAfterBoth()) {
            qCritical("the two ways of a brightness step differ");
            return 1;
        }
    }
    // The move of the slider itself, which stores the new value, is not part of the step.
    const auto sweep = [&window](const std::function<void()> &apply) {
        double sum = 0;
        for (int brightness = lowest; brightness < highest; ++brightness) {
            window.setBrightness(brightness);
            sum += microsecondsOf(apply);
        }
        return sum / (highest - lowest);
    };
    const auto program = [&window] {
        window.step();
    };
    const auto baseline = [&window] {
        window.decodingStep();
    };
    for (int round = 0; round < rounds; ++round) {
        const double first = sweep(program);
        const double second = sweep(baseline);
        out() << first << ' ' << second << '\n';
    }
    return 0;
}

/// One settings file for the program's own class and one for QSettings alone, of the same content.
class TwoFiles
{
public:
    explicit TwoFiles(int foreign)
        : foreignCount(foreign)
    {
        QByteArray content =
            "[settings]\nbacklight_on=true\nbrightlevel=100\nZone4Color=0 120 255\n"
            "Zone1Color=0 120 255\nZone2Color=0 120 255\nZone3Color=0 120 255\n[foreign]\n";
        for (int key = 0; key < foreign; ++key) {
            content += "key" + QByteArray::number(key) + "=value " + QByteArray::number(key) + '\n';
        }
        writeFile(settings.settingsIni(), content);
        writeFile(plainFile, content);
    }

    void write(int brightness) const { settings.write(SettingKeys::brightLevel, brightness); }
    void writePlainly(int brightness) const
    {
        QSettings plain(plainFile, QSettings::IniFormat);
        plain.setValue(settingsPath(SettingKeys::brightLevel), brightness);
    }
    QString folderOf(bool plain) const
    {
        return QFileInfo(plain ? plainFile : settings.settingsIni()).path();
    }
    bool areEqual() const
    {
        const QSettings first(settings.settingsIni(), QSettings::IniFormat);
        return first.allKeys().size() == foreignCount + 6
               && readFile(settings.settingsIni()) == readFile(plainFile);
    }

private:
    QTemporaryDir folder;
    int foreignCount;
    AppSettings settings{folder.path()};
    QString plainFile = folder.filePath(QStringLiteral("plain/lumikey.ini"));
};

int write(int rounds, int pieces, int foreign)
{
    const TwoFiles files(foreign);
    inTurns(
        rounds, pieces, [&files](int piece) { files.write(piece); },
        [&files](int piece) { files.writePlainly(piece); });
    if (!files.areEqual()) {
        qCritical("the two ways of writing differ");
        return 1;
    }
    return 0;
}

/// What this process has written so far, to whatever.
qint64 bytesWritten()
{
    const QList<QByteArray> lines = readFile(QStringLiteral("/proc/self/io")).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("wchar:")) {
            return line.simplified().split(' ').at(1).toLongLong();
        }
    }
    qFatal("the system does not tell what a process writes");
}

int written(int rounds)
{
    const TwoFiles files(0);
    const FilesMade made(files.folderOf(false));
    const FilesMade madePlainly(files.folderOf(true));
    for (int round = 1; round <= rounds; ++round) {
        const qint64 before = bytesWritten();
        files.write(round);
        const qint64 between = bytesWritten();
        files.writePlainly(round);
        const qint64 after = bytesWritten();
        out() << made.taken().size() << ' ' << madePlainly.taken().size() << ' ' << between - before
              << ' ' << after - between << '\n';
    }
    return files.areEqual() ? 0 : 1;
}

/// The memory that is this process's alone, in KiB: what it shares with others comes and goes with
/// them.
qint64 ownMemory()
{
    const QList<QByteArray> lines = readFile(QStringLiteral("/proc/self/smaps_rollup")).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("Private_Dirty:")) {
            return line.simplified().split(' ').at(1).toLongLong();
        }
    }
    qFatal("the system does not tell the memory of a process");
}

/// How much of that is in use, in KiB: the rest the allocator keeps for the next time.
qint64 memoryInUse()
{
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<qint64>((heap.uordblks + heap.hblkhd) / 1024);
}

int changes(int count)
{
    constexpr int samples = 100;
    constexpr int brightnesses = 100;
    const ShownWindow window;
    for (int change = 1; change <= count; ++change) {
        window.setBrightness(change % brightnesses + 1);
        window.step();
        if (change % (count / samples) == 0) {
            out() << ownMemory() << ' ' << memoryInUse() << '\n';
        }
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString figure = arguments.value(1);
    const int number = arguments.value(2).toInt();
    constexpr int writes = 50;
    if (figure == QLatin1String("square")) {
        return square(number);
    }
    if (figure == QLatin1String("step")) {
        return step(number);
    }
    if (figure == QLatin1String("write")) {
        return write(number, writes, 0);
    }
    if (figure == QLatin1String("foreign")) {
        return write(number, writes / 10, foreignKeys);
    }
    if (figure == QLatin1String("written")) {
        return written(number);
    }
    if (figure == QLatin1String("changes")) {
        return changes(number);
    }
    qCritical("usage: insidework square|step|write|foreign|written|changes NUMBER");
    return 2;
}
