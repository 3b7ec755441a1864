#pragma once

#include "colorpicker/pickergeometry.h"
#include "colorpicker/pickerpalette.h"

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

class QPainter;

/// Common ground of the hue strip, the saturation/value square and the sample: geometry, palette,
/// the colour being edited, the state of the modifier keys and the keyboard's focus.
class ColorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ColorWidget(QWidget *parent = nullptr);

    /// The colour this widget stands for.
    QColor color() const { return currentColor; }
    /// Hue in degrees, 0..360, or -1 for grey.
    int hue() const { return currentHue; }
    /// Saturation, 0..255.
    int saturation() const { return currentSaturation; }
    /// Value (lightness of the hue), 0..255.
    int value() const { return currentValue; }

signals:
    /// The middle button was pressed. @param e heap copy of the event; the receiver deletes it, so
    /// connect one receiver only. Nothing is copied while nobody is connected.
    void middlePressedSignal(QMouseEvent *e);
    void shiftPressed();
    void shiftReleased();
    void ctrlPressed();
    void ctrlReleased();

public slots:
    /// The four below keep the held flags that the wheel handlers read; they are connected to the
    /// signals above, which the key handlers emit and a panel may emit as well.
    void pressShift() { shiftHeld = true; }
    void releaseShift() { shiftHeld = false; }
    void pressCtrl() { ctrlHeld = true; }
    void releaseCtrl() { ctrlHeld = false; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    /// HSV colour with alpha 255. @param degrees 0..360 (360 is red again) or -1 for grey.
    static QColor hsv(int degrees, int saturation, int value);

    /// Frames @p rect from the inside. @param radius corner radius, used for odd widths only; an
    /// even width takes the width itself as radius, on purpose.
    static void drawFrame(QPainter &painter, const QRect &rect, int width, int radius,
                          const QColor &color);

    /// Ignores a middle press and announces it. @return whether it was one.
    bool takeMiddlePress(QMouseEvent *event);
    /// Ends a middle press and ignores the event.
    void takeRelease(QMouseEvent *event);

    /// Marker step of one wheel notch or arrow key: 10 with shift held, else 1.
    int stepSize(Qt::KeyboardModifiers modifiers) const;
    /// Whether the wheel moves sideways.
    bool wheelIsHorizontal(const QWheelEvent *event) const;

    /// The frame as it is to be drawn: brighter while the keyboard's focus is to be seen.
    QColor shownFrameColor() const;
    /// The keys act here, so the focus is to be seen from now on.
    void showFocus();
    /// Tells screen readers that what this widget stands for has changed.
    void announceChange();

    QColor frameColor = PickerPalette::restingFrame;
    bool focusShown = false;
    bool middlePressed = false;
    bool cacheValid = false;
    bool ctrlHeld = false;
    bool shiftHeld = false;
    QPixmap cachePixmap;
    QImage cacheImage;
    int currentHue = 0;
    int currentSaturation = PickerGeometry::svRange;
    int currentValue = PickerGeometry::svRange;
    QColor currentColor;
    double stripSaturation = 1.0;
    double stripValue = 1.0;
    QPoint marker{0, 0};
};
