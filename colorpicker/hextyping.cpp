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
    connect(field, &QLineEdit::textEdited, this, [this](const QString &text) {
        typed = ColorTyping::withoutHash({text, field->cursorPosition()});
    });
}

bool HexTyping::eventFilter(QObject * /*watched*/, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress && goesOn(*static_cast<QKeyEvent *>(event))) {
        field->setText(typed.text);
        field->setCursorPosition(typed.cursor);
    } else if (type == QEvent::FocusIn || type == QEvent::MouseButtonPress) {
        typed = {};
    }
    return false;
}

bool HexTyping::goesOn(const QKeyEvent &event) const
{
    const QString written = field->text();
    if (typed.text.size() != shortLength || written != writtenOut(typed.text)
        || field->cursorPosition() != ColorTyping::cursorAfterRewriting(typed, written.size())
        || field->hasSelectedText() || event.modifiers().testFlag(Qt::AltModifier)) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Backspace:
        return typed.cursor > 0;
    case Qt::Key_Delete:
        return typed.cursor < shortLength;
    default:
        return isHexDigit(event.text());
    }
}
