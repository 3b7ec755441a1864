#include "tests/support/boxwatcher.h"
#include "tests/support/testwindow.h"
#include "ui/darkstyle.h"
#include "ui/evenlines.h"
#include "ui/messages.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTextLayout>
#include <QtTest>

namespace {

struct Row
{
    const char *name;
    const Message &message;
};

const std::array questions{
    Row{"firmware library", Messages::installFirmwareLibrary},
    Row{"update", Messages::updateNow},
    Row{"update with rights", Messages::updateNeedsRights},
    Row{"uninstall", Messages::uninstallNeedsRights},
    Row{"per-key", Messages::perKeyNeedsRights},
};

/// The lines of one paragraph at that width.
QStringList linesOf(const QString &paragraph, const QFont &font, int width)
{
    QTextLayout layout(paragraph, font);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines += paragraph.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

/// The narrowest that a text can be without being wrapped more than it has paragraphs.
int wanted(const QString &text, const QFont &font)
{
    return evenWidth(text, font, 100'000);
}

/// Words that want just that many pixels in one line; nothing where no letters of the font do.
QString wordsAsWideAs(int width, const QFont &font)
{
    QString words = QStringLiteral("mm");
    while (wanted(words + QStringLiteral(" mm mmmmmmmm"), font) < width) {
        words += QStringLiteral(" mm");
    }
    for (int narrow = 0; narrow < 30; ++narrow) {
        for (int middle = 0; middle < 30; ++middle) {
            const QString all = words + QLatin1Char(' ') + QString(narrow, QLatin1Char('i'))
                                + QString(middle, QLatin1Char('n')) + QLatin1Char('m');
            if (qAbs(QFontMetrics(font).horizontalAdvance(all) - width) < 5
                && wanted(all, font) == width) {
                return all;
            }
        }
    }
    return {};
}

QLabel &textLabel(const QMessageBox &box)
{
    return *widget<QLabel>(box, "qt_msgbox_label");
}

} // namespace

/// What the message boxes look like, and what Enter answers.
class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void evenLines_data();
    void evenLines();
    void enterIsNo_data();
    void enterIsNo();
    void enterClosesANotice();
    void iconsAreOurs_data();
    void iconsAreOurs();
    void noLineHasOneWord_data();
    void noLineHasOneWord();
    void widestLine_data();
    void widestLine();
    void staysAsItIs();
    void staysWhereItIs();

private:
    std::unique_ptr<TestWindow> world;
};

void TestMessages::initTestCase()
{
    QApplication::setStyle(new DarkStyle);
}

void TestMessages::init()
{
    QFont font = QApplication::font();
    font.setPixelSize(12);
    QApplication::setFont(font);
    world = std::make_unique<TestWindow>();
    world->start().show();
    QVERIFY(QTest::qWaitForWindowExposed(world->window.get()));
}

void TestMessages::cleanup()
{
    world.reset();
}

void TestMessages::evenLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("ofLongest"); // widest, in hundredths of the text's longest paragraph
    QTest::addColumn<int>("lines");
    QTest::newRow("one line") << QStringLiteral("some words") << 120 << 1;
    QTest::newRow("just so") << QStringLiteral("some words") << 100 << 1;
    QTest::newRow("two lines") << QStringLiteral("one two three four five six") << 95 << 2;
    QTest::newRow("three lines") << QStringLiteral("aa bb cc dd ee ff gg hh ii jj kk ll") << 40
                                 << 3;
    QTest::newRow("paragraphs") << QStringLiteral("short\none two three four five six") << 95 << 3;
    QTest::newRow("one word") << QStringLiteral("word") << 300 << 1;
    QTest::newRow("no text") << QString() << 100 << 0;
}

