#pragma once

#include "colorpicker/colormodel.h"

#include <QObject>
#include <QString>

/// Limits of the components of colour texts. The decimal validators look at limits only: a part
/// that is missing or not a number counts as 0, so Services::checkFormat() comes first where the
/// form matters.
class Validator : public QObject
{
    Q_OBJECT

public:
    explicit Validator(QObject *parent = nullptr);

    /// Whether one component may have @p value. Negative numbers, handed in as unsigned, never
    /// pass.
    /// @param component index from 0; for HEX any. @param length HEX text's length, 3 or 6; else 0.
    static bool isInRange(quint32 value, ColorModel model, int component, int length);

    /// The check of @p model on @p text; false for an unknown model.
    static bool validate(const QString &text, ColorModel model);

    /// All three numbers at most 359, saturation and value too: that is on purpose, although
    /// isInRange() stops those two at 255.
    static bool isValidHsv(const QString &text);
    /// Each of three numbers at most 255.
    static bool isValidRgb(const QString &text);
    /// Each of four numbers at most 255.
    static bool isValidCmyk(const QString &text);
    /// Three or six hexadecimal digits without "#".
    static bool isValidHex(const QString &text);
};
