// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <QMainWindow>

class CRkBlockManagerWidget;
class CRkProjectManagerView;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

/// The main window of the survey application: the projects of the current user as tiles, with a bar
/// above that makes, copies and deletes projects and filters by place, date and name. An opened
/// project shows the page of its blocks instead.
///
///     HostSettings::setCurrentUser(userId);
///     HostWindow window;
///     window.show();
class HostWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Lists the projects that the settings name.
    explicit HostWindow(QWidget* parent = nullptr);

    CRkProjectManagerView* view() const { return m_view; }

    /// Style sheet of the surface around the view, a widget with the object name "page".
    static QString pageStyle();

    /// Filters by a part of the project's name; empty for all.
    void setKeyword(const QString& keyword);

private:
    QWidget* makeHeader();
    QPushButton* makeAction(const QString& text, void (CRkProjectManagerView::*slot)());
    QWidget* makePage();
    void makeStatusBar();
    void fillPlaces();
    void fillDates();
    void applyFilter();
    void updateCount();
    void openProject(const QString& projectFile);
    void showProjects();
    void openBlock(const QString& blockId);

    QStackedWidget* m_pages = nullptr;
    CRkProjectManagerView* m_view = nullptr;
    CRkBlockManagerWidget* m_blocks = nullptr;
    QLabel* m_noProjects = nullptr;
    QComboBox* m_place = nullptr;
    QComboBox* m_date = nullptr;
    QLineEdit* m_keyword = nullptr;
    QLabel* m_count = nullptr;
    QLabel* m_opened = nullptr;
};
