#include "companion/arguments.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace companion {

namespace {

constexpr int lowest = 0;
constexpr int highest = 100;
const QString range = QStringLiteral("from %1 to %2").arg(lowest).arg(highest);

/// "-1" is a number out of range, not an option.
bool isNegative(const QString &argument)
{
    static const QRegularExpression form(QStringLiteral("^-[0-9]"));
    return form.match(argument).hasMatch();
}

Notice wrongUse(ExitCode code, const QString &what)
{
    return {complaint(what) + QStringLiteral("Try lumikey-brightness --help.\n"), code};
}

std::variant<int, Notice> brightness(const QString &text)
{
    // QString::toInt() would let blanks and a plus sign through, and says the same of a number that
    // it cannot hold as of none.
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("-?[0-9]+")));
    if (!form.match(text).hasMatch()) {
        return wrongUse(NotANumber, QStringLiteral("'%1' is no whole number %2.").arg(text, range));
    }
    bool fits = false;
    const int number = text.toInt(&fits);
    if (fits && number >= lowest && number <= highest) {
        return number;
    }
    const QString what = QStringLiteral("%1 is %2: give a number %3.");
    return isNegative(text)
               ? wrongUse(TooSmall, what.arg(text, QStringLiteral("too small"), range))
               : wrongUse(TooLarge, what.arg(text, QStringLiteral("too large"), range));
}

QString description()
{
    QString text = QStringLiteral(
        "Sets the brightness of the keyboard, in percent, as a companion application "
        "does: a\nrunning Lumikey takes it over. That takes this program about four "
        "seconds.\n\nExit codes:");
    for (const Meaning &meaning : meanings) {
        text += QStringLiteral("\n  %1  %2").arg(meaning.code).arg(QLatin1String(meaning.text));
    }
    return text;
}

} // namespace

QString complaint(const QString &what)
{
    return QStringLiteral("lumikey-brightness: %1\n").arg(what);
}

std::variant<int, Notice> decide(const QStringList &arguments, const QString &version)
{
    QStringList numbers;
    QStringList others;
    std::partition_copy(arguments.begin(), arguments.end(), std::back_inserter(numbers),
                        std::back_inserter(others), isNegative);

    // Not the parser's own help option: that one brings Qt's options along.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help and end."));
    QCommandLineParser parser;
    parser.setApplicationDescription(description());
    parser.addPositionalArgument(QStringLiteral("brightness"),
                                 QStringLiteral("A whole number %1.").arg(range));
    const QCommandLineOption versionOption = parser.addVersionOption();
    parser.addOption(help);

    if (!parser.parse(others)) {
        return wrongUse(WrongOption, parser.errorText());
    }
    if (parser.isSet(help)) {
        return Notice{parser.helpText(), Done};
    }
    if (parser.isSet(versionOption)) {
        return Notice{QStringLiteral("lumikey-brightness %1\n").arg(version), Done};
    }
    numbers += parser.positionalArguments();
    if (numbers.isEmpty()) {
        return wrongUse(NoNumber, QStringLiteral("which brightness? Give a number %1.").arg(range));
    }
    if (numbers.size() > 1) {
        return wrongUse(
            SeveralNumbers,
            QStringLiteral("give one number %1, not %2.").arg(range).arg(numbers.size()));
    }
    return brightness(numbers.constFirst());
}

} // namespace companion
