#include "formwindow.h"

#include "ui_mainwindow.h"

std::unique_ptr<QMainWindow> makeWindow(const QString &name)
{
    auto window = std::make_unique<QMainWindow>(nullptr, Qt::Window | Qt::FramelessWindowHint);
    window->setObjectName(name);
    Ui::MainWindow ui = {};
    ui.setupUi(window.get());
    return window;
}
