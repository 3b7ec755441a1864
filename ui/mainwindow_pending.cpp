// Slots that the form, the timers and the order of start-up already call at their place, and whose
// work is still to be built: updates, the uninstaller and the switch to the per-key application.

#include "ui/mainwindow.h"

void MainWindow::SetAppVersion() {}

void MainWindow::on_Button_CheckforUpdate_clicked() {}

void MainWindow::on_Button_Update_clicked() {}

void MainWindow::on_pushButton_3_clicked() {}

void MainWindow::on_UsePerKeyApp_clicked() {}
