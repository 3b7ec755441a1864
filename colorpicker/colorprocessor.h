#pragma once

#include <QColor>
#include <QObject>
#include <QString>

class HSelector;
class QClipboard;
class SVSelector;

/// Turns texts into colours and back, pushes a colour into both selectors, and talks to the
/// clipboard. Text that is not a colour leaves everything as it is; nothing is reported.
class ColorProcessor : public QObject
{
    Q_OBJECT

public:
    /// The selectors are not owned and must live longer than this object.
    ColorProcessor(HSelector *hSelector, SVSelector *svSelector, QObject *parent = nullptr);

    void copyToClipboard(const QString &text);

    /// See ColorTexts for these three.
    static QColor colorFromRgbText(const QString &text);
    static QString hexFromColor(const QColor &color);
    static QString rgbTextFromColor(const QColor &color);

    /// The clipboard's 3 or 6 hexadecimal digits without "#", or an empty string.
    QString hexFromClipboard() const;

    /// Hands the hue to the strip (-1 for a grey), then saturation and value to the square.
    void setColor(const QColor &color);
    /// @param text three or six hexadecimal digits without "#".
    /// @return the colour that was set; invalid when the text is refused.
    QColor setHex(const QString &text);
    /// @param text "red green blue".
    /// @return the colour that was set; invalid when the text is refused.
    QColor setRGB(const QString &text);

signals:
    /// setColor() is through with both selectors.
    void updateFinished();

private:
    HSelector *hueSelector;
    SVSelector *saturationValueSelector;
    QClipboard *clipboard;
};
