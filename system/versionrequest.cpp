#include "system/versionrequest.h"

#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

constexpr const char *defaultServer = "http://update.tarvenworks.example";
constexpr const char *versionPath = "/lumikey/version";

} // namespace

QUrl versionUrl(const QString &server)
{
    QUrl url(server.isEmpty() ? QString::fromLatin1(defaultServer) : server);
    url.setPath(QString::fromLatin1(versionPath));
    return url;
}

VersionRequest::VersionRequest(const QUrl &url)
    : reply(manager.get(QNetworkRequest(url)))
{
    // The rest of a long answer is not fetched either, instead of waiting in memory.
    reply->setReadBufferSize(maxBytes);
    connect(reply, SIGNAL(readyRead()), this, SLOT(takeBody()));
    connect(reply, SIGNAL(finished()), this, SLOT(takeBody()));
    connect(reply, SIGNAL(finished()), this, SIGNAL(finished()));
}

bool VersionRequest::isFinished() const
{
    return reply->isFinished();
}

void VersionRequest::takeBody()
{
    if (!reply->isOpen()) {
        return; // abort() below has closed it
    }
    body += reply->read(maxBytes - body.size());
    if (body.size() == maxBytes && reply->isRunning()) {
        reply->abort(); // emits finished()
    }
}