void TestMessages::evenLines()
{
    QFETCH(QString, text);
    QFETCH(int, ofLongest);
    QFETCH(int, lines);
    const QFont font = QApplication::font();
    int longest = 1;
    for (const QString &paragraph : text.split(QLatin1Char('\n'))) {
        longest = std::max(longest, QFontMetrics(font).horizontalAdvance(paragraph) + 1);
    }
    const auto linesAt = [&](int width) {
        int count = 0;
        for (const QString &paragraph : text.split(QLatin1Char('\n'))) {
            count += linesOf(paragraph, font, width).size();
        }
        return text.isEmpty() ? 0 : count;
    };
    const int widest = longest * ofLongest / 100;
    const int width = evenWidth(text, font, widest);
    QVERIFY(width <= widest);
    QCOMPARE(linesAt(width), lines);
    QCOMPARE(linesAt(widest), lines);
    if (text.contains(QLatin1Char(' '))) {
        QVERIFY2(linesAt(width - 2) > lines || width < 2, "it could be narrower");
    }
    const auto textAt = [&](int most) {
        const QRect room(QPoint(), QSize(most, 1000));
        return QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, text);
    };
    const auto fits = [&](int most, int room) {
        const QRect rect = textAt(most);
        return rect.width() <= most && rect.height() <= textAt(room).height();
    };
    // Wherever halving begins, it ends at the least width.
    for (int room = widest; room < widest + 8; ++room) {
        const int least = evenWidth(text, font, room);
        QVERIFY(fits(least, room));
        QVERIFY2(least == 1 || !fits(least - 1, room), "it could be narrower");
    }
}

void TestMessages::enterIsNo_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t row = 0; row < questions.size(); ++row) {
        QTest::newRow(questions.at(row).name) << int(row);
    }
}

void TestMessages::enterIsNo()
{
    QFETCH(int, row);
    BoxWatcher watcher;
    watcher.look = [](QMessageBox &box) {
        QCOMPARE(box.defaultButton(), qobject_cast<QPushButton *>(box.button(QMessageBox::No)));
        QTRY_COMPARE(box.focusWidget(), box.button(QMessageBox::No));
        QTest::keyClick(&box, Qt::Key_Return);
    };
    QVERIFY(!ask(world->window.get(), questions.at(std::size_t(row)).message));
    QCOMPARE(watcher.seen.size(), 1);
}

void TestMessages::enterClosesANotice()
{
    BoxWatcher watcher;
    watcher.look = [](QMessageBox &box) {
        QTest::keyClick(&box, Qt::Key_Return);
    };
    tell(world->window.get(), {"Title", "Text"});
    QCOMPARE(watcher.seen.size(), 1);
}

void TestMessages::iconsAreOurs_data()
{
    QTest::addColumn<bool>("question");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("fontSize");
    for (const int size : {12, 22, 36}) {
        QTest::addRow("question %d", size)
            << true << QStringLiteral(":/darkstyle/icon_question.png") << size;
        QTest::addRow("notice %d", size)
            << false << QStringLiteral(":/darkstyle/icon_information.png") << size;
    }
}

void TestMessages::iconsAreOurs()
{
    QFETCH(bool, question);
    QFETCH(QString, file);
    QFETCH(int, fontSize);
    QFont font = QApplication::font();
    font.setPixelSize(fontSize);
    QApplication::setFont(font);
    BoxWatcher watcher(question ? QMessageBox::No : QMessageBox::Ok);
    QImage shown;
    watcher.look = [&](QMessageBox &box) {
        shown = widget<QLabel>(box, "qt_msgboxex_icon_label")->pixmap(Qt::ReturnByValue).toImage();
    };
    if (question) {
        ask(world->window.get(), Messages::updateNow);
    } else {
        tell(world->window.get(), Messages::updateNow);
    }
    QVERIFY(!shown.isNull());
    const QImage drawing(file);
    QCOMPARE(shown.width(), std::min(fontSize * 27 / 10, drawing.width())); // never blown up
    const QImage ours = drawing.scaled(shown.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    qint64 difference = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            difference +=
                qAbs(shown.pixelColor(x, y).lightness() - ours.pixelColor(x, y).lightness());
        }
    }
    const qint64 pixels = qint64{shown.width()} * shown.height();
    QVERIFY2(difference / pixels < 8, qPrintable(QString::number(difference)));
}

void TestMessages::noLineHasOneWord_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("fontSize");
    for (std::size_t row = 0; row < questions.size(); ++row) {
        // Those of all displays.
        for (const int size : {12, 14, 17, 19, 20, 22, 24, 26, 34, 36}) {
            QTest::addRow("%s %d", questions.at(row).name, size) << int(row) << size;
        }
    }
}

