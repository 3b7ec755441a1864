#include "examples/agent/options.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace agent {

namespace {

constexpr int longestDuration = 3600000;

/// Digits only: QString::toInt() would let blanks and signs through.
std::optional<int> milliseconds(const QString &text)
{
    const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    const int value = text.toInt(); // 0 where it is none, or too large for one
    if (!digits || value < 1 || value > longestDuration) {
        return std::nullopt;
    }
    return value;
}

Notice wrongUse(const QString &what)
{
    return {QStringLiteral("lumikey-agent: %1\nTry lumikey-agent --help.\n").arg(what), WrongUse};
}

} // namespace

std::variant<Options, Notice> parseOptions(const QStringList &arguments)
{
    Options options;
    // Not the parser's own help option: that one brings Qt's options along.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help and end."));
    const QCommandLineOption once(QStringLiteral("once"),
                                  QStringLiteral("Print one answer and end."));
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Print every answer as one JSON object a line."));
    const QCommandLineOption wait(
        QStringLiteral("wait"),
        QStringLiteral("While no server is there, keep trying instead of ending."));
    const QCommandLineOption period(
        QStringLiteral("period"),
        QStringLiteral("Connect every <ms> milliseconds (default %1).").arg(options.period),
        QStringLiteral("ms"));
    const QCommandLineOption timeout(
        QStringLiteral("timeout"),
        QStringLiteral("Give one connection <ms> milliseconds (default %1).").arg(options.timeout),
        QStringLiteral("ms"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows the lighting that Lumikey hands out at %1:%2.\n\n"
                       "In a terminal the picture is drawn in place (NO_COLOR is respected); "
                       "otherwise a\nline is printed whenever the lighting has changed.\n\n"
                       "Exit codes: 0 done, 1 no server, 2 malformed answer or time limit, "
                       "3 wrong use.")
            .arg(QLatin1String(serverAddress))
            .arg(serverPort));
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({help, once, json, wait, period, timeout});

    if (!parser.parse(arguments)) {
        return wrongUse(parser.errorText());
    }
    if (parser.isSet(help)) {
        return Notice{parser.helpText(), Done};
    }
    if (parser.isSet(version)) {
        return Notice{QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                                    QCoreApplication::applicationVersion()),
                      Done};
    }
    if (!parser.positionalArguments().isEmpty()) {
        return wrongUse(QStringLiteral("unexpected argument '%1'.")
                            .arg(parser.positionalArguments().constFirst()));
    }

    const auto readDuration = [&](const QCommandLineOption &option, int &target) {
        if (!parser.isSet(option)) {
            return true;
        }
        const auto value = milliseconds(parser.value(option));
        target = value.value_or(target);
        return value.has_value();
    };
    const auto badDuration = [&](const QCommandLineOption &option) {
        return wrongUse(QStringLiteral("--%1 takes milliseconds from 1 to %2, not '%3'.")
                            .arg(option.names().constFirst())
                            .arg(longestDuration)
                            .arg(parser.value(option)));
    };
    if (!readDuration(period, options.period)) {
        return badDuration(period);
    }
    if (!readDuration(timeout, options.timeout)) {
        return badDuration(timeout);
    }
    options.once = parser.isSet(once);
    options.json = parser.isSet(json);
    options.wait = parser.isSet(wait);
    return options;
}

} // namespace agent
