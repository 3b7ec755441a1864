#include "formtables.h"

#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"
#include "tests/support/boxwatcher.h"
#include "tests/support/standins.h"
#include "tests/support/testwindow.h"
#include "tests/support/versionserver.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QSlider>
#include <QStatusBar>
#include <QTest>

namespace {

/// One joint of a signal and a slot, and what shows that the slot ran.
struct Joint
{
    const char *sender;                           ///< nullptr: the window
    QByteArray signal;                            ///< its signature
    const char *receiver;                         ///< nullptr: the window
    QByteArray slot;                              ///< its signature
    std::function<void(TestWindow &)> prepare;    ///< so that the slot has something to do
    std::function<void(TestWindow &)> announce;   ///< emits the signal, and nothing else
    std::function<QString(TestWindow &)> outcome; ///< changes when the slot runs
};

using Step = std::function<void(TestWindow &)>;
using Outcome = std::function<QString(TestWindow &)>;

void nothing(TestWindow & /*world*/) {}

Outcome stored(const SettingKey &key)
{
    return [&key](TestWindow &world) {
        return world.stored(key);
    };
}

QString shown(bool isShown)
{
    return isShown ? QStringLiteral("shown") : QStringLiteral("hidden");
}

QString pickerPanel(TestWindow &world)
{
    return shown(!world.get<QWidget>("colorpickframe")->isHidden())
           + world.get<QLabel>("label_8")->text();
}

QString rgbField(TestWindow &world)
{
    return world.get<QLineEdit>("leRGB")->text();
}

QString hexField(TestWindow &world)
{
    return world.get<QLineEdit>("leHex")->text();
}

QString statusMessage(TestWindow &world)
{
    return world.get<QStatusBar>("statusBar")->currentMessage();
}

/// Checks or unchecks without a click.
Step checked(const char *name, bool on = true)
{
    return [name, on](TestWindow &world) {
        world.get<QAbstractButton>(name)->setChecked(on);
    };
}

/// Moves a list without an announcement.
Step selected(const char *name, int index)
{
    return [name, index](TestWindow &world) {
        auto *const list = world.get<QComboBox>(name);
        const QSignalBlocker silence(list);
        list->setCurrentIndex(index);
    };
}

Step clicked(const char *name)
{
    return [name](TestWindow &world) {
        emit world.get<QAbstractButton>(name)->clicked();
    };
}

Step indexChanged(const char *name, int index)
{
    return [name, index](TestWindow &world) {
        emit world.get<QComboBox>(name)->currentIndexChanged(index);
    };
}

/// A joint of the form with the window, whose slot tells the control and the signal.
Joint ofControl(const char *name, const char *signal, const Step &prepare, const Step &announce,
                const Outcome &outcome)
{
    const QByteArray slot = QByteArray("on_") + name + '_' + signal;
    return {name, signal, nullptr, slot, prepare, announce, outcome};
}

Joint ofButton(const char *name, const Step &prepare, const Outcome &outcome)
{
    return ofControl(name, "clicked()", prepare, clicked(name), outcome);
}

Joint ofList(const char *name, const Step &prepare, int index, const Outcome &outcome)
{
    return ofControl(name, "currentIndexChanged(int)", prepare, indexChanged(name, index), outcome);
}

void preparePicker(TestWindow &world)
{
    world.window->on_colorpick1_clicked();
    world.get<QLineEdit>("leRGB")->setText(QStringLiteral("1 2 3"));
    world.get<QLineEdit>("leHex")->setText(QStringLiteral("010203"));
}

QString windowAlive(TestWindow &world)
{
    return shown(world.window->isVisible())
           + (world.window->isMinimized() ? QStringLiteral(" minimised") : QString());
}

QString detached(TestWindow &world)
{
    // One process object for each program that is asked for.
    return QString::number(world.window->findChildren<QProcess *>().size());
}

QVector<Joint> windowJoints()
{
    const Step show = [](TestWindow &world) {
        world.window->show();
    };
    const Step elevated = [](TestWindow &world) {
        world.platform.elevated = true;
    };
    const Outcome launched = [](TestWindow &world) {
        return world.platform.launched.join(QLatin1Char(' '));
    };
    return {
        ofButton("closeButton", show, windowAlive),
        ofButton("minimizeButton", show, windowAlive),
        ofButton("pushButton_3", elevated, detached),
        ofButton("Check_CloseHides", checked("Check_CloseHides"),
                 stored(SettingKeys::minimizeClose)),
        ofButton("StartHidden", checked("StartHidden"), stored(SettingKeys::startHidden)),
        ofButton("StartHidden_2", checked("StartHidden_2"), stored(SettingKeys::stripeOption)),
        ofButton("Check_StartwithWindows", checked("Check_StartwithWindows"),
                 [](TestWindow &world) {
                     return world.platform.autostart.value_or(QStringLiteral("none"));
                 }),
        ofButton("UsePerKeyApp", nothing, stored(SettingKeys::perKey)),
        ofButton("colorpick5_3", nothing, detached),
        ofButton(
            "Button_CheckforUpdate",
            [](TestWindow &world) {
                world.get<QLabel>("Label_SoftwareVersion")->setText(QStringLiteral("?"));
            },
            [](TestWindow &world) { return world.get<QLabel>("Label_SoftwareVersion")->text(); }),
        ofButton("Button_Update", elevated, launched),
    };
}

QVector<Joint> lightingJoints()
{
    const Outcome brightnessLabel = [](TestWindow &world) {
        return world.get<QLabel>("label_2")->text();
    };
    return {
        ofButton("backlight_on", checked("backlight_on"), stored(SettingKeys::backlightOff)),
        ofButton("backlight_off", checked("backlight_off"), stored(SettingKeys::backlightOn)),
        ofControl(
            "horizontalSlider", "valueChanged(int)",
            [](TestWindow &world) { world.get<QLabel>("label_2")->setText(QStringLiteral("?")); },
            [](TestWindow &world) {
                emit world.get<QSlider>("horizontalSlider")->valueChanged(50);
            },
            brightnessLabel),
        ofList("Combo_Effect", selected("Combo_Effect", 3), 3, stored(SettingKeys::effects)),
        ofButton("CheckBox_AutoDim", checked("CheckBox_AutoDim"), stored(SettingKeys::autoDim)),
        ofList("comboDimValue", nothing, 4, stored(SettingKeys::dimTimer)),
        ofButton("touch_mouse_wake", checked("touch_mouse_wake"), stored(SettingKeys::touchWake)),
    };
}

QVector<Joint> formPickerJoints()
{
    QVector<Joint> joints;
    for (const char *const button :
         {"colorpick1", "colorpick2", "colorpick3", "colorpick4", "colorpick5"}) {
        joints.append(ofButton(button, nothing, pickerPanel));
    }
    joints.append(ofButton("pushButton", preparePicker, stored(SettingKeys::leftColour)));
    joints.append(ofButton("pushButton_2", preparePicker, pickerPanel));
    joints.append(ofButton("bHex", nothing, [](TestWindow &world) {
        return QString::number(world.get<QWidget>("bPasteHex")->isEnabled());
    }));
    joints.append(ofList("comboBox_BasicColors", nothing, 5, rgbField));
    return joints;
}

QVector<Joint> pickerJoints()
{
    const Step copyable = [](TestWindow &world) {
        preparePicker(world);
        QGuiApplication::clipboard()->clear();
    };
    // A sample over which the window was dragged does not take the release for a click.
    const Outcome clicksOfRelease = [](TestWindow &world) {
        auto *const sample = world.get<ColorSample>("colorSample");
        const QSignalSpy clicks(sample, SIGNAL(samplePressedLeft()));
        QTest::mouseRelease(sample, Qt::LeftButton);
        return QString::number(clicks.size());
    };
    return {
        {"hSelector", "hueChanged(QColor)", "svSelector", "changeHue(QColor)", preparePicker,
         [](TestWindow &world) {
             emit world.get<HSelector>("hSelector")->hueChanged(QColor(0, 255, 0));
         },
         rgbField},
        {"svSelector", "colorChanged(QColor)", "colorSample", "changeColor(QColor)", preparePicker,
         [](TestWindow &world) {
             emit world.get<SVSelector>("svSelector")->colorChanged(QColor(9, 8, 7));
         },
         rgbField},
        {"colorSample", "colorChanged(QColor)", nullptr, "updateColorText(QColor)", preparePicker,
         [](TestWindow &world) {
             emit world.get<ColorSample>("colorSample")->colorChanged(QColor(9, 8, 7));
         },
         rgbField},
        {"leRGB", "textEdited(QString)", nullptr, "updateColorRGB(QString)", preparePicker,
         [](TestWindow &world) {
             emit world.get<QLineEdit>("leRGB")->textEdited(QStringLiteral("0 0 255"));
         },
         hexField},
        {"leHex", "textEdited(QString)", nullptr, "updateColorHex(QString)", preparePicker,
         [](TestWindow &world) {
             emit world.get<QLineEdit>("leHex")->textEdited(QStringLiteral("00ff00"));
         },
         rgbField},
        {"bHex", "clicked()", nullptr, "copyHex()", copyable, clicked("bHex"), statusMessage},
        {"bPasteHex", "clicked()", nullptr, "pasteHex()",
         [](TestWindow & /*world*/) {
             QGuiApplication::clipboard()->setText(QStringLiteral("#0A0"));
         },
         clicked("bPasteHex"), statusMessage},
        {"colorSample", "samplePressedLeft()", nullptr, "copyHex()", copyable,
         [](TestWindow &world) { emit world.get<ColorSample>("colorSample")->samplePressedLeft(); },
         statusMessage},
        {"colorSample", "samplePressedRight()", nullptr, "copyHexHash()", copyable,
         [](TestWindow &world) {
             emit world.get<ColorSample>("colorSample")->samplePressedRight();
         },
         statusMessage},
        {nullptr, "mouseMovedOnWindow()", "colorSample", "mouseMovedOnWindow()", nothing,
         [](TestWindow &world) { emit world.window->mouseMovedOnWindow(); }, clicksOfRelease},
        {nullptr, "mouseReleasedOnWindow()", "colorSample", "mouseReleasedOnWindow()", nothing,
         [](TestWindow &world) {
             emit world.window->mouseMovedOnWindow();
             emit world.window->mouseReleasedOnWindow();
             world.window->setProperty("announced", true);
         },
         [clicksOfRelease](TestWindow &world) {
             // A release ends the drag for the sample, so there is one to look at only.
             return world.window->property("announced").toBool() ? clicksOfRelease(world)
                                                                 : QStringLiteral("0");
         }},
    };
}

QVector<Joint> allJoints()
{
    return windowJoints() + lightingJoints() + formPickerJoints() + pickerJoints();
}

QObject *object(const TestWindow &world, const char *name)
{
    if (name == nullptr) {
        return world.window.get();
    }
    return world.get<QWidget>(name);
}

/// Undoes one joint; false when there is none.
bool takeApart(const TestWindow &world, const Joint &joint)
{
    const QObject *const sender = object(world, joint.sender);
    const QObject *const receiver = object(world, joint.receiver);
    return QMetaObject::disconnectOne(
        sender, sender->metaObject()->indexOfSignal(joint.signal.constData()), receiver,
        receiver->metaObject()->indexOfMethod(joint.slot.constData()));
}

/// What the signal brings about in a fresh window: the outcome before it and after it.
QStringList emitted(const Joint &joint, bool joined)
{
    VersionServer server;
    server.answerWith("1.0.4");
    const BoxWatcher answering;
    TestWindow world;
    const StandIns programs(QDir::currentPath());
    programs.add(QStringLiteral("explorer.exe")); // not the system's own
    world.writeBranding({}, server.address());
    world.writeSettings("backlight_on=true\nbrightlevel=100\nZone1Color=255 0 0\n");
    world.start();
    joint.prepare(world);
    if (!joined && !takeApart(world, joint)) {
        return {QStringLiteral("not joined")};
    }
    const QString before = joint.outcome(world);
    joint.announce(world);
    return {before, joint.outcome(world)};
}

} // namespace

