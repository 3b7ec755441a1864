#include "examples/agent/answer.h"
#include "examples/agent/view.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "lighting/commandline.h"

#include <QJsonDocument>
#include <QStringList>

#include <algorithm>

namespace {

/// The answer as the program would have written it.
QByteArray written(const agent::Answer &answer)
{
    QStringList fields;
    for (const quint32 word : answer.zoneWords) {
        fields.append(QString::number(word));
    }
    fields.append(QString::number(answer.effectWord));
    return frameLine(fields.join(QLatin1Char(',')));
}

bool isPrintable(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7F; });
}

void checkViews(const agent::Answer &answer)
{
    for (int zone = 0; zone < agent::zoneCount; ++zone) {
        const quint32 word = answer.zoneWords.at(static_cast<std::size_t>(zone));
        const auto rgb = agent::zoneColour(zone, word);
        require(!rgb
                    || packWord(quint8(rgb->red), quint8(rgb->green), quint8(rgb->blue), Zone(zone))
                           == word,
                "a zone's colour packs into its word again");
    }
    require(isPrintable(agent::plainLine(answer)), "the plain line is printable");
    require(QJsonDocument::fromJson(agent::jsonLine(answer)).isObject(), "the JSON line is JSON");
    const QStringList lines = agent::panel(answer, QStringLiteral("t"), QString(), false);
    require(std::all_of(lines.begin(), lines.end(), isPrintable), "the panel is printable");
    const QByteArray drawing = agent::drawInPlace(lines, lines.size());
    require(drawing.count('\n') == lines.size(), "as many lines are drawn as the panel has");
}

void checkBytes(const QByteArray &bytes)
{
    const agent::Decoded decoded = agent::decode(bytes);
    if (const auto *malformed = std::get_if<agent::Malformed>(&decoded)) {
        require(!malformed->why.isEmpty(), "what is malformed has a reason");
        require(isPrintable(malformed->why), "the reason is printable");
        require(malformed->why.size() < 300, "the reason is short");
        return;
    }
    const auto &answer = std::get<agent::Answer>(decoded);
    require(written(answer) == bytes, "only what the program itself writes is an answer");
    checkViews(answer);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    switch (input.takeByte() % 3) {
    case 0: // any bytes
        checkBytes(input.takePart());
        break;
    case 1: // any text, in a right frame
        checkBytes(frameLine(input.takeText()));
        break;
    default: { // any words
        agent::Answer answer;
        for (quint32 &word : answer.zoneWords) {
            word = input.takeNumber();
        }
        answer.effectWord = input.takeNumber();
        const agent::Decoded decoded = agent::decode(written(answer));
        const auto *const read = std::get_if<agent::Answer>(&decoded);
        require(read != nullptr && read->zoneWords == answer.zoneWords
                    && read->effectWord == answer.effectWord,
                "what the program writes is read");
        checkViews(answer);
        break;
    }
    }
    return 0;
}
