#pragma once

#include "examples/agent/options.h"
#include "examples/agent/printer.h"
#include "examples/agent/request.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace agent {

/// Asks again and again, prints what comes and ends the event loop with the fitting exit code.
class Poller : public QObject
{
    Q_OBJECT

public:
    Poller(const Options &options, Printer printer, QObject *parent = nullptr);

    /// Asks at once and then every period. A tick that finds the last connection still open passes.
    void start();

private:
    void ask();
    void take();
    void takeAnswer(const Answer &answer);
    void takeAbsence(const QString &reason);
    void takeMalformed(const QString &reason);
    void end(ExitCode code);

    Options options;
    Printer printer;
    QTimer timer;
    std::unique_ptr<Request> request;
    bool serverSeen = false;
    bool absenceTold = false;
    bool silent = false;
};

} // namespace agent
