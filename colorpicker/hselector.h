#pragma once

#include "colorpicker/colorwidget.h"

/// Vertical hue strip with an arrow at the chosen hue, red (0) at the top.
class HSelector : public ColorWidget
{
    Q_OBJECT

public:
    explicit HSelector(QWidget *parent = nullptr);

    /// Moves the arrow from outside. @param degrees 0..359, or -1 for grey. Emits hueChanged() only
    /// when the hue differs from the present one (360 counts as 0).
    void setHue(int degrees);
    /// Chooses as a click would, with every announcement. @param degrees 0..360
    void chooseHue(int degrees);

signals:
    void hueChanged(QColor);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void moveMarker(int pixels);
    void recompute();
    void drawStrip(int stripHeight);
};
