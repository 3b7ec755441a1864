// Follows Lumikey's lighting: prints a line for each change. Stands on Qt 5's Core and Network.
#include <QtCore>
#include <QtNetwork>

#include <cstdio>

/// The five words of one answer; empty when there was none, or a broken one.
static QVector<uint> fetch()
{
    QTcpSocket server;
    server.connectToHost(QHostAddress(QStringLiteral("127.0.0.9")), 52316);
    while (server.waitForReadyRead(2000)) { // until the server closes
    }
    const QByteArray data = server.readAll();
    QDataStream stream(data); // big-endian; a text is its length and UTF-16
    quint16 length = 0;
    QString line;
    stream >> length >> line;
    QVector<uint> words;
    for (const QString &field : line.split(QLatin1Char(','))) {
        words += field.toUInt();
    }
    const bool whole = length == data.size() - 2 && stream.atEnd() && words.size() == 5;
    return whole ? words : QVector<uint>();
}

/// What a real agent gives to the keyboard instead.
static QString describe(const QVector<uint> &words)
{
    const QVector<uint> zones = words.mid(0, 4);
    if (zones == QVector<uint>(4, 0xE007F007)) {
        return QStringLiteral("wake");
    }
    QString text;
    if (zones == QVector<uint>(4, 0xE0003000)) {
        text = QStringLiteral("off, ");
    }
    const QByteArrayList names{"left", "centre", "right", "stripe"};
    for (int zone = 0; zone < names.size(); ++zone) {
        const uint word = zones[zone];
        if (word >> 24 == 0xF0U + zone) { // any other word is no colour: leave the zone as it is
            text += QString::asprintf("%s #%02x%02x%02x, ", names[zone].constData(),
                                      word >> 8 & 255, word & 255, word >> 16 & 255);
        }
    }
    return text + QString::asprintf("effect 0x%08x", words[4]);
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    for (QString last;; QThread::msleep(last.isEmpty() ? 1000 : 100)) {
        const QVector<uint> words = fetch();
        const QString now = words.isEmpty() ? QString() : describe(words);
        if (!now.isEmpty() && now != last) {
            std::puts(qPrintable(now));
            std::fflush(stdout);
        }
        last = now;
    }
}
