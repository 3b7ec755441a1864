#include "ui/mainwindow.h"

#include "ui_mainwindow.h"

#include "ui/colourhub.h"
#include "ui/dpibands.h"
#include "ui/windowplace.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>

#include <algorithm>

namespace {

using Widgets = std::initializer_list<QWidget *>;
using Spacers = std::initializer_list<QSpacerItem *>;

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

void setHeights(const Spacers &spacers, int height)
{
    for (QSpacerItem *const spacer : spacers) {
        spacer->changeSize(1, height, QSizePolicy::Minimum, QSizePolicy::Minimum);
    }
}

void fixSize(QWidget &button, int edge)
{
    button.setMinimumWidth(edge);
    button.setMinimumHeight(edge);
    button.setMaximumWidth(edge);
    button.setMaximumHeight(edge);
    button.resize(edge, edge);
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
    const int gaps = std::min(2 * ui->verticalLayout_4->spacing(),
                              underSquare - ui->colorSample->minimumHeight());
    ui->verticalLayout_4->setSpacing(std::max(gaps / 2, 0));
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
    setMinimums({ui->keyboard_full, ui->stripe_led_2}, band.fullPicture);
    setMinimums({ui->stripe_led}, band.stripePicture);
    setMinimums({ui->keyboard_left, ui->keyboard_center, ui->keyboard_right}, band.zonePicture);
    if (band.colourButton != 0) {
        setMinimums({ui->colorpick1, ui->colorpick2, ui->colorpick3, ui->colorpick4, ui->colorpick5,
                     ui->colorpick5_3},
                    {band.colourButton, band.colourButton});
        const int hub = hubEdge(band.colourButton);
        for (QPushButton *const wheel :
             {ui->colorpick1, ui->colorpick2, ui->colorpick3, ui->colorpick4, ui->colorpick5}) {
            wheel->setIconSize({hub, hub});
        }
    }
    ui->frame_2->setMinimumHeight(band.barHeight);
    ui->frame_2->setMaximumHeight(band.barHeight);
    ui->frame->setMinimumHeight(band.frameHeight);

    // Of one height on every page and with an effect chosen, so that nothing jumps.
    const int pictures = std::max(
        {band.fullPicture.height(), band.stripePicture.height(), band.zonePicture.height()});
    struct Page
    {
        QGridLayout *layout;
        int pictureRow;
        int buttonRow;
    };
    for (const Page &page : {Page{ui->gridLayout_13, 1, 4}, Page{ui->gridLayout_3, 1, 3},
                             Page{ui->gridLayout_6, 1, 3}, Page{ui->gridLayout_12, 1, 3},
                             Page{ui->gridLayout_14, 1, 3}, Page{ui->gridLayout_11, 2, 4}}) {
        page.layout->setRowMinimumHeight(page.pictureRow, pictures);
        page.layout->setRowMinimumHeight(page.buttonRow, ui->colorpick4->minimumHeight());
    }

    setHeights({ui->verticalSpacer_1, ui->verticalSpacer_2, ui->verticalSpacer_3,
                ui->verticalSpacer_4, ui->verticalSpacer_5, ui->verticalSpacer_6,
                ui->verticalSpacer_7, ui->verticalSpacer_8, ui->verticalSpacer_9,
                ui->verticalSpacer_10, ui->verticalSpacer_12, ui->verticalSpacer_13},
               band.pageSpacer);
    // No other page has a blank above its picture.
    setHeights({ui->verticalSpacer_11}, 0);
    setHeights({ui->verticalSpacer_17, ui->verticalSpacer_18, ui->verticalSpacer_19,
                ui->verticalSpacer_20, ui->verticalSpacer_21},
               band.settingsSpacer);
    // A changed spacer does not tell its layout.
    for (QLayout *const layout : std::initializer_list<QLayout *>{
             ui->gridLayout_13, ui->gridLayout_3, ui->gridLayout_6, ui->gridLayout_12,
             ui->gridLayout_14, ui->gridLayout_11, ui->gridLayout_7, ui->gridLayout_8}) {
        layout->update();
    }
}