void TestMessages::noLineHasOneWord()
{
    QFETCH(int, row);
    QFETCH(int, fontSize);
    QFont font = QApplication::font();
    font.setPixelSize(fontSize);
    QApplication::setFont(font);
    const QString text = QString::fromLatin1(questions.at(std::size_t(row)).message.text);
    BoxWatcher watcher(QMessageBox::No);
    watcher.look = [&](QMessageBox &box) {
        const QLabel &label = textLabel(box);
        QCOMPARE(box.text(), text);
        // The window manager may still be at the size that the box had before.
        QTRY_VERIFY(label.height() >= label.heightForWidth(label.width()));
        QTRY_VERIFY(box.rect().contains(QRect(label.mapTo(&box, QPoint()), label.size())));
        for (const QString &paragraph : text.split(QLatin1Char('\n'))) {
            const QStringList lines = linesOf(paragraph, label.font(), label.width());
            QVERIFY2(lines.size() == 1 || lines.last().contains(QLatin1Char(' ')),
                     qPrintable(lines.join(QLatin1String(" | "))));
        }
    };
    ask(world->window.get(), questions.at(std::size_t(row)).message);
    QCOMPARE(watcher.seen.size(), 1);
}

void TestMessages::widestLine_data()
{
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<int>("widest");
    QTest::newRow("in sizes of the font") << 12 << 420;
    QTest::newRow("of a large font") << 30 << 800;
}

void TestMessages::widestLine()
{
    QFETCH(int, fontSize);
    QFETCH(int, widest);
    QFont font = QApplication::font();
    font.setPixelSize(fontSize);
    QApplication::setFont(font);
    for (const bool fits : {true, false}) {
        const QByteArray text = wordsAsWideAs(fits ? widest : widest + 1, font).toLatin1();
        if (text.isEmpty()) {
            QSKIP("this font has no words of that width");
        }
        int width = 0;
        BoxWatcher watcher(QMessageBox::Ok);
        watcher.look = [&width](QMessageBox &box) {
            QVERIFY(textLabel(box).wordWrap());
            width = textLabel(box).width();
        };
        tell(world->window.get(), {"Title", text.constData()});
        QCOMPARE(watcher.seen.size(), 1);
        QVERIFY2(fits ? width == widest : width < widest * 3 / 4,
                 qPrintable(QString::number(width)));
    }
}

/// Whatever has the box lay itself out once more.
void TestMessages::staysAsItIs()
{
    BoxWatcher watcher(QMessageBox::No);
    watcher.look = [](QMessageBox &box) {
        // The window manager may still be at the size that the box had before.
        QTRY_COMPARE(box.size(), box.minimumSize());
        const QSize size = box.size();
        const int width = textLabel(box).width();
        for (int time = 0; time < 3; ++time) {
            QCoreApplication::postEvent(&box, new QEvent(QEvent::LayoutRequest));
            QCoreApplication::processEvents();
            QCOMPARE(box.size(), size);
            QCOMPARE(box.minimumSize(), size);
            QCOMPARE(box.maximumSize(), size);
            QCOMPARE(textLabel(box).width(), width);
        }
    };
    ask(world->window.get(), Messages::uninstallNeedsRights);
    QCOMPARE(watcher.seen.size(), 1);
}

/// The window system shows it again, as after a minimised window.
void TestMessages::staysWhereItIs()
{
    BoxWatcher watcher(QMessageBox::No);
    watcher.look = [](QMessageBox &box) {
        QTRY_COMPARE(box.size(), box.minimumSize());
        const QSize size = box.size();
        box.move(box.pos() + QPoint(37, 23));
        const QPoint position = box.pos();
        box.setContentsMargins(0, 9, 0, 0); // with which it would be laid out anew
        QShowEvent restored;
        QSpontaneKeyEvent::setSpontaneous(&restored);
        QVERIFY(qApp->notify(&box, &restored)); // as sendEvent would say that we sent it
        QCOMPARE(box.pos(), position);
        QCOMPARE(box.size(), size);
    };
    ask(world->window.get(), Messages::uninstallNeedsRights);
    QCOMPARE(watcher.seen.size(), 1);
}

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