/// Each signal of the form and of the picker, emitted: one joint, and that one alone, brings about
/// what follows.
class TestConnectionEffects : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyConnectionIsHere();
    void effect_data();
    void effect();
};

void TestConnectionEffects::initTestCase()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.4"));
}

void TestConnectionEffects::everyConnectionIsHere()
{
    const QVector<Joint> joints = allJoints();
    for (const formtables::Connection &row : formtables::connections) {
        QVERIFY2(std::any_of(joints.begin(), joints.end(),
                             [&row](const Joint &joint) {
                                 return joint.sender != nullptr
                                        && QByteArray(joint.sender) == row.sender
                                        && joint.signal == row.signal && joint.slot == row.slot;
                             }),
                 row.slot);
    }
}

void TestConnectionEffects::effect_data()
{
    QTest::addColumn<int>("index");
    const QVector<Joint> joints = allJoints();
    for (int i = 0; i < joints.size(); ++i) {
        const Joint &joint = joints.at(i);
        QTest::addRow("%s %s to %s", joint.sender == nullptr ? "window" : joint.sender,
                      joint.signal.constData(), joint.slot.constData())
            << i;
    }
}

void TestConnectionEffects::effect()
{
    QFETCH(int, index);
    const Joint joint = allJoints().at(index);
    const QStringList joined = emitted(joint, true);
    QVERIFY2(joined.first() != joined.last(), qPrintable(joined.join(QLatin1String(" | "))));
    const QStringList apart = emitted(joint, false);
    QCOMPARE(apart.size(), 2);
    QCOMPARE(apart.last(), apart.first());
}

QTEST_MAIN(TestConnectionEffects)
#include "tst_connectioneffects.moc"
