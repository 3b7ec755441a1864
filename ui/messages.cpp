#include "ui/messages.h"

#include <QMessageBox>

namespace {

int show(QWidget *window, const Message &message, QMessageBox::Icon icon,
         QMessageBox::StandardButtons buttons)
{
    // The flag must be there when the box is made: set alone afterwards it would take the others
    // away and make the box a child inside the window.
    QMessageBox box(icon, QString::fromLatin1(message.title), QString::fromLatin1(message.text),
                    buttons, window, Qt::FramelessWindowHint);
    return box.exec();
}

} // namespace

bool ask(QWidget *window, const Message &question)
{
    return show(window, question, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No)
           == QMessageBox::Yes;
}

void tell(QWidget *window, const Message &notice)
{
    show(window, notice, QMessageBox::Information, QMessageBox::Ok);
}
