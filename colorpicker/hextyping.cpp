#include "colorpicker/hextyping.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

constexpr int shortLength = 3;

/// Three digits as the six they stand for.
QString writtenOut(const QString &digits)
{
    QString text;
    for (const QChar digit : digits.toLower()) {
        text += QString(2, digit);
    }
    return text;
}

bool isHexDigit(const QString &key)
{
    bool valid = false;
    key.toUInt(&valid, 16);
    return valid && key.size() == 1;
}

} // namespace

HexTyping::HexTyping(QLineEdit *watchedField)
    : QObject(watchedField)
    , field(watchedField)
{
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, [this](const QString &text) { typed = text; });
}

bool HexTyping::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (goesOn(*static_cast<QKeyEvent *>(event))) {
            field->setText(typed);
        }
        break;
    case QEvent::FocusIn:
    case QEvent::MouseButtonPress:
        typed.clear();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool HexTyping::goesOn(const QKeyEvent &event) const
{
    const bool edits = !event.modifiers().testFlag(Qt::AltModifier)
                       && (event.key() == Qt::Key_Backspace || isHexDigit(event.text()));
    return edits && typed.size() == shortLength && field->text() == writtenOut(typed)
           && !field->hasSelectedText() && field->cursorPosition() == field->text().size();
}
