#pragma once

#include "colorpicker/colormodel.h"

#include <QLineEdit>

/// Line edit for one colour text. Up, Down and the wheel step the number under the cursor; Tab and
/// Backtab select the next and previous number instead of leaving the field.
class ColorText : public QLineEdit
{
    Q_OBJECT

public:
    explicit ColorText(QWidget *parent = nullptr);

    /// Model the text is read in; HSV after construction. Both fields of the main window keep HSV
    /// on purpose: the RGB field then steps its first number up to 359, and the HEX field neither
    /// steps nor selects.
    ColorModel colorModel() const { return model; }
    void setColorModel(ColorModel newModel) { model = newModel; }

    /// Text between two components: one blank after construction; a HEX field needs it empty.
    QString separator() const { return separatorText; }
    void setSeparator(const QString &text) { separatorText = text; }

signals:
    /// Ctrl+Tab was pressed.
    void focusNextField();
    /// Ctrl+Shift+Tab was pressed.
    void focusPrevField();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool textIsValid() const;
    /// Of a text that is valid.
    int componentAt(int position) const;
    void stepAt(int position, int delta);
    void selectNeighbour(int direction);

    ColorModel model = ColorModel::Hsv;
    QString separatorText;
};
