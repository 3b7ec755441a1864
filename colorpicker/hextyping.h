#pragma once

#include <QObject>
#include <QString>

class QKeyEvent;
class QLineEdit;

/// Lets the six digits of a colour be typed, and erased, letter by letter in a field that writes a
/// valid text out at once: after the third digit "123" is a colour and becomes "112233". What comes
/// at the end of such a text goes on from the three digits instead.
class HexTyping : public QObject
{
    Q_OBJECT

public:
    /// Watches and is owned by @p field.
    explicit HexTyping(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool goesOn(const QKeyEvent &event) const;

    QLineEdit *field;
    QString typed; ///< the text as the last edit left it, empty once the user was elsewhere
};
