#include "examples/agent/options.h"
#include "examples/agent/poller.h"
#include "examples/agent/printer.h"
#include "system/terminal.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lumikey-agent"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LUMIKEY_AGENT_VERSION));

    const bool terminal = Terminal::prepare();
    const auto parsed = agent::parseOptions(QCoreApplication::arguments());
    if (const auto *notice = std::get_if<agent::Notice>(&parsed)) {
        std::FILE *stream = notice->exitCode == agent::Done ? stdout : stderr;
        std::fputs(notice->text.toUtf8().constData(), stream);
        return notice->exitCode;
    }

    const auto options = std::get<agent::Options>(parsed);
    const bool colours = qEnvironmentVariableIsEmpty("NO_COLOR");
    agent::Poller poller(options, agent::Printer(options, terminal, colours));
    poller.start();
    return QCoreApplication::exec();
}
