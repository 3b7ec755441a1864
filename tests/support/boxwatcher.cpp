#include "tests/support/boxwatcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace {

constexpr int periodMs = 20;

} // namespace

BoxWatcher::BoxWatcher(QMessageBox::StandardButton answerToGive)
    : answer(answerToGive)
{
    connect(&timer, SIGNAL(timeout()), this, SLOT(watch()));
    timer.start(periodMs);
}

void BoxWatcher::watch()
{
    auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) {
        return;
    }
    seen.append({box->windowTitle(), box->text(), box->icon(), box->standardButtons(),
                 box->parentWidget(), box->isModal(),
                 box->windowFlags().testFlag(Qt::FramelessWindowHint), box->isWindow()});
    if (look) {
        timer.stop(); // it may run the event loop
        look(*box);
        timer.start();
    }
    if (answer == QMessageBox::NoButton) {
        QTest::keyClick(box, Qt::Key_Escape);
    } else if (QAbstractButton *const button = box->button(answer)) {
        button->click();
    } else {
        qFatal("the box has no such button");
    }
}
