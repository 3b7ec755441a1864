#include "system/testing/desktop.h"

#include <QProcess>
#include <QRegularExpression>

#include <array>

namespace {

QByteArray run(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished()) {
        qFatal("%s did not end", qPrintable(tool));
    }
    return process.readAllStandardOutput();
}

/// One command of a tool of the X11 desktop that stands for its user.
QByteArray xdotool(const char *command, const QStringList &arguments = {})
{
    return run(QStringLiteral("xdotool"), QStringList{QString::fromLatin1(command)} + arguments);
}

QString number(qulonglong value)
{
    return QString::number(value);
}

QString buttonNumber(Desktop::Button button)
{
    constexpr std::array numbers{1, 2, 3};
    return QString::number(numbers.at(static_cast<std::size_t>(button)));
}

} // namespace

QVector<quintptr> Desktop::shownWindows(const QString &title)
{
    QByteArray found;
    // The tool stumbles over windows that go while it looks at all there are: nothing is to be
    // seen where it sees nothing twice.
    for (int look = 0; look < 2 && found.isEmpty(); ++look) {
        found =
            xdotool("search", {QStringLiteral("--onlyvisible"), QStringLiteral("--name"), title});
    }
    QVector<quintptr> windows;
    for (const QByteArray &line : found.trimmed().split('\n')) {
        if (const qulonglong window = line.toULongLong()) {
            windows += window;
        }
    }
    return windows;
}

QRect Desktop::geometry(quintptr window)
{
    const QString text = QString::fromLatin1(
        xdotool("getwindowgeometry", {QStringLiteral("--shell"), number(window)}));
    const auto field = [&text](const char *name) {
        const QRegularExpression line(QLatin1String(name) + QStringLiteral("=(-?\\d+)"));
        return line.match(text).captured(1).toInt();
    };
    return {field("X"), field("Y"), field("WIDTH"), field("HEIGHT")};
}

quintptr Desktop::activeWindow()
{
    return xdotool("getactivewindow").trimmed().toULongLong();
}

quintptr Desktop::topWindow()
{
    const QByteArray stack =
        run(QStringLiteral("xprop"),
            {QStringLiteral("-root"), QStringLiteral("_NET_CLIENT_LIST_STACKING")});
    return stack.mid(stack.lastIndexOf(' ')).trimmed().toULongLong(nullptr, 0);
}

void Desktop::move(quintptr window, const QPoint &to)
{
    xdotool("windowmove", {number(window), QString::number(to.x()), QString::number(to.y())});
}

QImage Desktop::picture(const QRect &part)
{
    const QByteArray screen =
        run(QStringLiteral("import"),
            {QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("png:-")});
    return QImage::fromData(screen, "PNG").copy(part);
}

void Desktop::movePointer(const QPoint &to)
{
    xdotool("mousemove", {QString::number(to.x()), QString::number(to.y())});
}

void Desktop::pressButton(Button button)
{
    xdotool("mousedown", {buttonNumber(button)});
}

void Desktop::releaseButton(Button button)
{
    xdotool("mouseup", {buttonNumber(button)});
}

void Desktop::click(const QPoint &at)
{
    // In one command, or the button would be held for as long as a process takes to start.
    xdotool("mousemove", {QString::number(at.x()), QString::number(at.y()), QStringLiteral("click"),
                          QStringLiteral("1")});
}

void Desktop::turnWheel(bool away)
{
    xdotool("click", {away ? QStringLiteral("4") : QStringLiteral("5")});
}

void Desktop::press(const QStringList &keys)
{
    xdotool("key", keys);
}
