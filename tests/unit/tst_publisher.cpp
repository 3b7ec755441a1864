#include "companion/publisher.h"

#include "companion/publication.h"
#include "lighting/companion.h"
#include "tests/support/fakeplatform.h"

#include <QSharedMemory>
#include <QTest>

#include <cstring>

using companion::Publisher;

namespace {

/// A page, so that the segment is no larger anywhere.
constexpr int pageSize = 4096;
/// So many letters fill it, behind the length of the text.
constexpr int pageLetters = (pageSize - 4) / 2;

/// What the segment holds for everybody who looks.
QString published()
{
    QSharedMemory segment(companionSegmentName);
    return segment.attach(QSharedMemory::ReadOnly) ? companionText(
               QByteArray(static_cast<const char *>(segment.constData()), segment.size()))
                                                   : QStringLiteral("(no segment)");
}

/// A companion application's segment.
class Companion
{
public:
    explicit Companion(const QString &text)
        : segment(companionSegmentName)
    {
        const QByteArray bytes = companion::segmentBytes(text);
        if (!segment.create(pageSize)) {
            qFatal("cannot make the segment: %s", qPrintable(segment.errorString()));
        }
        std::memcpy(segment.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
    }

private:
    QSharedMemory segment;
};

} // namespace

class TestPublisher : public QObject
{
    Q_OBJECT

private slots:
    void makesASegment();
    void keepsWhatACompanionSays();
    void textThatFits();
    void textThatIsTooLong();
    void lockedForGood();
    void lockedForAWhile();
};

void TestPublisher::makesASegment()
{
    FakePlatform platform;
    {
        Publisher publisher(platform);
        QCOMPARE(published(), QStringLiteral("(no segment)"));
        for (const int brightness : {41, 40}) {
            QCOMPARE(publisher.publish(brightness), QString());
            QCOMPARE(published(), QStringLiteral(",%1").arg(brightness));
        }
        // A companion that starts meanwhile finds room.
        QSharedMemory segment(companionSegmentName);
        QVERIFY(segment.attach());
        QVERIFY2(segment.size() >= 4096, qPrintable(QString::number(segment.size())));
    }
    QCOMPARE(published(), QStringLiteral("(no segment)"));
    QVERIFY(platform.sleeps.isEmpty());
}

void TestPublisher::keepsWhatACompanionSays()
{
    const Companion other(QStringLiteral("lit,70,whatever"));
    FakePlatform platform;
    QCOMPARE(Publisher(platform).publish(8), QString());
    QCOMPARE(published(), QStringLiteral("lit,8,whatever"));
}

void TestPublisher::textThatFits()
{
    const QString rest(pageLetters - 3, QLatin1Char('x'));
    const Companion other(QStringLiteral(",7,") + rest);
    FakePlatform platform;
    QCOMPARE(Publisher(platform).publish(8), QString());
    QCOMPARE(published(), QStringLiteral(",8,") + rest);
}

void TestPublisher::textThatIsTooLong()
{
    const QString text = QStringLiteral(",7,") + QString(pageLetters - 3, QLatin1Char('x'));
    const Companion other(text);
    FakePlatform platform;
    QCOMPARE(Publisher(platform).publish(10),
             QStringLiteral("the segment is too small for the text"));
    QCOMPARE(published(), text);
}

/// Two seconds, looking fifty times in each.
void TestPublisher::lockedForGood()
{
    FakePlatform platform;
    platform.segmentLocked = true;
    QCOMPARE(Publisher(platform).publish(40),
             QStringLiteral("another program keeps the segment locked"));
    QCOMPARE(platform.sleeps, QVector<int>(100, 20));
    QCOMPARE(published(), QStringLiteral("(no segment)"));
}

void TestPublisher::lockedForAWhile()
{
    FakePlatform platform;
    platform.segmentLocked = true;
    platform.whileAsleep = [&platform] {
        platform.segmentLocked = platform.sleeps.size() < 3;
    };
    Publisher publisher(platform);
    QCOMPARE(publisher.publish(40), QString());
    QCOMPARE(platform.sleeps, QVector<int>(3, 20));
    QCOMPARE(published(), QStringLiteral(",40"));
}

QTEST_GUILESS_MAIN(TestPublisher)
#include "tst_publisher.moc"
