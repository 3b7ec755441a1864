#include "ui/mainwindow.h"

#include "colorpicker/basiccolors.h"
#include "colorpicker/colortyping.h"
#include "colorpicker/hextyping.h"
#include "colorpicker/pickergeometry.h"
#include "colorpicker/services.h"
#include "ui/colourtargets.h"
#include "ui/texts.h"

namespace {

constexpr int messageMs = 3000;

/// Replaces a field's text under the user's cursor.
void setTextKeepingCursor(QLineEdit &field, const QString &text)
{
    const int position = field.cursorPosition();
    field.setText(text);
    field.setCursorPosition(position);
}

} // namespace

void MainWindow::connectColourPicker()
{
    connect(ui->hSelector, SIGNAL(hueChanged(QColor)), ui->svSelector, SLOT(changeHue(QColor)));
    connect(ui->svSelector, SIGNAL(colorChanged(QColor)), ui->colorSample,
            SLOT(changeColor(QColor)));
    connect(ui->colorSample, SIGNAL(colorChanged(QColor)), this, SLOT(updateColorText(QColor)));
    new HexTyping(ui->leHex); // to see a text before it is written out
    connect(ui->leRGB, SIGNAL(textEdited(QString)), this, SLOT(updateColorRGB(QString)));
    connect(ui->leHex, SIGNAL(textEdited(QString)), this, SLOT(updateColorHex(QString)));
    connect(ui->bHex, SIGNAL(clicked()), this, SLOT(copyHex()));
    connect(ui->bPasteHex, SIGNAL(clicked()), this, SLOT(pasteHex()));
    connect(ui->colorSample, SIGNAL(samplePressedLeft()), this, SLOT(copyHex()));
    connect(ui->colorSample, SIGNAL(samplePressedRight()), this, SLOT(copyHexHash()));
    connect(this, SIGNAL(mouseMovedOnWindow()), ui->colorSample, SLOT(mouseMovedOnWindow()));
    connect(this, SIGNAL(mouseReleasedOnWindow()), ui->colorSample, SLOT(mouseReleasedOnWindow()));

    for (const ColourTargetRow &row : colourTargets) {
        picker.input.watch(*(*ui.*row.opener));
    }
    picker.input.watch(*ui->pushButton);
    picker.input.watch(*ui->pushButton_2);
    // A number that is missing keeps its place only for who is about to type it. A field that is
    // left because the window goes finds no window any more, so it is asked by itself.
    connect(ui->leRGB, &QLineEdit::editingFinished, ui->leRGB, [field = ui->leRGB] {
        if (!field->hasFocus()) {
            field->setText(Services::normalize(field->text()));
        }
    });
    // The fields keep Tab for themselves, so these are the keyboard's ways out of them.
    for (const ColorText *const field : {ui->leRGB, ui->leHex}) {
        connect(field, &ColorText::focusNextField, this, [this] { leaveTextField(true); });
        connect(field, &ColorText::focusPrevField, this, [this] { leaveTextField(false); });
    }
}

void MainWindow::leaveTextField(bool forward)
{
    if (focusNextPrevChild(forward)) {
        selectField(focusWidget());
    }
}

QString MainWindow::rgbText() const
{
    return ui->leRGB->text();
}

void MainWindow::setRgbText(const QString &text)
{
    ui->leRGB->setText(text);
}

void MainWindow::openPicker(ColourTarget target)
{
    const ColourTargetRow &row = rowOf(target);
    picker.target = target;
    // Hidden first: shown beside the tabs, the panel would stretch the window for good.
    ui->tabWidget_2->hide();
    ui->tabWidget->hide();
    ui->colorpickframe->show();
    dim.lastActivity = now();
    const QString &colour = lighting.*row.colour;
    if (colour.isEmpty()) {
        showNoColour();
    }
    updateColorRGB(colour);
    ui->leRGB->clearFocus();
    ui->label_8->setText(translated(row.prompt));
    ui->comboBox_BasicColors->setCurrentIndex(basicColorIndex(ui->leRGB->text()));
    ui->svSelector->setFocus(picker.input.wasMouse() ? Qt::MouseFocusReason : Qt::OtherFocusReason);
}

void MainWindow::showNoColour()
{
    // Black, with a hue to start from.
    ui->hSelector->setHue(0);
    ui->svSelector->setSaturationValue(PickerGeometry::svRange, 0);
    ui->leHex->clear();
}

void MainWindow::closePicker()
{
    if (picker.input.wasMouse() && focusWidget() != nullptr) {
        focusWidget()->clearFocus(); // else it would go, and be marked, where nobody has put it
    }
    ui->colorpickframe->hide();
    ui->tabWidget_2->show();
    ui->tabWidget->show();
    if (picker.target && !picker.input.wasMouse()) {
        (*ui.*rowOf(*picker.target).opener)->setFocus(Qt::OtherFocusReason);
    }
}

void MainWindow::on_colorpick1_clicked()
{
    openPicker(ColourTarget::Left);
}

