#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "system/platform.h"
#include "system/versionrequest.h"
#include "ui/messages.h"
#include "ui/texts.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace {

/// Placed beside the program by its installation; the backslash is part of the command line.
constexpr const char *updater = "updates\\Update.exe";

} // namespace

std::optional<QString> MainWindow::fetchLatestVersion()
{
    const VersionRequest request(versionUrl(settings.read(BrandingKeys::updateServer)));
    QEventLoop loop;
    connect(&request, SIGNAL(finished()), &loop, SLOT(quit()));
    connect(this, SIGNAL(closed()), &loop, SLOT(quit()));
    loop.exec();
    if (!request.isFinished()) {
        return std::nullopt; // the program is about to end
    }
    return request.text();
}

QString MainWindow::CheckAppVersion()
{
    return fetchLatestVersion().value_or(QString());
}

void MainWindow::SetAppVersion()
{
    if (versionCheck.waiting) {
        return; // the check that waits also answers this call
    }
    versionCheck.waiting = true;
    ui->Button_Update->setEnabled(false);
    const std::optional<QString> latest = fetchLatestVersion();
    versionCheck.waiting = false;
    if (latest) {
        showVersions(QCoreApplication::applicationVersion(), *latest);
    }
}

void MainWindow::showVersions(const QString &installed, const QString &latest)
{
    ui->Label_SoftwareVersion->setText(tr("Installed: %1").arg(installed));
    ui->Label_SoftwareServerVersion->setText(tr("Latest: %1").arg(latest));
    const VersionVerdict verdict = versionVerdict(compareVersions(installed, latest));
    const Messages::VersionTexts texts = Messages::versionTexts(verdict);
    const bool updateWaits = verdict == VersionVerdict::UpdateWaits;
    ui->Label_SoftwareVersion_desc->setText(translated(texts.description));
    ui->Button_Update->setEnabled(updateWaits);
    settings.write(WorkKeys::updatePending, updateWaits);
    if (updateWaits) {
        offerUpdate();
    } else if (versionCheck.byHand) {
        tell(this, {Messages::updateTitle, texts.notice});
        versionCheck.byHand = false;
    }
}

void MainWindow::offerUpdate()
{
    // Raised before it is shown, and activated with a reason of its own: the question below is to
    // be seen over other programs. ShowInterface() and a later start have other orders, on purpose.
    raise();
    show();
    showNormal();
    activateWindow();
    setFocus(Qt::ActiveWindowFocusReason);

    if (IsAppRunningAsAdminMode() == 0) {
        offerElevation(Messages::updateNeedsRights);
    } else if (ask(this, Messages::updateNow)) {
        platform.launch(QString::fromLatin1(updater));
    }
}

void MainWindow::on_Button_CheckforUpdate_clicked()
{
    versionCheck.byHand = true;
    SetAppVersion();
}

void MainWindow::on_Button_Update_clicked()
{
    if (IsAppRunningAsAdminMode() != 0) {
        platform.launch(QString::fromLatin1(updater));
    } else {
        offerElevation(Messages::updateNeedsRights);
    }
}
