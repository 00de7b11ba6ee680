#include <QString>

namespace forms {

QString ThemeSheet();

namespace {

constexpr auto boxes = R"(
QLineEdit, QPlainTextEdit, QTextEdit {
    background: @paper; color: @ink; border: 1px solid @edge; border-radius: @fieldCorner;
    selection-background-color: @accent; selection-color: @onAccent;
}
QLineEdit { min-height: @fieldHeight; padding: 0 10px; }
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus { border: 2px solid @ink; }
QLineEdit:focus { padding: 0 9px; min-height: @focusedFieldHeight; }
QLineEdit:read-only { background: @readOnly; }
QLineEdit[role="pale"] { background: @ground; }
QLineEdit:disabled, QPlainTextEdit:disabled, QTextEdit:disabled {
    background: @readOnly; color: @muted; border-color: @line;
}
QLineEdit[highlight="true"]:focus, QPlainTextEdit[highlight="true"]:focus, QTextEdit[highlight="true"]:focus {
    background: @focus; color: @onFocus;
}
QLineEdit[role="entry"] { font-size: @entrySize; min-height: @entryHeight; }
QLineEdit[role="entry"]:focus { min-height: @focusedEntryHeight; }
QAbstractSpinBox { min-height: @spinHeight; }
QSpinBox, QDoubleSpinBox { padding-right: 14px; }
QLineEdit[role="entry"][fit="1"] { font-size: @entryFit1; }
QLineEdit[role="entry"][fit="2"] { font-size: @entryFit2; }
QLineEdit[role="entry"][fit="3"] { font-size: @entryFit3; }
QComboBox[role="entry"] { font-size: @entrySize; }
QLineEdit[role="plain"], QLineEdit[role="plain"]:read-only, QLineEdit[role="plain"]:disabled {
    background: transparent; border: none; padding: 0; min-height: @plainHeight; color: @ink;
    font-size: @strongSize; font-weight: 500;
}
QLineEdit[role="plainAccent"], QLineEdit[role="plainAccent"]:read-only, QLineEdit[role="plainAccent"]:disabled {
    background: transparent; border: none; padding: 0; min-height: @plainHeight; color: @accent;
    font-size: @plainAccentSize; font-weight: 500;
}
QComboBox QLineEdit, QComboBox QLineEdit:focus, QComboBox QLineEdit:disabled, QComboBox QLineEdit:read-only,
QAbstractSpinBox QLineEdit, QAbstractSpinBox QLineEdit:focus, QAbstractSpinBox QLineEdit:disabled,
QAbstractSpinBox QLineEdit:read-only {
    background: transparent; border: none; padding: 0; min-height: 0;
}
QComboBox QAbstractItemView {
    background: @paper; border: 1px solid @edge; outline: none;
    selection-background-color: @chosenRow; selection-color: @ink;
}
QComboBox QAbstractItemView::item { min-height: @rowHeight; padding: 0 8px; }
)";

constexpr auto buttons = R"(
QPushButton {
    background: @paper; color: @ink; border: 1px solid @edge; border-radius: @corner;
    min-height: @buttonHeight; padding: 0 14px; outline: none;
}
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:checked { background: @chosenRow; border-color: @accent; font-weight: 500; }
QPushButton:focus { border: 2px solid @accent; padding: 0 13px; min-height: @focusedButtonHeight; }
QPushButton:disabled { background: @ground; color: @faint; border-color: @line; }
QPushButton[role="main"], QPushButton[role="post"] {
    background: @accent; color: @onAccent; border-color: @accentDark; font-weight: 500;
}
QPushButton[role="post"] { font-size: @entrySize; }
QPushButton[tight="true"] { padding: 0 4px; }
QPushButton[role="main"]:hover, QPushButton[role="post"]:hover, QPushButton[role="main"]:pressed, QPushButton[role="post"]:pressed { background: @accentDark; }
QPushButton[role="main"]:focus, QPushButton[role="post"]:focus { border-color: @ink; }
QPushButton[role="main"]:disabled, QPushButton[role="post"]:disabled { background: @pressed; color: @faint; border-color: @line; }
QPushButton[role="danger"] { color: @danger; border-color: @dangerLine; }
QPushButton[role="danger"]:hover, QPushButton[role="danger"]:pressed { background: @dangerPale; }
QPushButton[role="danger"]:focus { border-color: @danger; }
QPushButton[role="danger"]:disabled { color: @faint; border-color: @line; }
QToolButton { border: 1px solid transparent; border-radius: @corner; padding: 6px; }
QToolButton:hover { background: @hover; border-color: @line; }
QToolButton:pressed { background: @pressed; }
QToolBar { background: transparent; border: none; spacing: 8px; padding: 0; }
QToolBar QToolButton {
    background: @paper; color: @ink; border: 1px solid @edge; min-height: @buttonHeight; padding: 0 14px;
}
/* In the corner beside the tabs, lower than these. */
QTabWidget QToolBar QToolButton { min-height: @fieldHeight; }
QToolBar QToolButton:hover { background: @hover; }
QToolBar QToolButton:pressed { background: @pressed; }
QToolBar QToolButton[role="main"] { background: @accent; color: @onAccent; border-color: @accentDark; font-weight: 500; }
QToolBar QToolButton[role="main"]:hover, QToolBar QToolButton[role="main"]:pressed { background: @accentDark; }
QDialogButtonBox QPushButton, QMessageBox QPushButton { min-width: 76px; }
QMessageBox QLabel#qt_msgbox_label { padding: 6px 8px 10px 4px; }
QMessageBox QLabel#qt_msgboxex_icon_label { padding: 6px; }
)";

