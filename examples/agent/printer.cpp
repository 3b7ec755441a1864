#include "examples/agent/printer.h"

#include "examples/agent/view.h"

#include <cstdio>

namespace agent {

bool writeOutput(const QByteArray &bytes)
{
    const auto size = size_t(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

Printer::Printer(const Options &runOptions, bool isTerminal, bool mayColour)
    : options(runOptions)
    , terminal(isTerminal)
    , colours(mayColour)
{}

bool Printer::show(const Answer &answer)
{
    if (options.json) {
        return writeOutput(jsonLine(answer) + '\n');
    }
    if (terminal) {
        return writeOutput(picture(answer));
    }
    const QByteArray line = plainLine(answer).toUtf8() + '\n';
    if (line == lastLine) {
        return true;
    }
    lastLine = line;
    return writeOutput(line);
}

void Printer::complain(const QString &text)
{
    linesDrawn = 0;
    lastLine.clear();
    const QByteArray line = "lumikey-agent: " + text.toUtf8() + '\n';
    std::fputs(line.constData(), stderr);
    // Not every system leaves it without a buffer.
    std::fflush(stderr);
}

QByteArray Printer::picture(const Answer &answer)
{
    switch (lineKind(answer)) {
    case LineKind::Off:
        ++offCount;
        break;
    case LineKind::Wake:
        ++wakeCount;
        break;
    case LineKind::Normal:
        ++normalCount;
        break;
    }
    QString title =
        QStringLiteral("Lumikey lighting, %1:%2").arg(QLatin1String(serverAddress)).arg(serverPort);
    QString footer;
    if (!options.once) {
        title += QStringLiteral(", every %1 ms (Ctrl+C ends)").arg(options.period);
        footer = QStringLiteral("%1 normal, %2 wake, %3 off")
                     .arg(normalCount)
                     .arg(wakeCount)
                     .arg(offCount);
    }
    const QStringList lines = panel(answer, title, footer, colours);
    const QByteArray drawing = drawInPlace(lines, linesDrawn);
    linesDrawn = lines.size();
    return drawing;
}

} // namespace agent
