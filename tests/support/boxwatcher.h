#pragma once

#include <QMessageBox>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>

/// What a message box was like when it stood on the screen.
struct SeenBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
    QWidget *parent;
    bool modal;
    bool frameless;
    bool topLevel;
};

/// Waits for message boxes, notes what they are like and presses one of their buttons, so that the
/// code that shows them goes on.
class BoxWatcher : public QObject
{
    Q_OBJECT

public:
    /// @param answer the button to press; NoButton presses the escape key instead
    explicit BoxWatcher(QMessageBox::StandardButton answer = QMessageBox::NoButton);

    /// Called with each box before it is answered.
    std::function<void(QMessageBox &)> look;

    QMessageBox::StandardButton answer;
    QVector<SeenBox> seen;

private slots:
    void watch();

private:
    QTimer timer;
};
