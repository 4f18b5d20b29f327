// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/HostStyle.h"

namespace HostStyle {

QString window()
{
    return QStringLiteral(R"(
QMainWindow { background-color: rgb(226, 232, 240); }
QMainWindow::separator { background-color: rgb(214, 221, 232); width: 1px; height: 1px; }
QToolBar {
    background-color: rgb(9, 2, 38); border: none; spacing: 8px; padding: 9px 16px;
}
QToolBar QLabel { color: rgb(164, 182, 212); font-size: 13px; }
QToolBar QLabel#brand {
    color: white; font-size: 17px; font-weight: 600; padding-right: 14px;
}
QToolBar QToolButton {
    color: rgb(230, 238, 250); background-color: transparent; font-size: 13px;
    border: 1px solid transparent; border-radius: 4px; padding: 6px 10px;
}
QToolBar QToolButton:hover { background-color: rgb(19, 41, 74); }
QToolBar QToolButton:pressed, QToolBar QToolButton:open { background-color: rgb(31, 58, 100); }
QToolBar QToolButton:focus { border-color: rgb(150, 195, 255); }
QToolBar QToolButton::menu-indicator { image: none; width: 0; }
QToolBar QToolButton#openProjects {
    color: white; background-color: rgb(58, 136, 244); font-weight: 600; padding: 6px 8px 6px 12px;
}
QToolBar QToolButton#openProjects:hover { background-color: rgb(92, 158, 250); }
QToolBar QToolButton#openProjects:pressed { background-color: rgb(38, 108, 208); }
QToolBar QToolButton#openProjects:focus { border-color: white; }
QToolBar QComboBox {
    color: rgb(230, 238, 250); background-color: rgb(4, 21, 46); font-size: 13px;
    border: 1px solid rgb(52, 78, 118); border-radius: 4px; padding: 0 4px 0 8px;
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QToolBar QComboBox:focus { border-color: rgb(58, 136, 244); }
QToolBar QComboBox::drop-down { border: none; width: 26px; }
QToolBar QComboBox::down-arrow {
    image: url(:/images/Normal/eng_search_arrow_nor.png); width: 21px; height: 21px;
}
QToolBar QComboBox QAbstractItemView {
    color: rgb(230, 238, 250); background-color: rgb(4, 21, 46);
    border: 1px solid rgb(52, 78, 118); outline: none;
    selection-background-color: rgb(58, 136, 244); selection-color: white;
}
QMenu {
    color: rgb(230, 238, 250); background-color: rgb(4, 21, 46); font-size: 13px;
    border: 1px solid rgb(52, 78, 118); padding: 4px;
}
QMenu::item { padding: 7px 28px 7px 14px; border-radius: 3px; }
QMenu::item:selected { background-color: rgb(31, 58, 100); }
QMenu::item:checked { color: white; background-color: rgb(58, 136, 244); }
QMenu::indicator { width: 0; }
)");
}

} // namespace HostStyle
