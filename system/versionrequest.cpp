#include "system/versionrequest.h"

#include <QNetworkReply>
#include <QNetworkRequest>

#include <algorithm>

namespace {

constexpr const char *defaultServer = "http://update.tarvenworks.example";
constexpr const char *versionPath = "/lumikey/version";

constexpr int proxyPort = 8080;
constexpr int socksPort = 1080;

/// Whether a list of host names and domains, with commas between, holds a host; "*" holds all.
bool isExcepted(const QString &host, const QString &list)
{
    const QStringList names = list.split(QLatin1Char(','), Qt::SkipEmptyParts);
    return std::any_of(names.begin(), names.end(), [&host](QString name) {
        name = name.trimmed();
        if (name.startsWith(QLatin1Char('.'))) {
            name.remove(0, 1);
        }
        return name == QLatin1String("*") || host.compare(name, Qt::CaseInsensitive) == 0
               || host.endsWith(QLatin1Char('.') + name, Qt::CaseInsensitive);
    });
}

} // namespace

QUrl versionUrl(const QString &server)
{
    QUrl url(server.isEmpty() ? QString::fromLatin1(defaultServer) : server);
    url.setPath(QString::fromLatin1(versionPath));
    return url;
}

QNetworkProxy proxyFor(const QUrl &url, const QProcessEnvironment &environment)
{
    const QString named = environment.value(QStringLiteral("http_proxy")).trimmed();
    const QUrl proxy = QUrl::fromUserInput(named);
    if (proxy.host().isEmpty()
        || isExcepted(url.host(), environment.value(QStringLiteral("no_proxy")))) {
        return QNetworkProxy::NoProxy;
    }
    const bool isSocks = proxy.scheme().startsWith(QLatin1String("socks"));
    return {isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, proxy.host(),
            static_cast<quint16>(proxy.port(isSocks ? socksPort : proxyPort)), proxy.userName(),
            proxy.password()};
}

VersionRequest::VersionRequest(const QUrl &url)
{
    manager.setProxy(proxyFor(url, QProcessEnvironment::systemEnvironment()));
    reply = manager.get(QNetworkRequest(url));
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
    if (body.size() == maxBytes) {
        reply->abort(); // emits finished(), where it was not
    }
}