void MainWindow::on_colorpick2_clicked()
{
    openPicker(ColourTarget::Centre);
}

void MainWindow::on_colorpick3_clicked()
{
    openPicker(ColourTarget::Right);
}

void MainWindow::on_colorpick4_clicked()
{
    openPicker(ColourTarget::Keyboard);
}

void MainWindow::on_colorpick5_clicked()
{
    openPicker(ColourTarget::Stripe);
}

void MainWindow::on_pushButton_clicked()
{
    closePicker();
    const QString colour = ui->leRGB->text(); // stored as typed, also when it is no colour
    if (!picker.target) {
        return; // never opened
    }
    SettingsTogether chosen;
    const auto keep = [&](ColourTarget target) {
        chosen.with(*rowOf(target).key, colour);
        lighting.*rowOf(target).colour = colour;
    };
    if (*picker.target == ColourTarget::Keyboard) {
        for (const ColourTarget zone : keyboardZones) {
            keep(zone);
        }
        keep(ColourTarget::Keyboard);
        lighting.singleColorSelected = true;
        chosen.with(SettingKeys::singleColourLast, true);
    } else {
        keep(*picker.target);
        if (*picker.target != ColourTarget::Stripe && !loadingSettings) {
            chosen.with(SettingKeys::singleColourLast, false);
        }
    }
    settings.write(chosen);
    setColour(*picker.target, colour);
}

void MainWindow::on_pushButton_2_clicked()
{
    closePicker();
}

void MainWindow::on_comboBox_BasicColors_currentIndexChanged(int index)
{
    const QString colour = basicColorText(index);
    if (!colour.isEmpty()) {
        updateColorRGB(colour);
    }
}

void MainWindow::updateColorRGB(const QString &RGB)
{
    QLineEdit &field = *ui->leRGB;
    // What is being typed is in the field already.
    const auto gap =
        field.text() == RGB ? ColorTyping::withGap({RGB, field.cursorPosition()}) : std::nullopt;
    setTextKeepingCursor(field, Services::normalize(RGB));
    takeText(field, &ColorProcessor::setRGB);
    if (gap) {
        field.setText(gap->text);
        field.setCursorPosition(gap->cursor);
    }
}

void MainWindow::updateColorHex(const QString &Hex)
{
    QLineEdit &field = *ui->leHex;
    const QString text = ColorTyping::withoutHash({Hex, field.cursorPosition()}).text;
    setTextKeepingCursor(field, Services::normalize(text));
    takeText(field, &ColorProcessor::setHex);
}

void MainWindow::takeText(QLineEdit &field, QColor (ColorProcessor::*set)(const QString &))
{
    const ColorTyping::Typed typed{field.text(), field.cursorPosition()};
    picker.colourOnItsWay = true;
    const QColor colour = (*colourProcessor.*set)(typed.text);
    picker.colourOnItsWay = false;
    // The selectors know whole degrees of hue only, so what they announce may be a step beside the
    // colour that was asked for.
    if (colour.isValid()) {
        ui->colorSample->changeColor(colour);
    }
    field.setCursorPosition(ColorTyping::cursorAfterRewriting(typed, field.text().size()));
}

void MainWindow::updateColorText(const QColor &color)
{
    const QString rgb = ColorProcessor::rgbTextFromColor(color);
    const QString hex = ColorProcessor::hexFromColor(color);
    ui->leRGB->setText(rgb);
    ui->leHex->setText(hex);
    // The list gives up a colour that is shown no more, so that it can be chosen again.
    if (!picker.colourOnItsWay && !isBasicColor(ui->comboBox_BasicColors->currentIndex(), rgb)) {
        ui->comboBox_BasicColors->setCurrentIndex(0);
    }
}

void MainWindow::selectField(QWidget *w)
{
    w->setFocus(Qt::OtherFocusReason);
    if (auto *const field = qobject_cast<QLineEdit *>(w)) {
        field->selectAll();
    }
}

void MainWindow::copyRGB()
{
    colourProcessor->copyToClipboard(
        ui->leRGB->text().replace(QLatin1String(" "), QLatin1String(", ")));
    ui->statusBar->showMessage(tr("RGB copied"), messageMs);
}

void MainWindow::copyHex()
{
    colourProcessor->copyToClipboard(ui->leHex->text());
    ui->statusBar->showMessage(tr("Hex copied"), messageMs);
}

void MainWindow::copyHexHash()
{
    colourProcessor->copyToClipboard(QLatin1Char('#') + ui->leHex->text());
    ui->statusBar->showMessage(tr("Hex # copied"), messageMs);
}

void MainWindow::pasteHex()
{
    const QString hex = colourProcessor->hexFromClipboard();
    if (hex.isEmpty()) {
        return;
    }
    ui->leHex->setText(hex);
    emit ui->leHex->textEdited(hex);
    ui->statusBar->showMessage(tr("Hex value pasted"), messageMs);
}

void MainWindow::on_bHex_clicked()
{
    ui->bPasteHex->setEnabled(true);
}
