#include "colorpicker/colortyping.h"

#include <QTest>

using ColorTyping::Typed;

/// A "|" stands for the cursor.
class TestColorTyping : public QObject
{
    Q_OBJECT

private slots:
    void gaps_data();
    void gaps();
    void hashes_data();
    void hashes();
    void cursors_data();
    void cursors();
};

namespace {

Typed parsed(const QString &marked)
{
    return {QString(marked).remove(QLatin1Char('|')), marked.indexOf(QLatin1Char('|'))};
}

QString marked(const Typed &typed)
{
    return QString(typed.text).insert(typed.cursor, QLatin1Char('|'));
}

void row(const char *typed, const char *result)
{
    QTest::newRow(*typed == '\0' ? "empty" : typed)
        << QString::fromLatin1(typed) << QString::fromLatin1(result);
}

} // namespace

void TestColorTyping::gaps_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    row("255 0 |", "255 0 |");
    row("255 0|", "(none)");
    row("255 0,|", "255 0 |");
    row("255 | 0", "255 | 0");
    row("255| 0", "(none)");
    row("255 |0", "(none)");
    row("| 0 0", "| 0 0");
    row("|", "|");
    row(" |", "|");
    row("7  |", "7 |");
    row("7 ,  |  ,9", "7 | 9");
    row("  7 |", "7 |");
    row("7 8 9 |", "(none)");
    row("7 8 | 9", "(none)");
    row("300 0 0 |", "(none)");
    row("x |", "x |");
}

void TestColorTyping::gaps()
{
    QFETCH(QString, typed);
    const auto shown = ColorTyping::withGap(parsed(typed));
    QTEST(shown ? marked(*shown) : QStringLiteral("(none)"), "shown");
}

void TestColorTyping::hashes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken");
    row("#ff00aa|", "ff00aa|");
    row("##FF00AA|", "FF00AA|");
    row("#0A0|", "0A0|");
    row("00ff80#ff00aa|", "ff00aa|");
    row("#ff00aa|00ff80", "ff00aa|");
    row("00f#0A0|f80", "0A0|");
    row("#ff00a|", "#ff00a|");
    row("#ff00aa00|", "#ff00aa00|");
    row("|#ff00aa", "|#ff00aa");
    row("#|ff00aa", "#|ff00aa");
    row("#gg0000|", "#gg0000|");
    row("ff00aa|", "ff00aa|");
    row("f|00", "f|00");
    row("ff0|0a1", "ff0|0a1");
    row("ff00aa|0a1", "ff00aa|0a1");
    row("|", "|");
}

void TestColorTyping::hashes()
{
    QFETCH(QString, typed);
    QTEST(marked(ColorTyping::withoutHash(parsed(typed))), "taken");
}

void TestColorTyping::cursors_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("newSize");
    QTest::addColumn<int>("cursor");
    const auto cursorRow = [](const char *typed, int newSize, int cursor) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << newSize << cursor;
    };
    cursorRow("12|ff80", 6, 2);
    cursorRow("f00|", 6, 6);
    cursorRow("f|00", 6, 2);
    cursorRow("|f00", 6, 0);
    cursorRow("034| 77", 5, 2);
    cursorRow("255 034| 77", 9, 6);
    cursorRow("1 2 3|", 5, 5);
}

void TestColorTyping::cursors()
{
    QFETCH(QString, typed);
    QFETCH(int, newSize);
    QTEST(ColorTyping::cursorAfterRewriting(parsed(typed), newSize), "cursor");
}

QTEST_GUILESS_MAIN(TestColorTyping)
#include "tst_colortyping.moc"
