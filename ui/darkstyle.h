#pragma once

#include "app/appsettings.h"

#include <QColor>
#include <QProxyStyle>

class QTabBar;

/// The program's look: the Fusion style in dark colours, with the compiled-in style sheet.
///
/// Any number of these may come and go, in any order; all of them draw with one shared base style.
class DarkStyle : public QProxyStyle
{
    Q_OBJECT

public:
    DarkStyle();

    /// The style that every DarkStyle draws with. The first call decides: it keeps @p style, or a
    /// new Fusion style when none is given, for the life of the process; later calls return that
    /// same style whatever they are given. A style kept here must not be deleted by its giver.
    static QStyle *sharedBaseStyle(QStyle *style = nullptr);

    /// Sets the dark colours, in the order of their table. The highlight colour comes from the
    /// branding file, read anew at every call; where that is missing it is black.
    void polish(QPalette &palette) override;

    /// Raises the application font by one point and sets the style sheet. A font with a pixel size
    /// stays as it is, and so does one that has been raised already, by whichever DarkStyle;
    /// without the sheet's resource no sheet is set.
    void polish(QApplication *app) override;

    /// Lets the sheet say how high the rows of lists are.
    void polish(QWidget *widget) override;

    using QProxyStyle::polish;

    /// As the base style's, but the icon of a message box grows with its font.
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

    /// Draws as the base style does, but no disabled text brighter than the sheet's grey for it,
    /// whatever colour a widget has of its own.
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                      bool enabled, const QString &text,
                      QPalette::ColorRole textRole = QPalette::NoRole) const override;

    /// Lays the tabs of @p bar out anew, as the sheet wants them: a disabled tab without width, but
    /// the tabs of a bar that is disabled as a whole in their places. Qt does not do so by itself.
    /// To be called after QTabWidget::setTabEnabled(); changes of whole bars this style sees
    /// itself.
    static void layOutTabs(QTabBar *bar);

    /// Watches the application, once polished, for tab bars that are enabled or disabled.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QColor brandingHighlight() const;

    AppSettings settings;
};
