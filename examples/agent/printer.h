#pragma once

#include "examples/agent/answer.h"
#include "examples/agent/options.h"

#include <QByteArray>
#include <QString>

namespace agent {

/// Writes answers to standard output in the form that fits, and complaints to standard error.
class Printer
{
public:
    /// `terminal`: standard output follows cursor control; `colours`: it may be coloured.
    Printer(const Options &options, bool terminal, bool colours);

    /// False when standard output could not be written.
    bool show(const Answer &answer);

    /// One line on standard error, after the program's name. The next answer is drawn afresh below
    /// it, also when it equals the last one.
    void complain(const QString &text);

private:
    QByteArray picture(const Answer &answer);

    Options options;
    bool terminal;
    bool colours;
    int linesDrawn = 0;
    QByteArray lastLine;
    qint64 normalCount = 0;
    qint64 wakeCount = 0;
    qint64 offCount = 0;
};

/// Writes to standard output at once; false when that failed.
bool writeOutput(const QByteArray &bytes);

} // namespace agent
