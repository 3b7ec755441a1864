#pragma once

#include <QObject>

class QKeyEvent;
class QLineEdit;

/// Lets the numbers of a colour be typed with blanks between them, letter by letter, into a field
/// whose text is made uniform after every letter. There a blank at the end would be trimmed away
/// before the next digit comes, but a comma becomes a blank that stays; so such a blank goes in as
/// a comma.
class BlankTyping : public QObject
{
    Q_OBJECT

public:
    /// Watches and is owned by @p field.
    explicit BlankTyping(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool endsNumber(const QKeyEvent &event) const;

    QLineEdit *field;
};
