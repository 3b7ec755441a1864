#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "colorpicker/basiccolours.h"
#include "colorpicker/blanktyping.h"
#include "colorpicker/hextyping.h"
#include "colorpicker/services.h"

#include <array>

namespace {

constexpr int messageMs = 3000;

/// The prompt of each target, by its number less one.
constexpr std::array<const char *, 5> prompts{
    "Select Left Keyboard Zone Color:",  "Select Center Keyboard Zone Color:",
    "Select Right Keyboard Zone Color:", "Select Keyboard Color:",
    "Select Stripe / LCD Lid Color:",
};

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
    connect(ui->leRGB, SIGNAL(textEdited(QString)), this, SLOT(updateColorRGB(QString)));
    connect(ui->leHex, SIGNAL(textEdited(QString)), this, SLOT(updateColorHex(QString)));
    connect(ui->bHex, SIGNAL(clicked()), this, SLOT(copyHex()));
    connect(ui->bPasteHex, SIGNAL(clicked()), this, SLOT(pasteHex()));
    connect(ui->colorSample, SIGNAL(samplePressedLeft()), this, SLOT(copyHex()));
    connect(ui->colorSample, SIGNAL(samplePressedRight()), this, SLOT(copyHexHash()));
    connect(this, SIGNAL(mouseMovedOnWindow()), ui->colorSample, SLOT(mouseMovedOnWindow()));
    connect(this, SIGNAL(mouseReleasedOnWindow()), ui->colorSample, SLOT(mouseReleasedOnWindow()));

    new BlankTyping(ui->leRGB);
    new HexTyping(ui->leHex);
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

void MainWindow::openPicker(int target)
{
    const std::array<const QString *, 5> colours{
        &lighting.leftZoneColor,   &lighting.centerZoneColor, &lighting.rightZoneColor,
        &lighting.singleZoneColor, &lighting.stripeLidColor,
    };
    const auto index = static_cast<std::size_t>(target) - 1;
    pickTarget = target;
    // Hidden first: shown beside the tabs, the panel would stretch the window for good.
    ui->tabWidget_2->hide();
    ui->tabWidget->hide();
    ui->colorpickframe->show();
    lastActivityMs = now();
    updateColorRGB(*colours.at(index));
    ui->leRGB->clearFocus();
    ui->label_8->setText(QString::fromLatin1(prompts.at(index)));
    ui->comboBox_BasicColors->setCurrentIndex(basicColourIndex(ui->leRGB->text()));
    ui->svSelector->setFocus(Qt::OtherFocusReason); // for those who came by the keyboard
}

void MainWindow::closePicker()
{
    ui->colorpickframe->hide();
    ui->tabWidget_2->show();
    ui->tabWidget->show();
    const std::array<QWidget *, 5> openers{ui->colorpick1, ui->colorpick2, ui->colorpick3,
                                           ui->colorpick4, ui->colorpick5};
    const auto index = static_cast<std::size_t>(pickTarget) - 1;
    if (index < openers.size()) {
        openers.at(index)->setFocus(Qt::OtherFocusReason);
    }
}

void MainWindow::on_colorpick1_clicked()
{
    openPicker(1);
}

void MainWindow::on_colorpick2_clicked()
{
    openPicker(2);
}

void MainWindow::on_colorpick3_clicked()
{
    openPicker(3);
}

void MainWindow::on_colorpick4_clicked()
{
    openPicker(4);
}

void MainWindow::on_colorpick5_clicked()
{
    openPicker(5);
}

void MainWindow::on_pushButton_clicked()
{
    closePicker();
    const QString colour = ui->leRGB->text(); // stored as typed, also when it is no colour
    switch (pickTarget) {
    case 1:
        settings.writeSetting(SettingKeys::leftColour, colour);
        lighting.leftZoneColor = colour;
        break;
    case 2:
        settings.writeSetting(SettingKeys::centreColour, colour);
        lighting.centerZoneColor = colour;
        break;
    case 3:
        settings.writeSetting(SettingKeys::rightColour, colour);
        lighting.rightZoneColor = colour;
        break;
    case 4:
        for (const SettingKey &key : {SettingKeys::leftColour, SettingKeys::centreColour,
                                      SettingKeys::rightColour, SettingKeys::singleColour}) {
            settings.writeSetting(key, colour);
        }
        lighting.rightZoneColor = colour;
        lighting.leftZoneColor = colour;
        lighting.centerZoneColor = colour;
        lighting.singleZoneColor = colour;
        lighting.singleColorSelected = true;
        settings.writeSetting(SettingKeys::singleColourLast, true);
        break;
    case 5:
        settings.writeSetting(SettingKeys::stripeLid, colour);
        lighting.stripeLidColor = colour;
        break;
    default:
        break;
    }
    SetZoneColor(pickTarget, colour);
}

void MainWindow::on_pushButton_2_clicked()
{
    closePicker();
}

void MainWindow::on_comboBox_BasicColors_currentIndexChanged(int index)
{
    const QString colour = basicColourText(index);
    if (!colour.isEmpty()) {
        updateColorRGB(colour);
    }
}

void MainWindow::updateColorRGB(const QString &RGB)
{
    QLineEdit &field = *ui->leRGB;
    const QString text = Services::normalize(RGB);
    setTextKeepingCursor(field, text);
    // A valid text is written anew, perhaps without a leading zero; what was behind the cursor is
    // behind it then.
    const int behind = text.size() - field.cursorPosition();
    keepExact(colourProcessor->setRGB(text));
    field.setCursorPosition(field.text().size() - behind);
}

void MainWindow::keepExact(const QColor &colour)
{
    // The selectors know whole degrees of hue only, so what they announce may be a step beside the
    // colour that was asked for.
    if (colour.isValid()) {
        ui->colorSample->changeColor(colour);
    }
}

void MainWindow::updateColorHex(const QString &Hex)
{
    const QString text = Services::normalize(Hex);
    setTextKeepingCursor(*ui->leHex, text);
    keepExact(colourProcessor->setHex(text));
}

void MainWindow::updateColorText(const QColor &color)
{
    const QString rgb = ColorProcessor::rgbTextFromColor(color);
    const QString hex = ColorProcessor::hexFromColor(color);
    ui->leRGB->setText(rgb);
    ui->leHex->setText(hex);
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
    ui->statusBar->showMessage(QStringLiteral("RGB copied"), messageMs);
}

void MainWindow::copyHex()
{
    colourProcessor->copyToClipboard(ui->leHex->text());
    ui->statusBar->showMessage(QStringLiteral("Hex copied"), messageMs);
}

void MainWindow::copyHexHash()
{
    colourProcessor->copyToClipboard(QLatin1Char('#') + ui->leHex->text());
    ui->statusBar->showMessage(QStringLiteral("Hex # copied"), messageMs);
}

void MainWindow::pasteHex()
{
    const QString hex = colourProcessor->hexFromClipboard();
    if (hex.isEmpty()) {
        return;
    }
    ui->leHex->setText(hex);
    emit ui->leHex->textEdited(hex);
    ui->statusBar->showMessage(QStringLiteral("Hex value pasted"), messageMs);
}

void MainWindow::on_bHex_clicked()
{
    ui->bPasteHex->setEnabled(true);
}
