#include "ui/messages.h"

#include "ui/evenlines.h"
#include "ui/texts.h"

#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QShowEvent>

#include <algorithm>

namespace {

/// The widest that the lines of a box get: in sizes of its font, but in pixels no more than a large
/// font finds on a common screen.
constexpr int widestLineInFontSizes = 35;
constexpr int widestLine = 800;

/// A message box that is as wide as its text in lines of even length wants it. Qt's own is either
/// narrower than 500 pixels and never wrapped, or wrapped to those, be the font large or small; a
/// last word may then stand on a line of its own.
class EvenBox final : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    bool event(QEvent *event) override
    {
        // The base would answer with its own width.
        return event->type() == QEvent::LayoutRequest || QMessageBox::event(event);
    }

    void showEvent(QShowEvent *event) override
    {
        if (event->spontaneous()) {
            return; // restored by the window system; the base would take its own width again
        }
        QMessageBox::showEvent(event);
        const QPoint middle = geometry().center();
        fit();
        move(middle - rect().center());
    }

private:
    void fit()
    {
        auto *const label = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        const int fontSize = label->fontInfo().pixelSize();
        label->setWordWrap(true);
        label->setFixedWidth(evenWidth(text(), label->font(),
                                       std::min(fontSize * widestLineInFontSizes, widestLine)));
        const int width = layout()->totalMinimumSize().width();
        setFixedSize(width, layout()->totalHeightForWidth(width));
    }
};

int show(QWidget *window, const Message &message, QMessageBox::Icon icon,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preset)
{
    // The flag must be there when the box is made: set alone afterwards it would take the others
    // away and make the box a child inside the window.
    EvenBox box(icon, translated(message.title), translated(message.text), buttons, window,
                Qt::FramelessWindowHint);
    box.setDefaultButton(preset);
    return box.exec();
}

} // namespace

bool ask(QWidget *window, const Message &question)
{
    return show(window, question, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No,
                QMessageBox::No)
           == QMessageBox::Yes;
}

void tell(QWidget *window, const Message &notice)
{
    show(window, notice, QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok);
}
