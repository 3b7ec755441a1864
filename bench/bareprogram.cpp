#include <QApplication>
#include <QByteArray>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QWidget>

#include <sys/socket.h>

// The least that a program of this kind can be: an empty window and a listening server. The
// yardstick for start, memory and idling.
//
//   bareprogram ADDRESS PORT [hidden] [timer] [raster]
//
// A window of Qt's loads OpenGL, whether it draws by it or not; "raster" tells it not to.
namespace {

constexpr int answerSize = 96;
constexpr int timerPeriodMs = 100;
constexpr QSize windowSize{630, 630};

void answer(QTcpServer &server)
{
    QTcpSocket *const client = server.nextPendingConnection();
    if (client == nullptr) {
        return;
    }
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
    client->write(QByteArray(answerSize, 'a'));
    client->disconnectFromHost();
    if (client->state() == QAbstractSocket::UnconnectedState) {
        client->deleteLater();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        qFatal("usage: bareprogram ADDRESS PORT [hidden] [timer] [raster]");
    }
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets,
                                   arguments.contains(QStringLiteral("raster")));

    QWidget window;
    window.resize(windowSize);
    window.show();
    window.setHidden(arguments.contains(QStringLiteral("hidden")));

    QTimer timer;
    if (arguments.contains(QStringLiteral("timer"))) {
        QObject::connect(&timer, &QTimer::timeout, [] {});
        timer.start(timerPeriodMs);
    }

    QTcpServer server;
    QObject::connect(&server, &QTcpServer::newConnection, [&server] { answer(server); });
    if (!server.listen(QHostAddress(arguments.at(1)), arguments.at(2).toUShort())) {
        qFatal("cannot listen");
    }
    // As long a queue as the program's, so that a burst is no difference between them.
    ::listen(static_cast<int>(server.socketDescriptor()), SOMAXCONN);
    return QApplication::exec();
}
