// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include "terrain/ElevationModel.h"
#include "terrain/LitTerrain.h"

#include <QVariant>
#include <QWidget>

#include <optional>

class QLabel;
class ViewButtons;

/// A terrain in three dimensions under a light. The mouse turns it and the wheel goes nearer; on
/// the keyboard the arrows turn it, + and - go nearer and farther, and Home goes back.
///
///     connect(dialog, &CRkLightWgt::signalLightPara, panel, &LightPanel::setLight);
///     dialog->InitWgt(panel->light(), panel->lightName());
///
/// Drawn with OpenGL, and where there is none plainly, which it says.
class LightPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LightPanel(const ElevationModel& model, QWidget* parent = nullptr);

    /// The record of ten elements; see CRkLightWgt. A copy: the dialog that shows it answers with
    /// changed ones at once.
    QVariantList light() const { return m_light; }
    /// Under which the dialog of the light is to send it.
    static QString lightName();

    const OrbitCamera& camera() const { return m_terrain.camera; }
    void setCamera(const OrbitCamera& camera);

    /// So many pixels at the right edge are covered by another window.
    void setCoveredWidth(int pixels);

    /// Whether it is drawn with OpenGL, which is found out when it is shown for the first time.
    bool hasOpenGL() const { return m_hasOpenGL; }

public Q_SLOTS:
    /// Lights that do not go by the panel's name are not its own.
    void setLight(const QVariant& record, const QString& name);
    void zoomIn();
    void zoomOut();
    void showWhole();

Q_SIGNALS:
    /// The user wants to change the light.
    void lightWanted();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void makeView();
    void placeCaption();
    void letGo();
    void renew();

    const ElevationModel m_model;
    bool m_hasOpenGL = false;
    LitTerrain m_terrain;
    QVariantList m_light;
    QWidget* m_view = nullptr; ///< Null until the panel is shown for the first time.
    ViewButtons* const m_buttons;
    QLabel* const m_caption;
    std::optional<QPointF> m_grip; ///< Where the mouse was last while it turns the terrain.
};
