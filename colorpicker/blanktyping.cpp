#include "colorpicker/blanktyping.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int mostSeparators = 2;

} // namespace

BlankTyping::BlankTyping(QLineEdit *watchedField)
    : QObject(watchedField)
    , field(watchedField)
{
    field->installEventFilter(this);
}

bool BlankTyping::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !endsNumber(*static_cast<QKeyEvent *>(event))) {
        return QObject::eventFilter(watched, event);
    }
    if (!field->text().endsWith(QLatin1Char(' '))) {
        QKeyEvent comma(QEvent::KeyPress, Qt::Key_Comma, Qt::NoModifier, QStringLiteral(","));
        QCoreApplication::sendEvent(field, &comma);
    }
    return true;
}

bool BlankTyping::endsNumber(const QKeyEvent &event) const
{
    const QString text = field->text();
    return event.text() == QLatin1String(" ") && !text.isEmpty() && !field->hasSelectedText()
           && field->cursorPosition() == text.size()
           && (text.endsWith(QLatin1Char(' ')) || text.count(QLatin1Char(' ')) < mostSeparators);
}