constexpr auto texts = R"(
QLabel { color: @ink; background: transparent; }
QLabel:disabled { color: @faint; }
QLabel[role="heading"] { color: @muted; font-size: @labelSize; font-weight: 500; }
QLabel[role="muted"] { color: @muted; font-size: @labelSize; }
QLabel[role="strong"], QLineEdit[role="strong"] { font-size: @strongSize; font-weight: 500; }
QLabel[role="accent"] { color: @accent; font-weight: 500; }
QLabel[role="large"] { font-size: @totalFit2; font-weight: 500; }
QLabel[role="figure"] { font-size: @strongSize; font-weight: 500; }
QLabel[role="nightText"], QLineEdit[role="nightText"] { color: @nightText; font-size: @textSize; }
QLabel[role="total"], QLineEdit[role="total"] { color: @glow; font-size: @totalSize; font-weight: bold; }
QLineEdit[role="total"][fit="1"] { font-size: @totalFit1; }
QLineEdit[role="total"][fit="2"] { font-size: @totalFit2; }
QLineEdit[role="total"][fit="3"] { font-size: @totalFit3; }
QLineEdit[role="total"], QLineEdit[role="total"]:read-only, QLineEdit[role="total"]:disabled,
QLineEdit[role="nightText"], QLineEdit[role="nightText"]:read-only, QLineEdit[role="nightText"]:disabled {
    background: transparent; border: none; padding: 0; min-height: 0;
}
QCheckBox, QRadioButton { background: transparent; color: @ink; }
QCheckBox:disabled, QRadioButton:disabled { color: @faint; }
QRadioButton[role="columns"] { font-family: monospace; }
QToolTip { background: @night; color: @nightText; border: 1px solid @night; padding: 4px 6px; font-size: @labelSize; }
)";

constexpr auto panels = R"(
QFrame[role="panel"] { background: @paper; border: 1px solid @line; border-radius: @corner; }
QFrame[role="night"] { background: @night; border: none; border-radius: @corner; }
QFrame[role="strip"] { background: @strip; border: 1px solid @stripLine; border-radius: @corner; }
QFrame[role="strip"] QLineEdit, QLabel[role="strip"], QLineEdit[role="strip"] { font-size: @textSize; }
QLabel[role="strip"], QLineEdit[role="strip"], QLineEdit[role="strip"]:read-only {
    background: @strip; border: 1px solid @stripLine; border-radius: @corner; padding: 0 12px;
}
QLineEdit[role="stripDanger"], QLineEdit[role="stripDanger"]:read-only {
    background: @danger; color: @onDanger; border: 1px solid @danger; border-radius: @corner; padding: 0 12px;
}
QLineEdit[role="stripAdded"], QLineEdit[role="stripAdded"]:read-only {
    background: @strip; color: @accent; font-weight: bold; border: 1px solid @accent; border-radius: @corner; padding: 0 12px;
}
QLabel[role="picture"] { color: @muted; border: 1px dotted @edge; border-radius: @corner; font-size: @labelSize; }
QGroupBox {
    background: @paper; border: 1px solid @line; border-radius: @corner; margin-top: 20px; padding: 4px;
}
QGroupBox::title {
    subcontrol-origin: margin; subcontrol-position: top left; left: 2px; top: 1px;
    color: @muted; font-size: @labelSize; font-weight: 500; background: transparent;
}
QGroupBox[title=""] { margin-top: 0; }
QGroupBox:disabled { background: @hover; }
QGroupBox::title:disabled { color: @faint; }
QProgressBar {
    background: @paper; border: 1px solid @line; border-radius: @fieldCorner; min-height: 14px; text-align: center;
}
QProgressBar::chunk { background: @accent; border-radius: 3px; }
)";

