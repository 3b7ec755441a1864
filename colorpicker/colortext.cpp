#include "colorpicker/colortext.h"

#include "colorpicker/textstepping.h"

#include <QKeyEvent>
#include <QWheelEvent>

ColorText::ColorText(QWidget *parent)
    : QLineEdit(parent)
    , separatorText(QStringLiteral(" "))
{}

bool ColorText::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QLineEdit::event(event);
    }
    const auto *keyEvent = static_cast<QKeyEvent *>(event);
    const Qt::KeyboardModifiers modifiers = keyEvent->modifiers();
    if (keyEvent->key() == Qt::Key_Tab && !modifiers.testFlag(Qt::ControlModifier)) {
        selectNeighbour(1);
    } else if (keyEvent->key() == Qt::Key_Tab && modifiers == Qt::ControlModifier) {
        emit focusNextField();
    } else if (keyEvent->key() == Qt::Key_Backtab) {
        if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier)) {
            emit focusPrevField();
        } else {
            selectNeighbour(-1);
        }
    } else {
        return QLineEdit::event(event);
    }
    event->accept();
    return true;
}

void ColorText::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        stepAt(cursorPosition(), 1);
        break;
    case Qt::Key_Down:
        stepAt(cursorPosition(), -1);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void ColorText::wheelEvent(QWheelEvent *event)
{
    const int position = cursorPositionAt(event->position().toPoint());
    stepAt(position, event->angleDelta().y() >= 1 ? 1 : -1);
    event->accept();
}

bool ColorText::textIsValid() const
{
    return TextStepping::isValid(text(), model);
}

int ColorText::componentAt(int position) const
{
    return model == ColorModel::Hex
               ? TextStepping::hexComponentAt(position, text().size())
               : TextStepping::decimalComponentAt(text(), position, separatorText);
}

void ColorText::stepAt(int position, int delta)
{
    if (!textIsValid()) {
        return;
    }
    const auto stepped = TextStepping::step(text(), componentAt(position), delta, cursorPosition(),
                                            {model, separatorText});
    if (!stepped) {
        return;
    }
    setText(stepped->text);
    // A step counts as typing. Whoever listens may set the text once more, which moves the cursor,
    // so that is placed afterwards.
    emit textEdited(stepped->text);
    setCursorPosition(stepped->cursor);
}

void ColorText::selectNeighbour(int direction)
{
    if (!textIsValid()) {
        return;
    }
    const auto span = TextStepping::componentSpan(text(), componentAt(cursorPosition()) + direction,
                                                  {model, separatorText});
    setSelection(span.start, span.length);
}
