#pragma once

#include "formlooks.h"
#include "formtables.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QStringList>

/// The form's visible widgets whose text is clipped, that stick out of their parent or that cover
/// a neighbour.
/// @param tight texts of buttons and lists may have less air around them than they want
inline QStringList clippedWidgets(const QWidget &window, bool tight = false)
{
    QVector<QWidget *> shown;
    for (const auto &row : formtables::widgets) {
        auto *const widget = window.findChild<QWidget *>(QLatin1String(row.object));
        if (widget && widget->isVisible()) {
            shown += widget;
        }
    }
    const auto needsRoom = [](const QWidget *widget) {
        const bool mayHoldText =
            qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget);
        return qobject_cast<const QComboBox *>(widget)
               || (mayHoldText && !widget->property("text").toString().isEmpty());
    };
    int texts = 0;
    QStringList problems;
    for (const QWidget *widget : qAsConst(shown)) {
        if (!widget->parentWidget()->rect().contains(widget->geometry())) {
            problems += widget->objectName() + QStringLiteral(" sticks out");
        }
        if (needsRoom(widget)) {
            ++texts;
            QSize needed = widget->sizeHint();
            if (tight && !qobject_cast<const QLabel *>(widget)) {
                needed.setHeight(qMin(needed.height(), widget->fontMetrics().height()));
            }
            if (widget->width() < needed.width() || widget->height() < needed.height()) {
                problems += QStringLiteral("%1 has %2x%3 of %4x%5: ")
                                .arg(widget->objectName())
                                .arg(widget->width())
                                .arg(widget->height())
                                .arg(needed.width())
                                .arg(needed.height())
                            + widget->property("text").toString();
            }
        }
        for (const QWidget *other : qAsConst(shown)) {
            if (other > widget && other->parentWidget() == widget->parentWidget()
                && other->geometry().intersects(widget->geometry())) {
                problems += widget->objectName() + QStringLiteral(" meets ") + other->objectName();
            }
        }
    }
    if (texts <= 10) {
        problems += QStringLiteral("too few texts are shown");
    }
    return problems;
}