constexpr auto lists = R"(
QTreeView, QTableView, QListView {
    background: @paper; alternate-background-color: @secondRow; border: 1px solid @edge; border-radius: @corner; padding: 1px;
    outline: none; selection-background-color: @chosenRow; selection-color: @ink;
}
QTreeView:focus, QTableView:focus, QListView:focus { border: 2px solid @accent; padding: 0; }
QTextBrowser { border: 1px solid @edge; border-radius: @corner; padding: 1px; }
QTextBrowser:focus { border: 2px solid @accent; padding: 0; }
forms--TextView { background: @paper; border: 1px solid @edge; border-radius: @corner; padding: 1px; }
forms--TextView:focus { border: 2px solid @accent; padding: 0; }
QTreeView:disabled { color: @faint; }
QTreeView::item { padding: 0 8px; border: none; color: @ink; }
QTreeView::item:selected, QTreeView::item:selected:!active { background: @chosenRow; color: @ink; }
QTreeView::item:disabled, QTreeView[role="stale"]::item { color: @faint; }
QTreeView[role="stale"]::item:selected { background: transparent; }
QHeaderView { background: @heading; border: none; border-top-left-radius: @corner; border-top-right-radius: @corner; }
QHeaderView::section {
    background: @heading; color: @muted; font-size: @labelSize; font-weight: 500; min-height: @headingHeight;
    border: none; border-bottom: 1px solid @line; padding: 0 11px;
}
QHeaderView::section:first { border-top-left-radius: @corner; }
QHeaderView::section:last { border-top-right-radius: @corner; }
QFileDialog QHeaderView::section { min-height: 22px; }
QTreeView[tight="true"] QHeaderView::section { min-height: @tightHeading; }
QHeaderView::section:disabled { color: @faint; }
QScrollBar:vertical { background: @ground; width: @scrollBarWidth; margin: 0; }
QScrollBar:horizontal { background: @ground; height: @scrollBarWidth; margin: 0; }
QScrollBar::handle { background: @edge; border-radius: @corner; }
QScrollBar::handle:vertical { margin: 6px 12px; }
QScrollBar::handle:horizontal { margin: 12px 6px; }
QScrollBar::handle:vertical { min-height: @scrollBarWidth; }
QScrollBar::handle:horizontal { min-width: @scrollBarWidth; }
QScrollBar::handle:hover, QScrollBar::handle:pressed { background: @muted; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; }
)";

constexpr auto tabs = R"(
QTabWidget::pane { background: @paper; border: 1px solid @line; border-radius: @corner; top: -1px; }
QTabWidget::pane:top { border-top-left-radius: 0; }
QTabBar { font-size: @labelSize; outline: none; }
QTabBar::tab {
    background: @tabBehind; color: @ink; border: 1px solid @line; border-bottom: 1px solid @line;
    border-top-left-radius: @corner; border-top-right-radius: @corner;
    min-height: @tabHeight; min-width: 30px; padding: 0 8px; margin-right: 2px;
}
QTabBar[fit="1"] { font-size: @tabFit1; }
QTabBar[fit="2"] { font-size: @tabFit2; }
QTabBar[fit]::tab { min-width: 0; padding: 0 2px; }
QTabBar::tab:selected { background: @paper; border-bottom-color: @paper; font-weight: bold; }
QTabBar::tab:hover:!selected { background: @hover; }
QTabBar::tab:focus { color: @accent; border: 2px solid @accent; }
QTabBar::tab:disabled { color: @faint; }
)";

constexpr auto windows = R"(
QMenuBar { background: @paper; border-bottom: 1px solid @line; padding: 1px 4px; }
QMenuBar::item { background: transparent; color: @ink; padding: 7px 14px; border-radius: @fieldCorner; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @chosenRow; }
QMenuBar::item:disabled { color: @faint; }
QMenu { background: @paper; border: 1px solid @line; padding: 4px; }
QMenu::item { color: @ink; padding: 9px 28px 9px 16px; border-radius: @fieldCorner; }
QMenu::item:selected { background: @chosenRow; }
QMenu::item:disabled { color: @faint; background: transparent; }
QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }
QStatusBar { background: @paper; border-top: 1px solid @line; min-height: 26px; }
QStatusBar::item { border: none; }
QStatusBar QLabel { color: @muted; font-size: @labelSize; padding: 0 8px; }
QStatusBar QLabel[role="figure"], QStatusBar QLabel[role="strong"] {
    color: @ink; font-size: @plainAccentSize; font-weight: 500;
}
QCalendarWidget { min-width: @calendarWidth; min-height: @calendarHeight; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: @accent; }
QCalendarWidget QToolButton { color: @onAccent; font-weight: 500; min-height: 26px; border: none; }
QCalendarWidget QToolButton#qt_calendar_prevmonth, QCalendarWidget QToolButton#qt_calendar_nextmonth { min-width: 44px; }
QCalendarWidget QToolButton:hover { background: @accentDark; }
QCalendarWidget QToolButton::menu-indicator { image: none; }
QCalendarWidget QTableView { border-radius: 0; selection-background-color: @accent; selection-color: @onAccent; }
)";

}  // namespace

QString ThemeSheet() {
    QString sheet;
    for (const char* part : {boxes, buttons, texts, panels, lists, tabs, windows}) sheet += QString::fromUtf8(part);
    return sheet;
}

}  // namespace forms
