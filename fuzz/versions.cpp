#include "system/versions.h"

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "system/versionrequest.h"
#include "tests/support/versionserver.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace {

int sign(qint64 number)
{
    return number < 0 ? -1 : number > 0 ? 1 : 0;
}

void checkPair(const QString &a, const QString &b)
{
    const qint64 comparison = compareVersions(a, b);
    require(sign(compareVersions(b, a)) == -sign(comparison), "a comparison turns around");
    require(compareVersions(a, a) == 0, "a version equals itself");
    require(compareVersions(a, a + QStringLiteral(".0")) == -1, "one part more is newer");
    require((versionVerdict(comparison) == VersionVerdict::UpdateWaits) == (comparison < 0),
            "an update waits where it is newer");
    require((versionVerdict(comparison) == VersionVerdict::Latest) == (comparison == 0),
            "only equal ones are the latest");
}

void checkOrder(const QString &a, const QString &b, const QString &c)
{
    if (compareVersions(a, b) <= 0 && compareVersions(b, c) <= 0) {
        require(compareVersions(a, c) <= 0, "the order has no circles");
    }
}

/// Has the body delivered by a server of this process.
QString requested(VersionServer &server, const QByteArray &body)
{
    server.answerWith(body);
    server.requests.clear();
    const VersionRequest request(versionUrl(server.address()));
    QEventLoop loop;
    QObject::connect(&request, &VersionRequest::finished, &loop, &QEventLoop::quit);
    loop.exec();
    require(request.isFinished(), "a request that has finished says so");
    require(server.requests.size() == 1, "the server is asked once");
    require(server.requests.constFirst().startsWith("GET /lumikey/version HTTP/1.1\r\n"),
            "the server is asked for the version");
    return request.text();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "versions";
    static char *argv[] = {name, nullptr};
    // Never destroyed: an application that outlives main() pulls down what is gone already.
    static const auto *const application = new QCoreApplication(argc, argv);
    Q_UNUSED(application)
    static auto &server = *new VersionServer;

    Input input(data, size);
    const quint8 repetitions = input.takeByte();
    const QByteArray body = input.takePart();
    const QString a = QString::fromUtf8(body);
    const QString b = input.takeText();
    const QString c = input.takeText();
    checkPair(a, b);
    checkPair(b, c);
    checkOrder(a, b, c);
    checkOrder(b, c, a);
    checkOrder(c, a, b);
    // Where the server is, the path is the same.
    require(versionUrl(a).path() == QStringLiteral("/lumikey/version"), "the path is fixed");

    // One input in sixteen goes through sockets, some of those long enough to be cut off.
    if (repetitions % 16 == 1) {
        const QByteArray whole = body.repeated(repetitions > 128 ? 4096 : 1).left(200'000);
        require(requested(server, whole) == QString::fromUtf8(whole.left(VersionRequest::maxBytes)),
                "the beginning of the body is the answer");
    }
    return 0;
}
