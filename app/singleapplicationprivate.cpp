#include "app/singleapplicationprivate.h"

#include "app/instanceblock.h"
#include "app/instancename.h"
#include "app/singleapplication.h"
#include "system/platform.h"

#include <QDebug>
#include <QPointer>
#include <QStandardPaths>
#include <QSystemSemaphore>

#include <chrono>
#include <future>

namespace {

constexpr int firstWordsTimeoutMs = 100;
constexpr qint64 longestMessage = 65'536;
/// How long a start waits for others that start or end. They take milliseconds.
constexpr int startLockTimeoutMs = 5000;
constexpr auto blockLockTimeout = std::chrono::seconds(1);

static_assert(SingleApplication::PerUser == InstanceOptions::perUser);
static_assert(SingleApplication::OmitVersion == InstanceOptions::omitVersion);
static_assert(SingleApplication::OmitPath == InstanceOptions::omitPath);

InstanceIdentity ownIdentity(const Platform &platform)
{
    return {QCoreApplication::applicationName(),
            QCoreApplication::organizationName(),
            QCoreApplication::organizationDomain(),
            QCoreApplication::applicationVersion(),
            QCoreApplication::applicationFilePath(),
            platform.userName(),
            QStandardPaths::standardLocations(QStandardPaths::HomeLocation)};
}

/// Makes sure that the lock of the block can be had, though a process was killed that held it:
/// Windows never gives it back, and QSharedMemory waits for ever. Under the start lock nobody alive
/// holds it for long.
void freeBlockLock(const QString &serverName)
{
    QSystemSemaphore lock(serverName, 1);
    auto taken = std::async(std::launch::async, [&lock] { return lock.acquire(); });
    if (taken.wait_for(blockLockTimeout) != std::future_status::ready) {
        qWarning("The lock of the running copies was left taken; giving it back.");
        QSystemSemaphore(serverName, 1).release();
    }
    if (taken.get()) {
        lock.release();
    }
}

InstanceBlock &contents(QSharedMemory &block)
{
    return *static_cast<InstanceBlock *>(block.data());
}

} // namespace

SingleApplicationPrivate::SingleApplicationPrivate(SingleApplication &app, Platform &system,
                                                   int optionBits)
    : application(app)
    , platform(system)
    , options(optionBits)
    , serverName(instanceName(ownIdentity(system), optionBits))
{}

SingleApplicationPrivate::~SingleApplicationPrivate()
{
    releaseRole();
}

bool SingleApplicationPrivate::start(bool allowSecondary, int timeoutMs)
{
    const Role role = takeRole(allowSecondary);
    if (role == Role::Leaving) {
        connectToPrimary(timeoutMs, ConnectionMessage::NewStart);
    } else if (role == Role::Secondary && (options & SingleApplication::NotifyOnSecondary) != 0) {
        connectToPrimary(timeoutMs, ConnectionMessage::SecondaryStart);
    }
    return role != Role::Leaving;
}

void SingleApplicationPrivate::handOver()
{
    if (server) {
        releaseRole();
        handedOver = true;
    }
}

void SingleApplicationPrivate::takeBack()
{
    if (handedOver && takeRole(false) == Role::Primary) {
        handedOver = false;
    }
}

SingleApplicationPrivate::Role SingleApplicationPrivate::takeRole(bool allowSecondary)
{
    // The block's own lock does not cover its making and its end, so starts come one by one.
    const auto startLock = platform.acquireLock(serverName, startLockTimeoutMs);
    freeBlockLock(serverName);
    block = std::make_unique<QSharedMemory>(serverName);
    // Where the system keeps the block of a killed process, the last one to leave it removes it.
    if (block->attach()) {
        block->detach();
    }
    if (!block->create(sizeof(InstanceBlock))) {
        block->attach(); // a block that is not there has no size
    }
    if (block->size() < static_cast<int>(sizeof(InstanceBlock)) || !block->lock()) {
        block.reset();
        // The running copy may have other rights than this one, so that all about it is hidden.
        platform.letComeToFront(Platform::anyProcess);
        return Role::Leaving;
    }
    Role role = Role::Primary;
    if (!contents(*block).primaryRunning) {
        becomePrimary();
    } else if (allowSecondary) {
        instanceNumber = ++contents(*block).secondaryCount;
        role = Role::Secondary;
    } else {
        platform.letComeToFront(contents(*block).primaryProcessId);
        role = Role::Leaving;
    }
    block->unlock();
    if (role == Role::Leaving) {
        block.reset(); // so that it does not outlive its primary copy
    }
    return role;
}

