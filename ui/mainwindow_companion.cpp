#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "lighting/companion.h"
#include "system/platform.h"

#include <QDebug>

namespace {

/// Enough for any text that the companion has; whoever publishes more does not make the window
/// wait for it.
constexpr int longestCopy = 1024 * 1024;

} // namespace

void MainWindow::loadFromSharedMem()
{
    sharedmemtimer();
}

void MainWindow::sharedmemtimer()
{
    const QString text = companionText(companionSegmentContents());
    const auto published = newCompanionBrightness(text, lastCompanionBrightness);
    if (!published) {
        return;
    }
    QSlider &slider = *ui->horizontalSlider;
    savedBrightness = qBound(slider.minimum(), *published, slider.maximum());
    if (!ui->CheckBox_AutoDim->isChecked()) {
        slider.setValue(savedBrightness);
        showBrightness("% (set by Dashport)");
    }
    lastCompanionBrightness = *published;
}

QByteArray MainWindow::companionSegmentContents()
{
    QByteArray contents;
    bool attached = false;
    platform.tryWithSegmentLock(companionMemory.nativeKey(), [&] {
        attached = companionMemory.attach(QSharedMemory::ReadOnly);
        if (attached) {
            contents = QByteArray(static_cast<const char *>(companionMemory.constData()),
                                  qBound(0, companionMemory.size(), longestCopy));
            companionMemory.detach();
        }
    });
    if (!attached) {
        qDebug("Can\u00B4t attach to memory segment");
    }
    return contents;
}
