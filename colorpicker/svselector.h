#pragma once

#include "colorpicker/colorwidget.h"

#include <QPointer>

class RingOverflow;

/// Square of one hue: saturation grows to the right, value grows upwards, a ring marks the choice.
class SVSelector : public ColorWidget
{
    Q_OBJECT

public:
    explicit SVSelector(QWidget *parent = nullptr);

    /// Places the ring from outside and announces the colour, also when it is the present one.
    /// @param saturation, value 0..255 each.
    void setSaturationValue(int saturation, int value);

signals:
    void colorChanged(QColor);
    void saturationChanged(QColor);
    void valueChanged(QColor);

public slots:
    /// Redraws the square for the hue of @p color (-1 draws greys) and announces the new colour;
    /// saturation and value stay.
    void changeHue(const QColor &color);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void followPointer(const QPoint &position);
    void moveMarker(const QPoint &pixels);
    void placeMarker();
    void recompute();

    QPointer<RingOverflow> ringOverflow; ///< an ancestor's child; none while this has no parent
};
