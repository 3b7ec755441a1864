#include "examples/agent/poller.h"

#include <QCoreApplication>

#include <utility>

namespace agent {

Poller::Poller(const Options &runOptions, Printer output, QObject *parent)
    : QObject(parent)
    , options(runOptions)
    , printer(std::move(output))
{
    timer.setTimerType(Qt::PreciseTimer);
    timer.setInterval(options.period);
    connect(&timer, &QTimer::timeout, this, &Poller::ask);
}

void Poller::start()
{
    timer.start();
    ask();
}

void Poller::ask()
{
    if (request != nullptr) {
        return;
    }
    request = std::make_unique<Request>(options.timeout);
    // Queued, so that the request can be deleted in take().
    connect(request.get(), &Request::finished, this, &Poller::take, Qt::QueuedConnection);
    request->start();
}

void Poller::take()
{
    const Outcome outcome = request->outcome();
    request.reset();
    const bool silentBefore = silent;
    silent = outcome.result == Outcome::Result::Silent;

    switch (outcome.result) {
    case Outcome::Result::Answered:
        takeAnswer(outcome.answer);
        break;
    case Outcome::Result::NoServer:
        takeAbsence(outcome.reason);
        break;
    case Outcome::Result::Malformed:
        takeMalformed(outcome.reason);
        break;
    case Outcome::Result::Silent:
        // A program that is just ending drops the connections it has not answered, and a machine
        // that fell asleep meanwhile may not even tell. The next tick tells a server that has gone
        // from one that sends nothing.
        if (silentBefore) {
            takeMalformed(outcome.reason);
        }
        break;
    }
}

void Poller::takeAnswer(const Answer &answer)
{
    serverSeen = true;
    absenceTold = false;
    if (!printer.show(answer)) {
        printer.complain(QStringLiteral("cannot write to standard output"));
        end(WrongUse);
    } else if (options.once) {
        end(Done);
    }
}

void Poller::takeAbsence(const QString &reason)
{
    if (!absenceTold) {
        const QString what = serverSeen ? QStringLiteral("the server at %1:%2 has gone (%3)")
                                        : QStringLiteral("no server at %1:%2 (%3)");
        printer.complain(what.arg(QLatin1String(serverAddress)).arg(serverPort).arg(reason)
                         + (options.wait ? QStringLiteral("; waiting for Lumikey")
                            : serverSeen ? QString()
                                         : QStringLiteral("; is Lumikey running?")));
        absenceTold = true;
    }
    if (!options.wait) {
        end(NoServer);
    }
}

void Poller::takeMalformed(const QString &reason)
{
    printer.complain(QStringLiteral("malformed answer: ") + reason);
    end(MalformedAnswer);
}

void Poller::end(ExitCode code)
{
    timer.stop(); // whoever still asked would take a line that is another's
    QCoreApplication::exit(code);
}

} // namespace agent
