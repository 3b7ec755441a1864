#include "ui/mainwindow.h"

#include "ui/colourhub.h"
#include "ui/colourtargets.h"
#include "ui/dpibands.h"
#include "ui/windowplace.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QGridLayout>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

using Widgets = std::initializer_list<QWidget *>;

void setMinimums(const Widgets &widgets, const QSize &size)
{
    for (QWidget *const widget : widgets) {
        widget->setMinimumWidth(size.width());
        widget->setMinimumHeight(size.height());
    }
}

void setMinimumHeights(const Widgets &widgets, int height)
{
    for (QWidget *const widget : widgets) {
        widget->setMinimumHeight(height);
    }
}

/// Of the blanks between the rows of a page.
void setBlanks(QGridLayout &page, int height)
{
    for (int i = 0; i < page.count(); ++i) {
        if (QSpacerItem *const blank = page.itemAt(i)->spacerItem()) {
            blank->changeSize(1, height, QSizePolicy::Minimum, QSizePolicy::Minimum);
        }
    }
    page.update(); // a changed spacer does not tell its layout
}

/// The page that shows a picture and, under it, what opens something for it.
void enlargeZonePage(QLabel &picture, QWidget &opener, const DpiBand &band)
{
    auto &page = *qobject_cast<QGridLayout *>(picture.parentWidget()->layout());
    const auto setRowMinimum = [&page](QWidget &widget, int height) {
        int row{};
        int others{};
        page.getItemPosition(page.indexOf(&widget), &row, &others, &others, &others);
        page.setRowMinimumHeight(row, height);
    };
    // Of one height on every page and with an effect chosen, so that nothing jumps. No band has a
    // higher picture than that of the stripe.
    setRowMinimum(picture, band.stripePicture.height());
    setRowMinimum(opener, opener.minimumHeight());
    setBlanks(page, band.pageSpacer);
}

void fixSize(QWidget &button, int edge)
{
    button.setMinimumWidth(edge);
    button.setMinimumHeight(edge);
    button.setMaximumWidth(edge);
    button.setMaximumHeight(edge);
}

} // namespace

void MainWindow::alignColumns()
{
    // As wide as what begins on the left needs it in this font, on every page.
    int first = ui->label->minimumWidth();
    for (const QWidget *const widget : std::initializer_list<const QWidget *>{
             ui->label, ui->backlight_on, ui->backlight_off, ui->Check_StartwithWindows,
             ui->StartHidden, ui->UsePerKeyApp, ui->Label_SoftwareVersion,
             ui->Button_CheckforUpdate}) {
        first = std::max(first, widget->sizeHint().width());
    }
    ui->verticalLayout_2->addStrut(first);
    ui->gridLayout_7->setColumnMinimumWidth(0, first);
    ui->Label_SoftwareVersion->setMinimumWidth(first);
    ui->horizontalLayout_4->insertSpacing(1, first - ui->Button_CheckforUpdate->sizeHint().width());

    // The column under the square ends with the strip beside it.
    ui->horizontalLayout->setAlignment(ui->verticalLayout_4, Qt::AlignTop);
    const int underSquare = ui->hSelector->minimumHeight() - ui->svSelector->minimumHeight()
                            - ui->label_5->sizeHint().height();
    const int gap = (underSquare - ui->colorSample->minimumHeight()) / 2;
    ui->verticalLayout_4->setSpacing(std::clamp(gap, 0, ui->verticalLayout_4->spacing()));
    ui->colorSample->setFixedHeight(underSquare - 2 * ui->verticalLayout_4->spacing());
}

void MainWindow::DPIfixes()
{
    const QRect before = geometry();
    const DpiBand &band = dpiBand(QApplication::desktop()->logicalDpiX());
    if (band.controlSize != 0) {
        fixSize(*ui->minimizeButton, band.controlSize);
        fixSize(*ui->closeButton, band.controlSize);
        setMinimumHeights({ui->pushButton_3, ui->Button_CheckforUpdate, ui->Button_Update,
                           ui->Combo_Effect, ui->comboDimValue},
                          band.controlSize);
    }
    if (band.changesEverything()) {
        enlargeForBand(band);
    }
    if (band.windowMinimum.isValid()) {
        setMinimums({this}, band.windowMinimum);
    }
    if (band.changesEverything()) {
        // The desktop's own font may be wider than the minimum allows for.
        const QSize available = screen()->availableSize();
        resize(minimumSizeHint().boundedTo(available).expandedTo(size()));
    }
    if (size() != before.size()) {
        // Grown to all sides alike, and not beyond the screen.
        QRect grown(QPoint(), size());
        grown.moveCenter(before.center());
        const QScreen *const screen = QGuiApplication::screenAt(grown.center());
        const QScreen *const home = screen ? screen : QGuiApplication::primaryScreen();
        setGeometry(WindowPlace::movedInto(grown, home->availableGeometry()));
    }
    shell.sizesAdapted = true;
}

void MainWindow::enlargeForBand(const DpiBand &band)
{
    setMinimumHeights({ui->comboBox_BasicColors, ui->leRGB, ui->leHex, ui->bHex, ui->bPasteHex,
                       ui->pushButton_2, ui->pushButton},
                      band.controlSize);
    setMinimums({ui->keyboard_full}, band.fullPicture);
    setMinimums({ui->stripe_led_2}, band.fullPicture);
    setMinimums({ui->stripe_led}, band.stripePicture);
    setMinimums({ui->keyboard_left, ui->keyboard_center, ui->keyboard_right}, band.zonePicture);
    if (band.colourButton != 0) {
        const int hub = hubEdge(band.colourButton);
        for (const ColourTargetRow &row : colourTargets) {
            QPushButton &wheel = *(*ui.*row.opener);
            setMinimums({&wheel}, {band.colourButton, band.colourButton});
            wheel.setIconSize({hub, hub});
        }
        setMinimums({ui->colorpick5_3}, {band.colourButton, band.colourButton});
    }
    ui->frame_2->setMinimumHeight(band.barHeight);
    ui->frame_2->setMaximumHeight(band.barHeight);
    ui->frame->setMinimumHeight(band.frameHeight);

    for (const ColourTargetRow &row : colourTargets) {
        enlargeZonePage(*(*ui.*row.preview), *(*ui.*row.opener), band);
    }
    enlargeZonePage(*ui->stripe_led_2, *ui->colorpick5_3, band);
    // No other page has a blank above its picture.
    ui->verticalSpacer_11->changeSize(1, 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    setBlanks(*ui->gridLayout_7, band.settingsSpacer);
    setBlanks(*ui->gridLayout_8, band.settingsSpacer);
}
