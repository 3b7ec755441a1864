#include "colorpicker/colortexts.h"

#include "colorpicker/services.h"
#include "colorpicker/textstepping.h"
#include "colorpicker/validator.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "lighting/devicewords.h"

#include <QStringList>

namespace {

using TextStepping::Format;

QString rgbText(const QColor &color)
{
    return QStringLiteral("%1 %2 %3").arg(color.red()).arg(color.green()).arg(color.blue());
}

void checkColor(const QColor &color, int brightness)
{
    const QString text = ColorTexts::rgbTextFromColor(color);
    require(text == rgbText(color), "an RGB text names the channels");
    require(ColorTexts::colorFromRgbText(text) == color, "an RGB text gives its colour back");
    require(TextStepping::isValid(text, ColorModel::Rgb), "an RGB text is valid");

    const QString hex = ColorTexts::hexFromColor(color);
    require(ColorTexts::hexFromPastedText(QLatin1Char('#') + hex) == hex, "a HEX text is pasted");
    require(TextStepping::isValid(hex, ColorModel::Hex), "a HEX text is valid");
    require(QColor(QLatin1Char('#') + hex) == color, "a HEX text gives its colour back");

    const ColourComponents part = scaledComponents(text, brightness);
    require(deviceWord(Zone::Right, text, brightness)
                == packWord(quint8(part.red), quint8(part.green), quint8(part.blue), Zone::Right),
            "the word holds what the picture shows");
    require(part.red <= color.red() && part.green <= color.green() && part.blue <= color.blue(),
            "brightness never adds light");
}

void checkText(const QString &text, int brightness)
{
    const QColor color = ColorTexts::colorFromRgbText(text);
    if (color.isValid()) {
        require(ColorTexts::colorFromRgbText(ColorTexts::rgbTextFromColor(color)) == color,
                "a colour that was read is written");
    }
    const QString pasted = ColorTexts::hexFromPastedText(text);
    require(pasted.isEmpty() || pasted.size() == 3 || pasted.size() == 6, "HEX is 3 or 6 long");
    require(!pasted.contains(QLatin1Char('#')), "HEX has no hash");
    require(ColorTexts::hexFromPastedText(pasted) == pasted, "what was pasted can be pasted");

    const QString normal = Services::normalize(text);
    require(!normal.contains(QLatin1Char(',')), "a uniform text has no comma");
    require(!normal.contains(QStringLiteral("  ")), "a uniform text has single blanks");
    require(Services::normalize(normal) == normal.trimmed(), "a uniform text stays uniform");

    for (const Zone zone : {Zone::Left, Zone::Centre, Zone::Right, Zone::Stripe}) {
        require(deviceWord(zone, text, brightness) >> 24 == 0xF0U + static_cast<quint32>(zone),
                "no colour changes the zone");
        require(deviceWord(zone, text, 0) == blackWord(zone), "without brightness it is black");
    }
    scaledComponents(text, brightness);
}

/// The number that stands in a component.
int numberAt(const QString &text, int component, const Format &format)
{
    const TextStepping::Span span = TextStepping::componentSpan(text, component, format);
    const int base = format.model == ColorModel::Hex ? 16 : 10;
    return text.mid(span.start, span.length).toInt(nullptr, base);
}

void checkStep(const QString &text, int component, int delta, int cursor, const Format &format)
{
    const auto stepped = TextStepping::step(text, component, delta, cursor, format);
    if (!stepped) {
        return;
    }
    require(TextStepping::isValid(stepped->text, format.model), "a stepped text is valid");
    require(stepped->cursor >= 0 && stepped->cursor <= stepped->text.size(),
            "the cursor is in the text");
    for (int other = 0; other < 3; ++other) {
        const int by = other == component ? delta : 0;
        require(numberAt(stepped->text, other, format) == numberAt(text, other, format) + by,
                "one component moves, by one");
    }
    const auto back = TextStepping::step(stepped->text, component, -delta, cursor, format);
    require(!back || numberAt(back->text, component, format) == numberAt(text, component, format),
            "a step back undoes a step");
}

void checkStepping(const QString &text, ColorModel model, int position, int delta)
{
    const bool hex = model == ColorModel::Hex;
    const Format format{model, hex ? QString() : QStringLiteral(" ")};
    const int cursor = position % (text.size() + 1);
    const int parts = text.count(QLatin1Char(' ')) + 1;
    const int decimal = TextStepping::decimalComponentAt(text, cursor, format.separator);
    require(decimal >= 0 && decimal < parts, "the cursor is in one of the parts");
    if (!TextStepping::isValid(text, model)) {
        require(!TextStepping::step(text, 0, delta, cursor, format), "nothing else is stepped");
        return;
    }
    for (int index = -1; index <= 4; ++index) {
        const TextStepping::Span span = TextStepping::componentSpan(text, index, format);
        require(span.start >= 0 && span.length >= 0 && span.start + span.length <= text.size(),
                "a component is within its text");
    }
    const int component = hex ? TextStepping::hexComponentAt(cursor, text.size()) : decimal;
    require(component >= 0 && component < (hex ? 3 : parts), "the cursor is in a component");
    checkStep(text, component, delta, cursor, format);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const auto model = static_cast<ColorModel>(input.takeByte() % 4);
    const int position = input.takeByte();
    const int delta = (input.takeByte() & 1) != 0 ? 1 : -1;
    const int brightness = input.takeByte() % 101;
    QColor color;
    const quint8 red = input.takeByte();
    const quint8 green = input.takeByte();
    color.setRgb(red, green, input.takeByte());
    checkColor(color, brightness);
    const QString text = input.takeText();
    checkText(text, brightness);
    checkStepping(text, model, position, delta);
    checkStepping(Services::normalize(text), model, position, delta);
    return 0;
}
