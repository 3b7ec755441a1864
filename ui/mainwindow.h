#pragma once

#include "app/appsettings.h"
#include "app/brightnessstore.h"
#include "colorpicker/colorprocessor.h"
#include "colorpicker/maincontroller.h"
#include "lighting/autodim.h"
#include "lighting/commandline.h"
#include "lighting/companionreader.h"
#include "lighting/lightingstate.h"
#include "lighting/myeventfilter.h"
#include "lighting/serviceendpoint.h"
#include "lighting/unlockfilter.h"
#include "system/types.h"
#include "ui/keyboardpictures.h"
#include "ui/lastinput.h"

#include <QMainWindow>
#include <QPoint>
#include <QString>
#include <QSystemTrayIcon>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

class Platform;
class PrimaryRole;
class QLineEdit;
class ServiceServer;
class TrayIcon;
enum class ColourTarget;
struct ColourTargetRow;
struct DpiBand;
struct Message;

namespace Ui {
class MainWindow;
}

/// Milliseconds since the epoch.
using Clock = std::function<qint64()>;

/// The one window. It owns the lighting state, the settings, the Service Server, the tray icon and
/// the timers; its slots read widgets, ask a core and show the answer. Every slot keeps its name:
/// many are found by it.
class MainWindow : public QMainWindow, public RgbFieldOwner
{
    Q_OBJECT

public:
    /// @param platform, primaryRole not owned; must live longer than the window
    /// @param endpoint where agents are served
    MainWindow(AppSettings settings, Platform &platform, PrimaryRole &primaryRole, Clock clock,
               const ServiceEndpoint &endpoint, QWidget *parent = nullptr);
    ~MainWindow() override;

    const LightingState &lightingState() const { return lighting; }
    const WakeSequence &wakeSequence() const { return wake; }
    /// What the last connection received; empty before the first.
    const QString &lastCommandLine() const { return commandLine; }

    /// Whether the user has asked to see the window, and not hidden it again.
    bool wasAskedFor() const { return shell.askedFor; }

    /// Lets every event through to its own receiver.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Relayed to the colour sample.
    void mouseMovedOnWindow();
    void mouseReleasedOnWindow();
    /// The window closes, and with it the program: whoever waits inside a slot waits no longer.
    void closed();

public slots:
    // mainwindow_settings.cpp: the saved state comes back, and leaves
    void LoadSettings();
    void delayedApply();
    void ShutdownQuit();
    void on_StartHidden_clicked();      ///< "Start hidden in system tray"
    void on_Check_CloseHides_clicked(); ///< "Close button hides instead of closing"

    // mainwindow_lighting.cpp: choices become device words
    uint GetColour(byte r, byte g, byte b, Zone zone);
    /// @param kind number of a ColourTarget; others do nothing
    void SetZoneColor(int kind, const QString &colour);
    void brightnessapply();
    void on_horizontalSlider_valueChanged(int value);    ///< under "Brightness Level: 100%"
    void on_backlight_on_clicked();                      ///< "Enabled"
    void on_backlight_off_clicked();                     ///< "Disabled"
    void on_Combo_Effect_currentIndexChanged(int index); ///< beside "Effects:"
    void on_StartHidden_2_clicked();                     ///< "Enable P75x Stripe LED Control"
    void suspendresumeaction();
    /// Gives the agent that waits longest the line of this moment; nothing where none waits.
    void sendFortune();
    /// @param a, b, c red, green, blue; @param d alpha; @param img number of the ColourTarget that
    /// the picture shows
    void setKeyboardImageColor(int a, int b, int c, int d, int img);

    // mainwindow_dimming.cpp: the slider is moved, by idling and by the companion application
    void on_CheckBox_AutoDim_clicked();                   ///< "Auto turn off:"
    void on_comboDimValue_currentIndexChanged(int index); ///< beside "Auto turn off:"
    void on_touch_mouse_wake_clicked();                   ///< "Mouse keys will also wake auto dim"
    void starttimerdelay();
    void timerDone();
    /// Adopts the brightness that the companion application has published; two names, one body.
    void sharedmemtimer();
    void loadFromSharedMem();

    // mainwindow_colours.cpp: the picker and its targets
    void on_colorpick1_clicked();   ///< the pipette under "Left"
    void on_colorpick2_clicked();   ///< under "Center"
    void on_colorpick3_clicked();   ///< under "Right"
    void on_colorpick4_clicked();   ///< under "Single Color Selection"
    void on_colorpick5_clicked();   ///< under "Touchpad Stripe LED color"
    void on_pushButton_clicked();   ///< "Apply Value"
    void on_pushButton_2_clicked(); ///< "Cancel"
    void on_comboBox_BasicColors_currentIndexChanged(int index); ///< beside "Quick Basic Colors:"
    void updateColorRGB(const QString &RGB) override;
    void updateColorHex(const QString &Hex);
    void updateColorText(const QColor &color);
    void selectField(QWidget *w);
    void copyRGB();
    void copyHex();
    void copyHexHash();
    void pasteHex();
    void on_bHex_clicked(); ///< "Copy Color"

    // mainwindow_shell.cpp: frame and tray
    void systemtraystart();
    void show_hide(QSystemTrayIcon::ActivationReason reason);
    void ShowInterface();
    void on_closeButton_clicked();    ///< the cross in the title
    void on_minimizeButton_clicked(); ///< the bar in the title
    void SetStyle();

