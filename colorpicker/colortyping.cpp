#include "colorpicker/colortyping.h"

#include "colorpicker/colortexts.h"
#include "colorpicker/services.h"

namespace {

constexpr int rgbNumbers = 3;

bool separates(QChar letter)
{
    return letter.isSpace() || letter == QLatin1Char(',');
}

} // namespace

std::optional<ColorTyping::Typed> ColorTyping::withGap(const Typed &typed)
{
    const QString left = typed.text.left(typed.cursor);
    const QString right = typed.text.mid(typed.cursor);
    if ((!left.isEmpty() && !separates(left.back()))
        || (!right.isEmpty() && !separates(right.front()))) {
        return std::nullopt; // a number is beside the cursor
    }
    const QString before = Services::normalize(left).trimmed();
    const QString after = Services::normalize(right).trimmed();
    const QStringList numbers =
        (before + QLatin1Char(' ') + after).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (numbers.size() >= rgbNumbers) {
        return std::nullopt;
    }
    const QString start = before.isEmpty() ? before : before + QLatin1Char(' ');
    const QString end = after.isEmpty() ? after : QLatin1Char(' ') + after;
    return Typed{start + end, start.size()};
}

ColorTyping::Typed ColorTyping::withoutHash(const Typed &typed)
{
    const QString left = typed.text.left(typed.cursor);
    const int hash = left.lastIndexOf(QLatin1Char('#'));
    const QString digits = ColorTexts::hexFromPastedText(left.mid(hash));
    if (hash < 0 || digits.isEmpty()) {
        return typed;
    }
    return {digits, digits.size()};
}

int ColorTyping::cursorAfterRewriting(const Typed &typed, int newSize)
{
    const int oldSize = typed.text.size();
    const int scale = newSize == 2 * oldSize ? 2 : 1;
    return newSize - scale * (oldSize - typed.cursor);
}
