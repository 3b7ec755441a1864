#include "colorpicker/textstepping.h"

#include "colorpicker/services.h"
#include "colorpicker/validator.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr int hexComponents = 3;

// Splitting at an empty separator would cut between all characters.
QStringList decimalParts(const QString &text, const QString &separator)
{
    return separator.isEmpty() ? QStringList(text) : text.split(separator);
}

TextStepping::Span decimalSpan(const QStringList &parts, int index, const QString &separator)
{
    int start = 0;
    for (int i = 0; i < index; ++i) {
        start += parts.at(i).size() + separator.size();
    }
    return {start, parts.at(index).size()};
}

std::optional<TextStepping::Stepped> stepHex(const QString &text, int component, int delta,
                                             int cursor, const TextStepping::Format &format)
{
    const int length = text.size() / hexComponents;
    QStringList pieces;
    for (int i = 0; i < hexComponents; ++i) {
        pieces.append(text.mid(i * length, length));
    }
    const int value = pieces.at(component).toInt(nullptr, 16) + delta;
    if (!Validator::isInRange(static_cast<quint32>(value), format.model, component, text.size())) {
        return std::nullopt;
    }
    pieces[component] = QStringLiteral("%1").arg(value, length, 16, QLatin1Char('0'));
    return TextStepping::Stepped{pieces.join(format.separator), cursor};
}

std::optional<TextStepping::Stepped> stepDecimal(const QString &text, int component, int delta,
                                                 const TextStepping::Format &format)
{
    QStringList parts = decimalParts(text, format.separator);
    if (component >= parts.size()) {
        return std::nullopt;
    }
    const int value = parts.at(component).toInt(nullptr, 10) + delta;
    if (!Validator::isInRange(static_cast<quint32>(value), format.model, component, 0)) {
        return std::nullopt;
    }
    parts[component] = QString::number(value);
    const TextStepping::Span number = decimalSpan(parts, component, format.separator);
    return TextStepping::Stepped{parts.join(format.separator), number.start + number.length};
}

} // namespace

bool TextStepping::isValid(const QString &text, ColorModel model)
{
    if (model == ColorModel::Hex) {
        return Validator::isValidHex(text);
    }
    return Services::checkFormat(text, model) && Validator::validate(text, model);
}

int TextStepping::hexComponentAt(int position, int length)
{
    return std::clamp((position - 1) / (length / hexComponents), 0, hexComponents - 1);
}

int TextStepping::decimalComponentAt(const QString &text, int position, const QString &separator)
{
    if (separator.isEmpty()) {
        return 0;
    }
    int count = 0;
    int match = text.indexOf(separator);
    while (match >= 0 && match < position) {
        ++count;
        match = text.indexOf(separator, match + separator.size());
    }
    return count;
}

TextStepping::Span TextStepping::componentSpan(const QString &text, int index, const Format &format)
{
    if (format.model == ColorModel::Hex) {
        const int length = text.size() / hexComponents;
        return {(index + hexComponents) % hexComponents * length, length};
    }
    const QStringList parts = decimalParts(text, format.separator);
    const int count = parts.size();
    return decimalSpan(parts, (index + count) % count, format.separator);
}

std::optional<TextStepping::Stepped> TextStepping::step(const QString &text, int component,
                                                        int delta, int cursor, const Format &format)
{
    if (!isValid(text, format.model)) {
        return std::nullopt;
    }
    return format.model == ColorModel::Hex ? stepHex(text, component, delta, cursor, format)
                                           : stepDecimal(text, component, delta, format);
}
