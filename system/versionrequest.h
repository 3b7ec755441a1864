#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QObject>
#include <QProcessEnvironment>
#include <QString>
#include <QUrl>

class QNetworkReply;

/// Where the latest version is told.
/// @param server scheme and host of the update server; the compiled-in one when empty
QUrl versionUrl(const QString &server);

/// The way to a server: through the proxy that the variable "http_proxy" names, as scheme, host and
/// port or without the scheme, unless "no_proxy" excepts the host; else a direct connection. What
/// the system knows of proxies is not asked: it may look for one for many seconds.
QNetworkProxy proxyFor(const QUrl &url, const QProcessEnvironment &environment);

/// Asks the update server once for the latest version. Neither errors nor the status are looked at:
/// whatever body arrives is the answer, and no body is an empty one. Redirects are not followed.
/// Destroying the object gives the question up.
class VersionRequest : public QObject
{
    Q_OBJECT

public:
    /// What of an answer is read, in bytes; a longer one is cut off here. Versions take a few
    /// bytes, error pages some thousand.
    static constexpr int maxBytes = 64 * 1024;

    /// Asks at once. There is no time limit.
    explicit VersionRequest(const QUrl &url);

    /// Whether the answer is complete.
    bool isFinished() const;
    /// What has arrived so far, from UTF-8, not trimmed.
    QString text() const { return QString::fromUtf8(body); }

signals:
    void finished();

private slots:
    void takeBody();

private:
    QNetworkAccessManager manager;
    QNetworkReply *reply = nullptr; ///< the manager's child
    QByteArray body;
};
