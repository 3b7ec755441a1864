#include "companion/arguments.h"
#include "companion/publication.h"
#include "companion/publisher.h"
#include "companion/runningcopy.h"
#include "system/platform.h"
#include "system/terminal.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace {

/// Lumikey looks once a second; one look may be late on a busy machine.
constexpr int twoLooksMs = 2000;

int complain(const QString &what, companion::ExitCode code)
{
    std::fputs(companion::complaint(what).toUtf8().constData(), stderr);
    return code;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    Terminal::prepare();

    const auto decision = companion::decide(QCoreApplication::arguments(),
                                            QStringLiteral(LUMIKEY_BRIGHTNESS_VERSION));
    if (const auto *notice = std::get_if<companion::Notice>(&decision)) {
        std::FILE *stream = notice->exitCode == companion::Done ? stdout : stderr;
        std::fputs(notice->text.toUtf8().constData(), stream);
        return notice->exitCode;
    }

    const std::unique_ptr<Platform> platform = createPlatform();
    if (!companion::isLumikeyRunning(*platform)) {
        return complain(QStringLiteral("no Lumikey runs from %1; start it first.")
                            .arg(QDir::toNativeSeparators(platform->programFolder())),
                        companion::NoLumikey);
    }
    companion::Publisher publisher(*platform);
    for (const int brightness : companion::publications(std::get<int>(decision))) {
        const QString failure = publisher.publish(brightness);
        if (!failure.isEmpty()) {
            return complain(QStringLiteral("the brightness cannot be published: %1.").arg(failure),
                            companion::NotPublished);
        }
        // The segment may go with this process, so it stays until it was read.
        platform->sleep(twoLooksMs);
    }
    return companion::Done;
}
