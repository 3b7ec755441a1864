#pragma once

#include <array>

/// What the style sheet sets, rule by rule in its order, which decides between rules that both fit.
struct SheetRule
{
    const char *selectors;
    const char *declarations;
};
inline constexpr std::array sheetRules{
    // Picture buttons and previews.
    SheetRule{"#colorpick1, #colorpick2, #colorpick3, #colorpick4, #colorpick5, "
              "#colorpick5_3, #stripe_led, #stripe_led_2, #keyboard_full, "
              "#keyboard_left, #keyboard_left_2, #keyboard_center, #keyboard_center_2, "
              "#keyboard_right, #keyboard_right_2, #minimizeButton, #closeButton",
              "background-color: transparent; background-repeat: no-repeat; border: "
              "none; padding: 0px;"},
    SheetRule{"#colorpick1, #colorpick2, #colorpick3, #colorpick4, #colorpick5, "
              "#colorpick5_3",
              "border-image: url(branding/colorpick.png); border-radius: 3px;"},
    SheetRule{"#colorpick1:hover, #colorpick2:hover, #colorpick3:hover, #colorpick4:hover, "
              "#colorpick5:hover, #colorpick5_3:hover",
              "background-color: rgba(255, 255, 255, 50);"},
    SheetRule{"#colorpick1:pressed, #colorpick2:pressed, #colorpick3:pressed, "
              "#colorpick4:pressed, #colorpick5:pressed, #colorpick5_3:pressed",
              "background-color: #1e1e1e; margin: 2px;"},
    SheetRule{"#colorpick1:disabled, #colorpick2:disabled, #colorpick3:disabled, "
              "#colorpick4:disabled, #colorpick5:disabled, #colorpick5_3:disabled",
              "border-image: url(:/darkstyle/icon_colorpick_disabled.png);"},
    SheetRule{"#stripe_led", "border-image: url(branding/stripe_lidled.png);"},
    SheetRule{"#stripe_led_2", "border-image: url(branding/lumikey_icon.png);"},
    SheetRule{"#keyboard_full", "border-image: url(branding/keyboard_full.png);"},
    SheetRule{"#keyboard_left, #keyboard_left_2", "border-image: url(branding/keyboard_left.png);"},
    SheetRule{"#keyboard_center, #keyboard_center_2",
              "border-image: url(branding/keyboard_center.png);"},
    SheetRule{"#keyboard_right, #keyboard_right_2",
              "border-image: url(branding/keyboard_right.png);"},
    SheetRule{"#minimizeButton", "border-image: url(branding/minimize.png);"},
    SheetRule{"#minimizeButton:hover", "border-image: url(branding/minimize_focus.png);"},
    SheetRule{"#closeButton", "border-image: url(branding/close.png);"},
    SheetRule{"#closeButton:hover", "border-image: url(branding/close_focus.png);"},
    SheetRule{"#colorpick1:focus, #colorpick2:focus, #colorpick3:focus, "
              "#colorpick4:focus, #colorpick5:focus, #colorpick5_3:focus, "
              "#minimizeButton:focus, #closeButton:focus",
              "outline: 2px solid #ffffff;"},
    SheetRule{"#label_14, #label_16", "padding-bottom: 18px;"},
    // Windows.
    SheetRule{"QMainWindow", "border: 1px solid #272727;"},
    SheetRule{"QMessageBox", "border: 2px solid #212121; "
                             "messagebox-information-icon: url(:/darkstyle/icon_information.png); "
                             "messagebox-question-icon: url(:/darkstyle/icon_question.png);"},
    SheetRule{"QDialogButtonBox QPushButton", "min-width: 4em;"},
    SheetRule{"QDialogButtonBox", "dialogbuttonbox-buttons-have-icons: 0;"},
    SheetRule{"QMainWindow::separator", "width: 5px; height: 5px; background: transparent;"},
    SheetRule{"QMainWindow::separator:hover", "background: palette(highlight);"},
    SheetRule{"QStatusBar", "color: #cccccc;"},
    SheetRule{"QStatusBar::item", "border: none;"},
    SheetRule{"QToolTip", "color: #353535; background-color: #ffffff; border: 1px solid #353535; "
                          "padding: 2px;"},
    SheetRule{"#frame, #frame_2",
              "background-color: rgba(73, 73, 73, 127); border: 1px solid rgba(5, 5, "
              "5, 127);"},
    // Buttons and fields.
    SheetRule{"QPushButton, QComboBox",
              "color: #ffffff; background-color: #434343; border: 1px solid #848484; "
              "border-radius: 3px; padding: 0.2em 0.5em;"},
    SheetRule{"QPushButton", "outline: none;"},
    SheetRule{"QPushButton:hover, QComboBox:hover",
              "background-color: #525252; border-color: #cacaca;"},
    SheetRule{"QPushButton:pressed",
              "background-color: #2a2a2a; border-color: palette(highlight);"},
    SheetRule{"QPushButton:focus, QComboBox:focus, QLineEdit:focus", "border: 2px solid #ffffff;"},
    // The picker's primary button.
    SheetRule{"#pushButton", "border: 2px solid palette(highlight); font-weight: bold;"},
    SheetRule{"#pushButton:focus", "border-color: #ffffff;"},
    SheetRule{"QPushButton:disabled, QComboBox:disabled",
              "color: #b0b0b0; background-color: #353535; border-color: #4a4a4a;"},
    SheetRule{"QComboBox", "combobox-popup: 0;"},
    SheetRule{"QComboBox::drop-down",
              "subcontrol-origin: padding; subcontrol-position: center right; width: "
              "1.7em; border: none;"},
    SheetRule{"QComboBox::down-arrow",
              "image: url(:/darkstyle/icon_branch_open.png); width: 1em; height: 1em;"},
    SheetRule{"QComboBox::down-arrow:disabled", "image: none;"},
    SheetRule{"QComboBox QAbstractItemView",
              "color: #ffffff; background-color: #2a2a2a; border: 1px solid #848484; "
              "selection-color: #ffffff; selection-background-color: "
              "palette(highlight); outline: none;"},
    SheetRule{"QComboBox QAbstractItemView::item",
              "min-height: 2em; padding: 0px 0.4em; border: none;"},
    SheetRule{"QComboBox QAbstractItemView::item:selected",
              "background-color: palette(highlight);"},
    SheetRule{"QLineEdit", "color: #ffffff; background-color: #2a2a2a; border: 1px solid #848484; "
                           "border-radius: 3px; padding: 0.1em 0.3em; selection-color: #ffffff; "
                           "selection-background-color: palette(highlight);"},
    SheetRule{"QLineEdit:disabled", "color: #b0b0b0; border-color: #4a4a4a;"},
    SheetRule{"#pushButton_3", "margin-left: 3px;"},
    // Check boxes and radio buttons.
    SheetRule{"QCheckBox, QRadioButton",
              "spacing: 0.3em; padding: 0px 2px; border: 1px solid transparent; outline: none;"},
    SheetRule{"QCheckBox:focus, QRadioButton:focus",
              "border: 1px solid #ffffff; border-radius: 3px;"},
    SheetRule{"QLabel:disabled, QCheckBox:disabled, QRadioButton:disabled", "color: #b0b0b0;"},
    SheetRule{"QCheckBox::indicator, QRadioButton::indicator",
              "width: 0.8em; height: 0.8em; background-color: #2a2a2a; border: 1px "
              "solid #a8a8a8; border-radius: 2px;"},
    SheetRule{"QRadioButton::indicator", "border-radius: 0.42em;"},
    SheetRule{"QCheckBox::indicator:unchecked",
              "image: url(:/darkstyle/icon_checkbox_unchecked.png);"},
    SheetRule{"QCheckBox::indicator:checked, QCheckBox::indicator:indeterminate",
              "background-color: palette(highlight); border-color: #cacaca;"},
    SheetRule{"QCheckBox::indicator:checked", "image: url(:/darkstyle/icon_checkbox_checked.png);"},
    SheetRule{"QCheckBox::indicator:indeterminate",
              "image: url(:/darkstyle/icon_checkbox_indeterminate.png);"},
    SheetRule{"QRadioButton::indicator:checked",
              "border-color: #cacaca; background-color: qradialgradient(cx: 0.5, cy: "
              "0.5, radius: 0.5, fx: 0.5, fy: 0.5, stop: 0 #ffffff, stop: 0.5 #ffffff, "
              "stop: 0.6 palette(highlight), stop: 1 palette(highlight));"},
    SheetRule{"QCheckBox::indicator:hover, QRadioButton::indicator:hover",
              "border-color: #ffffff;"},
    SheetRule{"QCheckBox::indicator:pressed, QRadioButton::indicator:pressed",
              "background-color: #848484;"},
    SheetRule{"QCheckBox::indicator:disabled, QRadioButton::indicator:disabled",
              "background-color: rgba(43, 43, 43, 127); border-color: #6a6a6a;"},
    SheetRule{"QCheckBox::indicator:unchecked:pressed",
              "image: url(:/darkstyle/icon_checkbox_unchecked_pressed.png);"},
    SheetRule{"QCheckBox::indicator:checked:pressed",
              "image: url(:/darkstyle/icon_checkbox_checked_pressed.png);"},
    SheetRule{"QCheckBox::indicator:indeterminate:pressed",
              "image: url(:/darkstyle/icon_checkbox_indeterminate_pressed.png);"},
    SheetRule{"QCheckBox::indicator:unchecked:disabled",
              "image: url(:/darkstyle/icon_checkbox_unchecked_disabled.png);"},
    SheetRule{"QCheckBox::indicator:checked:disabled",
              "image: url(:/darkstyle/icon_checkbox_checked_disabled.png);"},
    SheetRule{"QCheckBox::indicator:indeterminate:disabled",
              "image: url(:/darkstyle/icon_checkbox_indeterminate_disabled.png);"},
    SheetRule{"QRadioButton::indicator:checked:disabled",
              "background-color: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: "
              "0.5, fy: 0.5, stop: 0 #a8a8a8, stop: 0.45 #a8a8a8, stop: 0.55 #2b2b2b, "
              "stop: 1 #2b2b2b);"},
    // Tabs.
    SheetRule{"QTabWidget::pane",
              "background-color: rgba(83, 83, 83, 127); border: 1px solid rgba(25, 25, "
              "25, 127);"},
    SheetRule{"QTabBar", "outline: none;"},
    SheetRule{"QTabBar::tab",
              "color: #cccccc; background-color: rgba(18, 18, 18, 127); border: 1px "
              "solid rgba(25, 25, 25, 127); border-bottom: 2px solid transparent; "
              "margin-right: 2px; padding: 0.35em 0.9em;"},
    SheetRule{"QTabBar::tab:hover", "color: #ffffff;"},
    SheetRule{"QTabBar::tab:selected",
              "color: #ffffff; background-color: rgba(83, 83, 83, 127); border-bottom: "
              "2px solid palette(highlight);"},
    SheetRule{"QTabBar::tab:focus",
              "border: 1px solid #ffffff; border-bottom: 2px solid palette(highlight);"},
    SheetRule{"QTabBar[enabled=\"false\"]::tab", "color: #b0b0b0;"},
    SheetRule{"QTabBar[enabled=\"false\"]::tab:selected",
              "color: #b0b0b0; border-bottom-color: #505050;"},
    SheetRule{"QTabBar[enabled=\"true\"]::tab:disabled, "
              "QTabBar[lastTabEnabled=\"false\"]::tab:disabled:last",
              "width: 0px; min-width: 0px; margin: 0px; padding: 0px; border: none; "
              "color: #353535; background-color: #353535;"},
    // Sliders.
    SheetRule{"QSlider:horizontal", "min-height: 24px;"},
    SheetRule{"QSlider:vertical", "min-width: 24px;"},
    SheetRule{"QSlider::groove:horizontal",
              "height: 6%; margin: 0px; background: palette(highlight); border-radius: "
              "3px;"},
    SheetRule{"QSlider::sub-page:horizontal",
              "background: palette(highlight); border-radius: 3px;"},
    SheetRule{"QSlider::add-page:horizontal", "background: #2a2a2a; border-radius: 3px;"},
    SheetRule{"QSlider::handle:horizontal",
              "width: 11%; margin: -8% 0%; background: #848484; border: 1px solid "
              "#1c1c1c; border-radius: 3px;"},
    SheetRule{"QSlider::groove:vertical",
              "width: 6%; margin: 0px; background: palette(highlight); border-radius: "
              "3px;"},
    SheetRule{"QSlider::sub-page:vertical", "background: #2a2a2a; border-radius: 3px;"},
    SheetRule{"QSlider::add-page:vertical", "background: palette(highlight); border-radius: 3px;"},
    SheetRule{"QSlider::handle:vertical",
              "height: 11%; margin: 0% -8%; background: #848484; border: 1px solid "
              "#1c1c1c; border-radius: 3px;"},
    SheetRule{"QSlider::handle:hover", "background: #ffffff;"},
    SheetRule{"QSlider::handle:focus", "border: 2px solid #ffffff;"},
    SheetRule{"QSlider::groove:disabled, QSlider::sub-page:horizontal:disabled, "
              "QSlider::add-page:vertical:disabled",
              "background: #505050;"},
    SheetRule{"QSlider::handle:disabled", "background: #1c1c1c; border: 1px solid #6a6a6a;"},
    SheetRule{"QDial", "color: palette(highlight); background-color: #cacaca;"},
    // Menus.
    SheetRule{"QMenuBar", "color: #ffffff; background-color: rgba(25, 25, 25, 127);"},
    SheetRule{"QMenuBar::item", "background: transparent; padding: 0.3em 0.7em;"},
    SheetRule{"QMenuBar::item:selected, QMenuBar::item:pressed", "background: palette(highlight);"},
    SheetRule{"QMenu", "color: #ffffff; background-color: #303030; border: 1px solid rgba(25, "
                       "25, 25, 127);"},
    SheetRule{"QMenu::item", "background-color: rgba(25, 25, 25, 127); padding: 0.35em 2em;"},
    SheetRule{"QMenu::item:selected", "background: palette(highlight);"},
    SheetRule{"QMenu::item:disabled", "color: #b0b0b0;"},
    SheetRule{"QMenu::separator",
              "height: 1px; margin: 3px 6px; background: rgba(132, 132, 132, 127);"},
    SheetRule{"QMenu::indicator", "width: 1.2em; height: 1.2em; left: 0.4em;"},
    SheetRule{"QMenu::indicator:non-exclusive:checked",
              "image: url(branding/checkbox_checked.png);"},
    SheetRule{"QMenu::indicator:non-exclusive:unchecked",
              "image: url(branding/checkbox_unchecked.png);"},
    SheetRule{"QMenu::indicator:exclusive:checked",
              "image: url(branding/radiobutton_checked.png);"},
    SheetRule{"QMenu::indicator:exclusive:unchecked",
              "image: url(branding/radiobutton_unchecked.png);"},
    // Tool bars and docks.
    SheetRule{"QToolBar", "background-color: rgba(25, 25, 25, 127); border: none; spacing: 3px;"},
    SheetRule{"QToolBar::separator",
              "width: 1px; margin: 3px; background: rgba(132, 132, 132, 127);"},
    SheetRule{"QDockWidget",
              "color: #ffffff; titlebar-close-icon: url(:/darkstyle/icon_close.png); "
              "titlebar-normal-icon: url(:/darkstyle/icon_restore.png);"},
    SheetRule{"QDockWidget::title", "background-color: rgba(25, 25, 25, 127); padding: 0.3em;"},
    SheetRule{"QDockWidget::close-button, QDockWidget::float-button",
              "background: transparent; border: none;"},
    SheetRule{"QDockWidget::close-button:hover, QDockWidget::float-button:hover",
              "background: palette(highlight);"},
    // Trees and tables.
    SheetRule{"QTreeView, QTableView",
              "color: #ffffff; background-color: rgba(25, 25, 25, 127); "
              "alternate-background-color: rgba(66, 66, 66, 127); border: 1px solid "
              "rgba(25, 25, 25, 127); gridline-color: #484848; selection-color: "
              "#ffffff; selection-background-color: palette(highlight);"},
    SheetRule{"QTreeView::item:selected, QTableView::item:selected",
              "background: palette(highlight);"},
    SheetRule{"QTreeView::branch:has-siblings:!adjoins-item",
              "border-image: url(:/darkstyle/icon_vline.png) 0;"},
    SheetRule{"QTreeView::branch:has-siblings:adjoins-item",
              "border-image: url(:/darkstyle/icon_branch_more.png) 0;"},
    SheetRule{"QTreeView::branch:!has-children:!has-siblings:adjoins-item",
              "border-image: url(:/darkstyle/icon_branch_end.png) 0;"},
    SheetRule{"QTreeView::branch:has-children:closed",
              "border-image: none; image: url(:/darkstyle/icon_branch_closed.png);"},
    SheetRule{"QTreeView::branch:has-children:open",
              "border-image: none; image: url(:/darkstyle/icon_branch_open.png);"},
    SheetRule{"QHeaderView::section",
              "color: #cccccc; background-color: rgba(25, 25, 25, 127); border: 1px "
              "solid rgba(25, 25, 25, 127); padding: 0.25em 0.5em;"},
    // Scroll bars.
    SheetRule{"QScrollBar:horizontal",
              "height: 1em; margin: 0px; background: rgba(25, 25, 25, 127);"},
    SheetRule{"QScrollBar:vertical", "width: 1em; margin: 0px; background: rgba(25, 25, 25, 127);"},
    SheetRule{"QScrollBar::handle", "background: #848484; border-radius: 3px; margin: 2px;"},
    SheetRule{"QScrollBar::handle:horizontal", "min-width: 2em;"},
    SheetRule{"QScrollBar::handle:vertical", "min-height: 2em;"},
    SheetRule{"QScrollBar::handle:hover", "background: palette(highlight);"},
    SheetRule{"QScrollBar::add-line, QScrollBar::sub-line", "width: 0px; height: 0px;"},
    SheetRule{"QScrollBar::add-page, QScrollBar::sub-page", "background: none;"},
    // Groups and splitters.
    SheetRule{"QGroupBox",
              "background-color: rgba(25, 25, 25, 127); border: 1px solid rgba(25, 25, "
              "25, 127); margin-top: 1.2em; padding: 0.3em;"},
    SheetRule{"QGroupBox::title",
              "subcontrol-origin: margin; subcontrol-position: top left; color: "
              "#cccccc; padding: 0px 0.4em;"},
    SheetRule{"QSplitter::handle", "background-color: rgba(25, 25, 25, 127);"},
    SheetRule{"QSplitter::handle:hover", "background-color: palette(highlight);"},
};
