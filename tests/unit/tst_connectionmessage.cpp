#include "app/connectionmessage.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

const QString ownName = QStringLiteral("name");

} // namespace

/// The expected bytes were made by another program from the list of fields.
class TestConnectionMessage : public QObject
{
    Q_OBJECT

private slots:
    void emptyMessage();
    void encode_data();
    void encode();
    void decode_data();
    void decode();
    void everyWrongBitIsSeen();
    void randomBytes();
};

void TestConnectionMessage::emptyMessage()
{
    const ConnectionMessage message;
    QCOMPARE(int(message.connectionType), 0); // which nobody sends
    QCOMPARE(message.instanceNumber, 0U);
}

void TestConnectionMessage::encode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");
    QTest::addColumn<quint32>("number");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("new start") << ownName << 1 << 0U
                               << QByteArray("000000046e616d650100000000f5fe");
    QTest::newRow("secondary") << ownName << 2 << 7U
                               << QByteArray("000000046e616d6502000000079c8d");
    QTest::newRow("large number") << ownName << 2 << 0xfffffffeU
                                  << QByteArray("000000046e616d6502fffffffe0a22");
    QTest::newRow("real name")
        << QStringLiteral("3ECdAM8E8xxbGHGZIIAdzYWnynVE6aNONksqC3CSYqQ=") << 1 << 0U
        << QByteArray("0000002c33454364414d3845387878624748475a494941647a59576e796e564536614e4f4e6b"
                      "7371433343535971513d0100000000334d");
}

void TestConnectionMessage::encode()
{
    QFETCH(QString, name);
    QFETCH(int, type);
    QFETCH(quint32, number);
    const ConnectionMessage message{static_cast<quint8>(type), number};
    QTEST(encodeConnectionMessage(name, message).toHex(), "bytes");
}

void TestConnectionMessage::decode_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("read"); // type and number; empty: invalid

    const QString invalid;
    QTest::newRow("new start") << QByteArray("000000046e616d650100000000f5fe")
                               << QStringLiteral("1 0");
    QTest::newRow("secondary") << QByteArray("000000046e616d6502000000079c8d")
                               << QStringLiteral("2 7");
    QTest::newRow("large number") << QByteArray("000000046e616d6502fffffffe0a22")
                                  << QStringLiteral("2 4294967294");
    QTest::newRow("type 0") << QByteArray("000000046e616d650000000003cc21")
                            << QStringLiteral("0 3");
    QTest::newRow("unknown type") << QByteArray("000000046e616d65c800000003dd76")
                                  << QStringLiteral("200 3");
    QTest::newRow("name ends at a zero byte")
        << QByteArray("000000096e616d65007461696c0100000000eefb") << QStringLiteral("1 0");

    QTest::newRow("nothing") << QByteArray() << invalid;
    QTest::newRow("one byte") << QByteArray("00") << invalid;
    QTest::newRow("a checksum alone") << QByteArray("0000") << invalid;
    QTest::newRow("wrong checksum") << QByteArray("000000046e616d650100000000f5ff") << invalid;
    QTest::newRow("checksum turned around")
        << QByteArray("000000046e616d650100000000fef5") << invalid;
    QTest::newRow("another name") << QByteArray("00000005006e616d6501000000002827") << invalid;
    QTest::newRow("other case") << QByteArray("000000044e616d65010000000002c7") << invalid;
    QTest::newRow("longer name") << QByteArray("000000056e616d6520010000000031e2") << invalid;
    QTest::newRow("empty name") << QByteArray("000000000100000000baa3") << invalid;
    QTest::newRow("checksum missing") << QByteArray("000000046e616d650100000000") << invalid;
    QTest::newRow("one byte missing") << QByteArray("000000046e616d650100000000f5") << invalid;
    QTest::newRow("fields missing, right checksum")
        << QByteArray("000000046e616d6527d2") << invalid;
    QTest::newRow("one byte too many") << QByteArray("000000046e616d650100000000f5fe00") << invalid;
    QTest::newRow("huge length") << QByteArray("fffffffe6e616d650100000000f5fe") << invalid;
    QTest::newRow("length of nothing") << QByteArray("ffffffff6e616d650100000000f5fe") << invalid;
}

void TestConnectionMessage::decode()
{
    QFETCH(QByteArray, hex);
    const auto message = decodeConnectionMessage(QByteArray::fromHex(hex), ownName);
    QTEST(message
              ? QStringLiteral("%1 %2").arg(message->connectionType).arg(message->instanceNumber)
              : QString(),
          "read");
}

void TestConnectionMessage::everyWrongBitIsSeen()
{
    const QByteArray right = encodeConnectionMessage(ownName, {ConnectionMessage::NewStart, 5});
    QVERIFY(decodeConnectionMessage(right, ownName));
    for (int bit = 0; bit < right.size() * 8; ++bit) {
        QByteArray wrong = right;
        wrong[bit / 8] = static_cast<char>(wrong.at(bit / 8) ^ (1 << (bit % 8)));
        QVERIFY2(!decodeConnectionMessage(wrong, ownName), wrong.toHex().constData());
    }
    for (int length = 0; length < right.size(); ++length) {
        QVERIFY(!decodeConnectionMessage(right.left(length), ownName));
    }
}

void TestConnectionMessage::randomBytes()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 100'000; ++round) {
        QByteArray bytes(random.bounded(80), Qt::Uninitialized);
        std::generate(bytes.begin(), bytes.end(),
                      [&random] { return static_cast<char>(random.bounded(256)); });
        QVERIFY2(!decodeConnectionMessage(bytes, ownName), bytes.toHex().constData());
    }
}

QTEST_GUILESS_MAIN(TestConnectionMessage)
#include "tst_connectionmessage.moc"
