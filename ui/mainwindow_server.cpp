#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "lighting/serviceendpoint.h"
#include "system/platform.h"

#include <QDebug>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <utility>

namespace {

/// How long clients wait while the system hands nobody over, for want of handles as a rule.
constexpr int acceptAgainMs = 250;

} // namespace

void MainWindow::startServiceServer()
{
    serviceServer = new QTcpServer(this);
    const QHostAddress address(QString::fromLatin1(ServiceEndpoint::address));
    if (serviceServer->listen(address, ServiceEndpoint::port)) {
        platform.lengthenListenQueue(serviceServer->socketDescriptor());
        qCritical("The Service Server is running!");
    } else {
        qCritical("Could not start the Service Server");
    }
    connect(serviceServer, SIGNAL(newConnection()), this, SLOT(sendFortune()));
    connect(serviceServer, &QTcpServer::acceptError, this, &MainWindow::acceptAgain);
}

void MainWindow::acceptAgain(QAbstractSocket::SocketError error)
{
    // Qt stops accepting at the first failure, be it one client that left too early, and from then
    // on tells of that failure whenever the queue is empty.
    const bool isNews = !std::exchange(clientAccepted, false);
    const bool again = isNews && std::exchange(acceptingFailed, true);
    if (isNews && !again) {
        qDebug().noquote() << "Cannot accept a client:" << serviceServer->errorString();
    }
    const bool wait = isNews && (again || error == QAbstractSocket::SocketResourceError);
    QTimer::singleShot(wait ? acceptAgainMs : 0, serviceServer, &QTcpServer::resumeAccepting);
}

void MainWindow::sendFortune()
{
    QTcpSocket *client = serviceServer->nextPendingConnection();
    if (client == nullptr) {
        return; // nobody to answer: the wake sequence must not move on
    }
    clientAccepted = true;
    acceptingFailed = false;
    const LineChoice choice =
        chooseLine(lighting, {ui->backlight_off->isChecked(), ui->horizontalSlider->value(), wake});
    commandLine = choice.line;
    wake = choice.wake;

    connect(client, SIGNAL(disconnected()), client, SLOT(deleteLater()));
    client->write(frameLine(choice.line));
    client->disconnectFromHost();
    if (client->state() == QAbstractSocket::UnconnectedState) {
        client->deleteLater(); // already gone, so disconnected() may have been missed
    }
}
