#include "tests/support/programwindow.h"

#include "tests/support/guitest.h"
#include "tests/support/testsystem.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QString xdotool = QStringLiteral("xdotool");

QString number(int value)
{
    return QString::number(value);
}

} // namespace

QVector<qulonglong> ProgramWindow::windows(const QString &title)
{
    QByteArray found;
    // The tool stumbles over windows that go while it looks at all there are: nothing is to be
    // seen where it sees nothing twice.
    for (int look = 0; look < 2 && found.isEmpty(); ++look) {
        found = TestSystem::runDesktopTool(xdotool, {QStringLiteral("search"),
                                                     QStringLiteral("--onlyvisible"),
                                                     QStringLiteral("--name"), title});
    }
    QVector<qulonglong> ids;
    for (const QByteArray &line : found.trimmed().split('\n')) {
        if (const qulonglong id = line.toULongLong()) {
            ids += id;
        }
    }
    return ids;
}

qulonglong ProgramWindow::shown()
{
    const QVector<qulonglong> found = windows(QStringLiteral("^Lumikey$"));
    return found.size() == 1 ? found.first() : 0;
}

QRect ProgramWindow::geometry()
{
    const qulonglong window = shown();
    if (window == 0) {
        return {};
    }
    const QString text = QString::fromLatin1(
        TestSystem::runDesktopTool(xdotool, {QStringLiteral("getwindowgeometry"),
                                             QStringLiteral("--shell"), QString::number(window)}));
    const auto field = [&text](const char *name) {
        const QRegularExpression line(QLatin1String(name) + QStringLiteral("=(-?\\d+)"));
        return line.match(text).captured(1).toInt();
    };
    return {field("X"), field("Y"), field("WIDTH"), field("HEIGHT")};
}

QImage ProgramWindow::picture()
{
    const QByteArray screen = TestSystem::runDesktopTool(
        QStringLiteral("import"),
        {QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("png:-")});
    return QImage::fromData(screen, "PNG").copy(geometry());
}

void ProgramWindow::input(const QStringList &arguments)
{
    TestSystem::runDesktopTool(xdotool, arguments);
}

void ProgramWindow::click(const QPoint &onScreen)
{
    input({QStringLiteral("mousemove"), number(onScreen.x()), number(onScreen.y()),
           QStringLiteral("click"), QStringLiteral("1")});
}

void ProgramWindow::drag(const QPoint &from, const QPoint &to)
{
    // A step in between: a press and a jump may arrive as one event.
    const QPoint middle = (from + to) / 2;
    const QString pause = QStringLiteral("0.1");
    input({QStringLiteral("mousemove"), number(from.x()), number(from.y()),
           QStringLiteral("mousedown"), QStringLiteral("1"), QStringLiteral("sleep"), pause,
           QStringLiteral("mousemove"), number(middle.x()), number(middle.y()),
           QStringLiteral("sleep"), pause, QStringLiteral("mousemove"), number(to.x()),
           number(to.y()), QStringLiteral("sleep"), pause, QStringLiteral("mouseup"),
           QStringLiteral("1")});
}

void ProgramWindow::press(const QStringList &keys)
{
    input(QStringList{QStringLiteral("key")} + keys);
}

QPoint ProgramWindow::onScreen(QWidget &twin, const char *name, const QPoint &offset)
{
    QRect place;
    if (!QTest::qWaitFor([&place] {
            place = geometry();
            return !place.isEmpty();
        })) {
        qFatal("the program shows no window to click on");
    }
    twin.resize(place.size());
    twin.grab(); // lays everything out without showing it
    const auto *const target = widget<QWidget>(twin, name);
    return place.topLeft() + target->mapTo(&twin, target->rect().center()) + offset;
}
