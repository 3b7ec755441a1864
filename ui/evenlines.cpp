#include "ui/evenlines.h"

#include <QFontMetrics>
#include <QWidget>

int evenWidth(const QString &text, const QFont &font, int widest)
{
    const QFontMetrics metrics(font);
    const auto wrapped = [&](int width) {
        const QRect room(QPoint(), QSize(width, QWIDGETSIZE_MAX));
        return metrics.boundingRect(room, Qt::TextWordWrap, text);
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
