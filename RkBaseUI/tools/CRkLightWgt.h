// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkBaseUI/CRkBaseDialog.h>

#include <QColor>
#include <QList>
#include <QString>
#include <QVariant>

#include <memory>

class QColorDialog;
class QPushButton;

namespace Ui {
class CRkLightWgt;
}

/// Dialog with the light of a 3-D view. Every change is sent at once.
///
///     auto* dialog = new CRkLightWgt(this);
///     connect(dialog, &CRkLightWgt::signalLightPara, view, &View::setLight);
///     dialog->InitWgt(view->light(), "terrain");
///     dialog->show();
///
/// The light is a record of ten elements, the same in both directions:
///
/// | index | content | type sent | unit, range |
/// |---|---|---|---|
/// | 0, 1, 2 | position x, y, z | float | scene units |
/// | 3, 4, 5 | coefficients: ambient, diffuse, specular | double | 0.00 to 1.00 |
/// | 6, 7 | colours: light, specular | QColor | |
/// | 8 | shininess | double | 3 to 1000, integral |
/// | 9 | blend | double | 0.00 to 1.00 |
///
/// The distance of the position from the origin is kept, its direction shown as azimuth and
/// elevation. The position sent is `rk::lightPosition` of these, not the one received.
///
/// The window in which the user picks a colour knows no transparency: opened for a translucent one,
/// it makes it opaque and sends that.
class RKBASEUI_EXPORT CRkLightWgt : public CRkBaseDialog
{
    Q_OBJECT

public:
    /// Distance 0 and invalid colours until `InitWgt`.
    explicit CRkLightWgt(QWidget* parent = nullptr);
    ~CRkLightWgt() override;

    /// Shows the light and sends it back wherever a shown value changes, so several times, under
    /// `name`. Positions are read as doubles; coefficients are cut, not rounded, to hundredths.
    /// Missing elements and those of a wrong type count as 0 and as an invalid colour, which is
    /// shown black; what is out of range or not a number is brought into the range.
    void InitWgt(QList<QVariant> record, const QString& name);

Q_SIGNALS:
    /// The light, a QVariantList, and the name given to `InitWgt`.
    void signalLightPara(const QVariant& var, const QString& strName);
    /// The direction, degrees.
    void signalUpdateAngle(float fAzimuth, float fElevation);

private Q_SLOTS:
    void slotAmbientSliderValueChanged(int value);
    void slotDiffuseSliderValueChanged(int value);
    void slotSpecularSliderValueChanged(int value);
    void slotShininessSliderValueChanged(int value);
    void slotBlendSliderValueChanged(int value);
    void slotClickLightColor();
    void slotClickSpecularColor();
    void slotColorChanged(const QColor& color);
    void sloSpinBoxValueChanged(double value);
    void slotUpdateAngle(float fAzimuth, float fElevation);

private:
    enum class ColorTarget { Light, Specular };

    void ConnectEvent();
    QVariant GetLightPara() const;
    void _sendLight();
    void _chooseColor(ColorTarget target);
    QColor& _color(ColorTarget target);
    QPushButton* _swatch(ColorTarget target) const;

    const std::unique_ptr<Ui::CRkLightWgt> m_form;
    QColorDialog* m_colorDialog = nullptr; ///< Owned by Qt; made at its first use.
    QColor m_lightColor;
    QColor m_specularColor;
    ColorTarget m_colorTarget = ColorTarget::Light;
    QString m_name;
    float m_distance = 0; ///< Of the light from the origin, scene units.
};
