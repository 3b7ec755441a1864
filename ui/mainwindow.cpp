#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "colorpicker/colorprocessor.h"
#include "lighting/serviceserver.h"
#include "ui/grooveclick.h"
#include "ui/toggleaccessible.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace {

constexpr int brightnessPeriodMs = 100;

} // namespace

MainWindow::MainWindow(AppSettings appSettings, Platform &system, PrimaryRole &role,
                       Clock systemClock, const ServiceEndpoint &endpoint, QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::MainWindow>())
    , settings(std::move(appSettings))
    , platform(system)
    , primaryRole(role)
    , clock(std::move(systemClock))
    , brightnessStore(settings)
    , companion(system)
    , eventFilterForResume(system)
    , unlockFilter(system)
{
    ToggleAccessible::install();
    ui->setupUi(this);
    new GrooveClick(ui->horizontalSlider);
    connect(ui->horizontalSlider, &QSlider::sliderReleased, this,
            [this] { brightnessStore.storeWaiting(); });
    // Tab goes round in a circle, and by the form the title's buttons stand in it right behind the
    // window itself, so that the first Tab would go to them. They belong at the end; Qt puts them
    // there when they come from another place.
    for (QWidget *const button : {ui->closeButton, ui->minimizeButton}) {
        setTabOrder(ui->backlight_on, button);
        setTabOrder(ui->Button_Update, button);
    }
    colourProcessor = std::make_unique<ColorProcessor>(ui->hSelector, ui->svSelector);
    pickerController = std::make_unique<MainController>(ui->hSelector, ui->svSelector,
                                                        colourProcessor.get(), this);

    companionTimer = new QTimer(this);
    connect(companionTimer, SIGNAL(timeout()), this, SLOT(sharedmemtimer()));
    QCoreApplication::instance()->installNativeEventFilter(&eventFilterForResume);
    connect(&eventFilterForResume, SIGNAL(emitawake()), this, SLOT(suspendresumeaction()));
    QCoreApplication::instance()->installNativeEventFilter(&unlockFilter);
    connect(&unlockFilter, &UnlockFilter::unlocked, this, [this] { dim.lastActivity = now(); });
    dimTimer = new QTimer(this);
    connect(dimTimer, SIGNAL(timeout()), this, SLOT(timerDone()));
    auto *const brightnessTimer = new QTimer(this);
    connect(brightnessTimer, SIGNAL(timeout()), this, SLOT(brightnessapply()));
    brightnessTimer->start(brightnessPeriodMs);

    ui->colorpickframe->hide();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    ui->Title->setText(settings.read(BrandingKeys::appName));

    alignColumns(); // before anything can show the window
    systemtraystart();
    LoadSettings();
    SetAppVersion();
    connectColourPicker();
    SetStyle();
    DPIfixes();
    // Last, because the check for updates above may wait: until then an agent is refused at once,
    // where a server that listens but cannot answer yet would keep it waiting.
    serviceServer = new ServiceServer(endpoint, platform, this);
    serviceServer->start();
    connect(serviceServer, SIGNAL(newConnection()), this, SLOT(sendFortune()));

    if (shell.closed) {
        // "Exit" was chosen while the check for updates waited, before there was an event loop that
        // it could end. It is to end as soon as it begins, and nothing is to be seen until then.
        setAttribute(Qt::WA_DontShowOnScreen);
        QMetaObject::invokeMethod(this, "close", Qt::QueuedConnection);
    }
}

MainWindow::~MainWindow() = default;

quint32 MainWindow::now() const
{
    return static_cast<quint32>(clock());
}
