#pragma once

#include "colorpicker/colorwidget.h"

/// Swatch of the chosen colour. A click is announced, so that the window can copy the colour; a
/// press that has moved further, as one that drags the window, is none.
class ColorSample : public ColorWidget
{
    Q_OBJECT

public:
    explicit ColorSample(QWidget *parent = nullptr);

    /// Acts as a click with the left button does.
    void press();

signals:
    void colorChanged(QColor color);
    void samplePressedLeft();
    void samplePressedRight();
    void samplePressedMiddle();

public slots:
    /// Shows @p color and announces it.
    void changeColor(const QColor &color);
    /// The frameless window is being dragged: the release to come is not a click.
    void mouseMovedOnWindow();
    /// The drag of the window is over.
    void mouseReleasedOnWindow();

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool windowDragged = false;
    QPoint pressPosition; ///< on the screen
};
