#include "ui/evenlines.h"

#include <QFontMetrics>

int evenWidth(const QString &text, const QFont &font, int widest)
{
    const QFontMetrics metrics(font);
    const auto wrapped = [&](int width) {
        return metrics.boundingRect(0, 0, width, 0, Qt::TextWordWrap, text);
    };
    const QRect atWidest = wrapped(widest);
    int tooNarrow = 0;
    int enough = widest;
    while (enough - tooNarrow > 1) {
        const int width = (tooNarrow + enough) / 2;
        const QRect rect = wrapped(width);
        (rect.height() > atWidest.height() || rect.width() > width ? tooNarrow : enough) = width;
    }
    return enough;
}
