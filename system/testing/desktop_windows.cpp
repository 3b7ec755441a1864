#include "system/testing/desktop.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>

#include <array>
#include <string>

#include <windows.h>

namespace {

HWND handle(quintptr window)
{
    return reinterpret_cast<HWND>(window);
}

bool isShown(HWND window)
{
    return ::IsWindowVisible(window) != FALSE && ::IsIconic(window) == FALSE;
}

struct Search
{
    QRegularExpression title;
    QVector<quintptr> found;
};

BOOL CALLBACK look(HWND window, LPARAM argument)
{
    auto *const search = reinterpret_cast<Search *>(argument);
    std::array<wchar_t, 256> title = {};
    const int length =
        ::GetWindowTextW(window, title.data(), static_cast<int>(title.size())); // never waits
    if (isShown(window) && length > 0
        && search->title.match(QString::fromWCharArray(title.data(), length)).hasMatch()) {
        search->found += reinterpret_cast<quintptr>(window);
    }
    return TRUE;
}

void sendMouse(DWORD flags, DWORD data = 0, LONG x = 0, LONG y = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.mouseData = data;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
}

struct NamedKey
{
    const char *name;
    WORD code;
    bool extended; ///< one of those that were added between letters and numbers
};

constexpr std::array namedKeys{
    NamedKey{"Return", VK_RETURN, false}, NamedKey{"Escape", VK_ESCAPE, false},
    NamedKey{"Tab", VK_TAB, false},       NamedKey{"space", VK_SPACE, false},
    NamedKey{"Home", VK_HOME, true},      NamedKey{"End", VK_END, true},
    NamedKey{"Left", VK_LEFT, true},      NamedKey{"Right", VK_RIGHT, true},
    NamedKey{"Up", VK_UP, true},          NamedKey{"Down", VK_DOWN, true},
    NamedKey{"ctrl", VK_CONTROL, false},  NamedKey{"alt", VK_MENU, false},
    NamedKey{"shift", VK_SHIFT, false},   NamedKey{"F4", VK_F4, false},
};

NamedKey keyOf(const QString &name)
{
    for (const NamedKey &key : namedKeys) {
        if (name == QLatin1String(key.name)) {
            return key;
        }
    }
    const SHORT code = name.size() == 1 ? ::VkKeyScanW(name.at(0).unicode()) : SHORT{-1};
    if ((code & 0xFF00) != 0) { // unknown, or not without Shift
        qFatal("no key is named %s", qPrintable(name));
    }
    return {"", static_cast<WORD>(code), false};
}

void sendKey(const NamedKey &key, bool up)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key.code;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(key.code, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0U) | (key.extended ? KEYEVENTF_EXTENDEDKEY : 0U);
    ::SendInput(1, &input, sizeof input);
}

} // namespace

QVector<quintptr> Desktop::shownWindows(const QString &title)
{
    Search search = {QRegularExpression(title), {}};
    ::EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

QRect Desktop::geometry(quintptr window)
{
    RECT place = {};
    if (::GetWindowRect(handle(window), &place) == FALSE) {
        return {};
    }
    return {QPoint(place.left, place.top), QPoint(place.right - 1, place.bottom - 1)};
}

quintptr Desktop::activeWindow()
{
    return reinterpret_cast<quintptr>(::GetForegroundWindow());
}

quintptr Desktop::topWindow()
{
    constexpr LONG_PTR asideOfOthers = WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
    HWND window = ::GetTopWindow(nullptr);
    while (
        window != nullptr
        && (!isShown(window) || (::GetWindowLongPtrW(window, GWL_EXSTYLE) & asideOfOthers) != 0)) {
        window = ::GetWindow(window, GW_HWNDNEXT);
    }
    return reinterpret_cast<quintptr>(window);
}

void Desktop::move(quintptr window, const QPoint &to)
{
    ::SetWindowPos(handle(window), nullptr, to.x(), to.y(), 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

QImage Desktop::picture(const QRect &part)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, part.x(), part.y(), part.width(), part.height())
        .toImage();
}

void Desktop::movePointer(const QPoint &to)
{
    // The screen is 65,536 wide and high; rounded up, or the system would round to the pixel
    // before.
    const auto scaled = [](int position, int size) {
        return static_cast<LONG>((position * 0x10000LL + size - 1) / size);
    };
    sendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0,
              scaled(to.x(), ::GetSystemMetrics(SM_CXSCREEN)),
              scaled(to.y(), ::GetSystemMetrics(SM_CYSCREEN)));
    // Under Wine the display tells the window of the move once more, a little later: a button that
    // was pressed before would go down where the pointer was until then.
    constexpr DWORD echoMs = 100;
    ::Sleep(echoMs);
}

void Desktop::pressButton(Button button)
{
    sendMouse(button == Button::Left     ? MOUSEEVENTF_LEFTDOWN
              : button == Button::Middle ? MOUSEEVENTF_MIDDLEDOWN
                                         : MOUSEEVENTF_RIGHTDOWN);
}

void Desktop::releaseButton(Button button)
{
    sendMouse(button == Button::Left     ? MOUSEEVENTF_LEFTUP
              : button == Button::Middle ? MOUSEEVENTF_MIDDLEUP
                                         : MOUSEEVENTF_RIGHTUP);
}

void Desktop::click(const QPoint &at)
{
    movePointer(at);
    pressButton(Button::Left);
    releaseButton(Button::Left);
}

void Desktop::turnWheel(bool away)
{
    sendMouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(away ? WHEEL_DELTA : -WHEEL_DELTA));
}

void Desktop::press(const QStringList &keys)
{
    for (const QString &chord : keys) {
        QVector<NamedKey> held;
        const QStringList names = chord.split(QLatin1Char('+'));
        for (const QString &name : names) {
            held += keyOf(name);
            sendKey(held.constLast(), false);
        }
        while (!held.isEmpty()) {
            sendKey(held.takeLast(), true);
        }
    }
}
