#pragma once

#include <QWidget>

/// Shows the part of the square's ring that reaches over the edge of the square's widget, where the
/// widget itself cannot paint: in its corners and at its edges the ring would be cut off. It lies
/// over the widgets around the square and lets the pointer through.
class RingOverflow : public QWidget
{
    Q_OBJECT

public:
    /// @param square a widget whose ancestors leave room around it; one of them owns this
    explicit RingOverflow(QWidget &square);

    /// @param position the ring's middle in the square's widget
    void setMarker(const QPoint &position);

    /// Draws the whole ring.
    static void drawRing(QPainter &painter, const QPoint &middle);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void followSquare();

    QWidget &square;
    QPoint marker;
};