    // mainwindow_dpi.cpp
    void DPIfixes();

    // mainwindow_rights.cpp: administrator rights, and what of the system needs them
    /// @return non-zero when the process has administrator rights
    /// @throws quint32 the system's error code, when that cannot be told; nobody catches it
    BOOL IsAppRunningAsAdminMode();
    /// Starts the program again with administrator rights and ends this process. Returns, and the
    /// program runs on without them, when that fails.
    void requestadmin();
    /// Asks, then installs and registers the library that describes the firmware's interface. No
    /// step's outcome is looked at. Blocks for up to a minute and a half.
    void installmof();

    // mainwindow_updates.cpp
    /// The update server's answer as it comes; empty when there is none. Waits without a limit,
    /// with the events served.
    QString CheckAppVersion();
    void SetAppVersion();
    void on_Button_CheckforUpdate_clicked(); ///< "Check for Update"
    void on_Button_Update_clicked();         ///< "Update"

    // mainwindow_system.cpp: autostart, uninstaller, per-key application
    void on_Check_StartwithWindows_clicked(); ///< "Start with Windows"
    void on_pushButton_3_clicked();           ///< "Uninstall"
    void on_UsePerKeyApp_clicked();           ///< "User Per-Key RGB CLEVO App"
    void on_colorpick5_3_clicked();           ///< under "Per Key RGB Keyboard App"

protected:
    bool event(QEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void restoreWindowGeometry();
    void storeWindowPlace();
    void comeBackToAScreen();
    void enableStripePage(bool enabled);
    void applyStoredEffect();
    void loadZoneColours();
    void enableWhatNeedsTheBacklight(bool enabled);

    void applyAllColours();
    void setColour(ColourTarget target, const QString &colour);
    void colourZone(const ColourTargetRow &row, const QString &colour);
    void setZoneWord(Zone zone, const QString &colour);
    void tintPreview(const ColourTargetRow &row, const QString &colour);
    void showUncoloured(const ColourTargetRow &row);
    void showPreview(const ColourTargetRow &row, const QColor &tint);
    void rememberSingleColour(bool selected);
    void showEffect(bool chosen);
    void showBrightness(const char *text);

    QString rgbText() const override;
    void setRgbText(const QString &text) override;
    void connectColourPicker();
    void openPicker(ColourTarget target);
    void closePicker();
    void leaveTextField(bool forward);
    void showNoColour();
    /// Hands a field's text to the processor's reader of RGB texts or to that of HEX texts.
    void takeText(QLineEdit &field, QColor (ColorProcessor::*set)(const QString &));
    /// Lays out what depends on the font alone: columns whose left edges agree, and the picker's
    /// whose lower edges do. Once, and before the sizes are adapted.
    void alignColumns();
    void enlargeForBand(const DpiBand &band);
    void updateIdleTime();

    std::optional<QString> fetchLatestVersion();
    void showVersions(const QString &installed, const QString &latest);
    void offerUpdate();
    void offerElevation(const Message &question);
    void startDetached(const QString &program, const QStringList &arguments);
    QString besideProgram(const char *path) const;
    void startPerKeyApplication();
    void enterPerKeyMode();
    void leavePerKeyMode();
    void enableWhatPerKeyModeReplaces(bool enabled);
    quint32 now() const;

    std::unique_ptr<Ui::MainWindow> ui;
    AppSettings settings;
    Platform &platform;
    PrimaryRole &primaryRole;
    Clock clock;

    KeyboardPictures previewPictures;
    LightingState lighting;
    WakeSequence wake;
    QString commandLine;
    ServiceServer *serviceServer = nullptr;

    /// Settings are being loaded: the lighting slots neither store nor raise a wake.
    bool loadingSettings = true;
    DimState dim;
    BrightnessStore brightnessStore;
    /// Slider value that brightnessapply() last acted on; nothing where it is to act on any.
    std::optional<int> lastAppliedBrightness;

    /// The check of the version.
    struct VersionCheck
    {
        bool waiting = false; ///< for the server's answer
        /// The user has asked for it, and is told also when there is no update. On purpose not
        /// taken back when there is one: the answer then comes in a box of its own.
        bool byHand = false;
    };
    VersionCheck versionCheck;

    /// The window as a whole, see mainwindow_shell.cpp.
    struct Shell
    {
        TrayIcon *trayIcon = nullptr;   ///< the window's child
        bool sizesAdapted = false;      ///< to the display's density
        bool askedFor = false;          ///< see wasAskedFor()
        bool closed = false;            ///< and with it the program
        std::optional<QPoint> dragGrip; ///< where the mouse holds the window that it drags
    };
    Shell shell;

    /// The open picker, or the one that was open last.
    struct Picker
    {
        std::optional<ColourTarget> target; ///< nothing before the first was opened
        LastInput input;                    ///< what worked the buttons that open and close it
        /// The selectors announce colours that are steps to the one that was asked for.
        bool colourOnItsWay = false;
    };
    Picker picker;
    std::unique_ptr<ColorProcessor> colourProcessor;
    std::unique_ptr<MainController> pickerController;

    CompanionReader companion;
    MyEventFilter eventFilterForResume;
    UnlockFilter unlockFilter;
    QTimer *companionTimer = nullptr;
    QTimer *dimTimer = nullptr;
};