void SingleApplicationPrivate::releaseRole()
{
    if (!block) {
        return;
    }
    const auto startLock = platform.acquireLock(serverName, startLockTimeoutMs);
    freeBlockLock(serverName);
    block->lock();
    if (server) {
        server.reset();
        contents(*block).primaryRunning = false;
        contents(*block).primaryProcessId = -1;
    }
    block->unlock();
    block.reset();
}

/// The block is locked.
void SingleApplicationPrivate::becomePrimary()
{
    QLocalServer::removeServer(serverName);
    // A child as well, so that from outside it can be looked for whether it keeps clients.
    server = std::make_unique<QLocalServer>(&application);
    server->setSocketOptions((options & SingleApplication::PerUser) != 0
                                 ? QLocalServer::UserAccessOption
                                 : QLocalServer::WorldAccessOption);
    if (!server->listen(serverName)) {
        qWarning() << "Later starts cannot reach this one:" << server->errorString();
    }
    connect(server.get(), SIGNAL(newConnection()), this, SLOT(slotConnectionEstablished()));

    // A new block counts no secondary copies; in one that was there they go on running.
    InstanceBlock &shared = contents(*block);
    shared.primaryRunning = true;
    shared.primaryProcessId = QCoreApplication::applicationPid();
}

void SingleApplicationPrivate::connectToPrimary(int timeoutMs, ConnectionMessage::Type type)
{
    socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(serverName, QIODevice::ReadWrite);
    if (socket->waitForConnected(timeoutMs)) {
        socket->write(encodeConnectionMessage(serverName, {type, instanceNumber}));
        socket->waitForBytesWritten(timeoutMs);
    }
}

void SingleApplicationPrivate::slotConnectionEstablished()
{
    QLocalSocket *const client = server->nextPendingConnection();
    if (client == nullptr) {
        return;
    }
    if (client->bytesAvailable() == 0) {
        client->waitForReadyRead(firstWordsTimeoutMs);
    }
    const auto message = decodeConnectionMessage(client->readAll(), serverName);
    if (!message) {
        client->close();
        client->deleteLater();
        return;
    }
    listenTo(client, message->instanceNumber);
    const QPointer<QLocalSocket> stillThere = client;
    if (message->connectionType == ConnectionMessage::NewStart
        || (message->connectionType == ConnectionMessage::SecondaryStart
            && (options & SingleApplication::NotifyOnSecondary) != 0)) {
        emit application.instanceStarted();
    }
    if (stillThere) {
        slotDataAvailable(client, message->instanceNumber);
    }
    if (stillThere && client->state() == QLocalSocket::UnconnectedState) {
        slotClientConnectionClosed(client, message->instanceNumber); // it left before we listened
    }
}

void SingleApplicationPrivate::listenTo(QLocalSocket *client, quint32 instanceId)
{
    const auto closed = [this, client, instanceId] {
        slotClientConnectionClosed(client, instanceId);
    };
    connect(client, &QLocalSocket::aboutToClose, this, closed);
    connect(client, &QLocalSocket::disconnected, this, closed); // by the other end
    connect(client, &QLocalSocket::readyRead, this,
            [this, client, instanceId] { slotDataAvailable(client, instanceId); });
    connect(client, &QObject::destroyed, this, [this, client] { passedOn.remove(client); });
}

void SingleApplicationPrivate::slotDataAvailable(QLocalSocket *client, quint32 instanceId)
{
    passOn(client, instanceId);
    if (client->bytesAvailable() > 0) { // more than one connection may send
        client->abort();
    }
}

void SingleApplicationPrivate::slotClientConnectionClosed(QLocalSocket *client, quint32 instanceId)
{
    passOn(client, instanceId);
    client->deleteLater();
}

void SingleApplicationPrivate::passOn(QLocalSocket *client, quint32 instanceId)
{
    const qint64 left = longestMessage - passedOn.value(client);
    if (left > 0 && client->bytesAvailable() > 0) {
        const QByteArray bytes = client->read(left);
        passedOn[client] += bytes.size();
        emit application.receivedMessage(instanceId, bytes);
    }
}
