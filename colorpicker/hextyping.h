#pragma once

#include "colorpicker/colortyping.h"

#include <QObject>

class QKeyEvent;
class QLineEdit;

/// Lets the six digits of a colour be typed, and erased, letter by letter in a field that writes a
/// valid text out at once: after the third digit "123" is a colour and becomes "112233". What comes
/// next, at the place where the user was, goes on from the three digits instead.
class HexTyping : public QObject
{
    Q_OBJECT

public:
    /// Watches and is owned by @p field. To be there before what writes its texts out.
    explicit HexTyping(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool goesOn(const QKeyEvent &event) const;

    QLineEdit *field;
    /// As the last edit left it, before it was written out; empty once the user was elsewhere.
    ColorTyping::Typed typed{};
};
