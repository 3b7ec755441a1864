#include "ui/darkstyle.h"

#include "app/settingskeys.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QStyledItemDelegate>
#include <QTabBar>

#include <array>
#include <optional>

namespace {

struct PaletteRow
{
    QPalette::ColorRole role;
    QPalette::ColorGroup group;
    std::optional<QRgb> colour; ///< empty: the branding file's highlight colour
};

constexpr QRgb white = qRgb(255, 255, 255);
constexpr QRgb disabledText = qRgb(127, 127, 127);

/// The brightest that disabled text is drawn: the sheet's grey for it, still readable on every
/// ground that the sheet lays.
constexpr QRgb brightestDisabledText = qRgb(176, 176, 176);

/// Property of the application: the font that a style has raised.
constexpr const char *raisedFont = "darkStyleRaisedFont";

// Order matters: a row for All overwrites what earlier rows have set for Disabled.
constexpr std::array darkPalette{
    PaletteRow{QPalette::Window, QPalette::All, qRgb(48, 48, 48)},
    PaletteRow{QPalette::WindowText, QPalette::All, white},
    PaletteRow{QPalette::WindowText, QPalette::Disabled, disabledText},
    PaletteRow{QPalette::Base, QPalette::All, qRgb(42, 42, 42)},
    PaletteRow{QPalette::AlternateBase, QPalette::All, qRgb(66, 66, 66)},
    PaletteRow{QPalette::ToolTipBase, QPalette::All, white},
    PaletteRow{QPalette::ToolTipText, QPalette::All, qRgb(53, 53, 53)},
    PaletteRow{QPalette::Text, QPalette::All, white},
    PaletteRow{QPalette::Text, QPalette::Disabled, disabledText},
    PaletteRow{QPalette::Dark, QPalette::All, qRgb(40, 40, 40)},
    PaletteRow{QPalette::Shadow, QPalette::All, qRgb(15, 15, 15)},
    PaletteRow{QPalette::Button, QPalette::All, qRgb(56, 56, 56)},
    PaletteRow{QPalette::ButtonText, QPalette::All, white},
    PaletteRow{QPalette::ButtonText, QPalette::Disabled, disabledText},
    PaletteRow{QPalette::BrightText, QPalette::All, qRgb(255, 0, 0)},
    PaletteRow{QPalette::Link, QPalette::All, qRgb(42, 130, 218)},
    PaletteRow{QPalette::Highlight, QPalette::All, std::nullopt},
    PaletteRow{QPalette::Highlight, QPalette::Disabled, qRgb(80, 80, 80)},
    PaletteRow{QPalette::HighlightedText, QPalette::All, white},
    PaletteRow{QPalette::HighlightedText, QPalette::Disabled, disabledText},
};

/// Keeps the base style: its owner, and the proxy through which it calls back. A QProxyStyle takes
/// both over when it is constructed, and would take the base style with it when it is destroyed.
/// The first call decides on the base style, as DarkStyle::sharedBaseStyle() tells.
QProxyStyle &baseStyleKeeper(QStyle *style = nullptr)
{
    // Never freed, on purpose: a style may be destroyed as late as the statics are.
    static auto *const keeper =
        new QProxyStyle(style ? style : QStyleFactory::create(QStringLiteral("Fusion")));
    return *keeper;
}

} // namespace

// A static library's resources are linked in only when something asks for them; outside any
// namespace, as the macro demands.
static void registerStyleResources()
{
    Q_INIT_RESOURCE(darkstyle);
}

DarkStyle::DarkStyle()
    : QProxyStyle(sharedBaseStyle())
{
    // Give the base style back at once, so that this object's end means nothing to the others.
    baseStyleKeeper().setBaseStyle(sharedBaseStyle());
    registerStyleResources();
}

QStyle *DarkStyle::sharedBaseStyle(QStyle *style)
{
    return baseStyleKeeper(style).baseStyle();
}

void DarkStyle::polish(QPalette &palette)
{
    const QColor highlight = brandingHighlight();
    for (const PaletteRow &row : darkPalette) {
        palette.setBrush(row.group, row.role, row.colour ? QColor(*row.colour) : highlight);
    }
}

void DarkStyle::polish(QApplication *app)
{
    if (!app) {
        return;
    }

    QFont font = QApplication::font();
    // The point size of a font that was given a pixel size reads as -1. Setting the sheet has Qt
    // polish the application again, and so has every other style, so a raised font is remembered.
    if (font.pointSize() > 0 && app->property(raisedFont) != QVariant(font)) {
        font.setPointSize(font.pointSize() + 1);
        app->setProperty(raisedFont, font);
    }
    QApplication::setFont(font);

    QFile sheet(QStringLiteral(":/darkstyle/darkstyle.qss"));
    if (sheet.open(QIODevice::ReadOnly | QIODevice::Text)) {
        app->setStyleSheet(QString::fromLatin1(sheet.readAll()));
    }
    app->installEventFilter(this);
}

void DarkStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    // A combo box's own delegate does not ask the sheet for the height of its rows.
    auto *const box = qobject_cast<QComboBox *>(widget);
    if (box && !qobject_cast<QStyledItemDelegate *>(box->itemDelegate())) {
        box->setItemDelegate(new QStyledItemDelegate(box));
    }
}

int DarkStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                           const QWidget *widget) const
{
    if (metric == PM_MessageBoxIconSize && widget) {
        return widget->fontInfo().pixelSize() * 27 / 10; // of two lines and a half
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void DarkStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                             const QPalette &palette, bool enabled, const QString &text,
                             QPalette::ColorRole textRole) const
{
    QPalette shown = palette;
    // A widget's own sheet wins over the rules for disabled widgets, so that its text would stay.
    if (!enabled && textRole != QPalette::NoRole
        && qGray(palette.color(textRole).rgb()) > qGray(brightestDisabledText)) {
        shown.setColor(textRole, QColor(brightestDisabledText));
    }
    QProxyStyle::drawItemText(painter, rect, flags, shown, enabled, text, textRole);
}

void DarkStyle::layOutTabs(QTabBar *bar)
{
    bool lastTabEnabled = false;
    for (int tab = 0; tab < bar->count(); ++tab) {
        if (bar->isTabVisible(tab)) {
            lastTabEnabled = bar->isTabEnabled(tab);
        }
    }
    bar->setProperty("lastTabEnabled", lastTabEnabled);
    // Rules on a widget's properties are looked up only when it is polished.
    bar->style()->polish(bar);
    QEvent styleChange(QEvent::StyleChange);
    QCoreApplication::sendEvent(bar, &styleChange);
}

bool DarkStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        if (auto *bar = qobject_cast<QTabBar *>(watched)) {
            layOutTabs(bar);
        }
    }
    return false;
}

QColor DarkStyle::brandingHighlight() const
{
    return {settings.read(BrandingKeys::highlightRed), settings.read(BrandingKeys::highlightGreen),
            settings.read(BrandingKeys::highlightBlue)};
}
