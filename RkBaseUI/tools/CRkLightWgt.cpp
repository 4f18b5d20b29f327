// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "tools/CRkLightWgt.h"

#include "tools/LightDirection.h"
#include "ui_CRkLightWgt.h"

#include <QColorDialog>

#include <cmath>
#include <limits>

namespace {

/// Towards zero; what no int can hold becomes the nearest that can, and 0 for not a number.
int truncated(double value)
{
    using Int = std::numeric_limits<int>;
    return std::isnan(value) ? 0 : static_cast<int>(qBound<double>(Int::min(), value, Int::max()));
}

void paintSwatch(QPushButton* swatch, const QColor& color)
{
    swatch->setStyleSheet(QStringLiteral("background-color: rgba(%1, %2, %3, %4);")
                              .arg(color.red())
                              .arg(color.green())
                              .arg(color.blue())
                              .arg(color.alpha()));
}

double hundredths(const QSlider* slider)
{
    return slider->value() / 100.0;
}

} // namespace

CRkLightWgt::CRkLightWgt(QWidget* parent)
    : CRkBaseDialog(parent)
    , m_form(std::make_unique<Ui::CRkLightWgt>())
{
    auto* form = new QWidget(this);
    m_form->setupUi(form);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    resize(form->size());
    auto* layout = new QVBoxLayout;
    layout->addWidget(form);
    AddLayout(layout);
    SetBtnHidden(true, true, false);
    SetWindowTitle(tr("Light Parameter"));
    ConnectEvent();

    setTabOrder(m_form->horizontalSlider_blend, closeButton());
    m_form->doubleSpinBox_Azimuth->setFocus();
}

CRkLightWgt::~CRkLightWgt() = default;

// What is sent meanwhile may end in the caller's own list.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void CRkLightWgt::InitWgt(QList<QVariant> record, const QString& name)
{
    const auto number = [&record](int index) { return record.value(index).toDouble(); };
    m_name = name;
    m_lightColor = record.value(6).value<QColor>();
    m_specularColor = record.value(7).value<QColor>();
    m_distance = rk::lightDistance(number(0), number(1), number(2));

    const rk::LightAngles angles = rk::lightAngles(number(0), number(1), number(2));
    m_form->doubleSpinBox_Azimuth->setValue(angles.azimuth);
    m_form->doubleSpinBox_Elevation->setValue(angles.elevation);
    emit signalUpdateAngle(angles.azimuth, angles.elevation);

    m_form->horizontalSlider_ambient->setValue(truncated(number(3) * 100));
    m_form->horizontalSlider_diffuse->setValue(truncated(number(4) * 100));
    m_form->horizontalSlider_specular->setValue(truncated(number(5) * 100));
    m_form->horizontalSlider_shininess->setValue(truncated(number(8)));
    m_form->horizontalSlider_blend->setValue(truncated(number(9) * 100));

    paintSwatch(m_form->btn_color_light, m_lightColor);
    paintSwatch(m_form->btn_color_specular, m_specularColor);
}

void CRkLightWgt::slotAmbientSliderValueChanged(int /*value*/)
{
    _sendLight();
}

void CRkLightWgt::slotDiffuseSliderValueChanged(int /*value*/)
{
    _sendLight();
}

void CRkLightWgt::slotSpecularSliderValueChanged(int /*value*/)
{
    _sendLight();
}

void CRkLightWgt::slotShininessSliderValueChanged(int /*value*/)
{
    _sendLight();
}

void CRkLightWgt::slotBlendSliderValueChanged(int /*value*/)
{
    _sendLight();
}

void CRkLightWgt::slotClickLightColor()
{
    _chooseColor(ColorTarget::Light);
}

void CRkLightWgt::slotClickSpecularColor()
{
    _chooseColor(ColorTarget::Specular);
}

void CRkLightWgt::slotColorChanged(const QColor& color)
{
    _color(m_colorTarget) = color;
    paintSwatch(_swatch(m_colorTarget), color);
    _sendLight();
}

void CRkLightWgt::sloSpinBoxValueChanged(double /*value*/)
{
    _sendLight();
    emit signalUpdateAngle(static_cast<float>(m_form->doubleSpinBox_Azimuth->value()),
                           static_cast<float>(m_form->doubleSpinBox_Elevation->value()));
}

void CRkLightWgt::slotUpdateAngle(float fAzimuth, float fElevation)
{
    m_form->doubleSpinBox_Azimuth->setValue(fAzimuth);
    m_form->doubleSpinBox_Elevation->setValue(fElevation);
}

void CRkLightWgt::ConnectEvent()
{
    connect(m_form->horizontalSlider_ambient, &QSlider::valueChanged, this,
            &CRkLightWgt::slotAmbientSliderValueChanged);
    connect(m_form->horizontalSlider_diffuse, &QSlider::valueChanged, this,
            &CRkLightWgt::slotDiffuseSliderValueChanged);
    connect(m_form->horizontalSlider_specular, &QSlider::valueChanged, this,
            &CRkLightWgt::slotSpecularSliderValueChanged);
    connect(m_form->horizontalSlider_shininess, &QSlider::valueChanged, this,
            &CRkLightWgt::slotShininessSliderValueChanged);
    connect(m_form->horizontalSlider_blend, &QSlider::valueChanged, this,
            &CRkLightWgt::slotBlendSliderValueChanged);
    connect(m_form->btn_color_light, &QPushButton::clicked, this,
            &CRkLightWgt::slotClickLightColor);
    connect(m_form->btn_color_specular, &QPushButton::clicked, this,
            &CRkLightWgt::slotClickSpecularColor);
    connect(this, &CRkLightWgt::signalUpdateAngle, m_form->widget, &CRkLightDir::slotUpdateAngle);
    connect(m_form->widget, &CRkLightDir::signalUpdateAngle, this, &CRkLightWgt::slotUpdateAngle);
    for (const QDoubleSpinBox* box :
         {m_form->doubleSpinBox_Azimuth, m_form->doubleSpinBox_Elevation})
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &CRkLightWgt::sloSpinBoxValueChanged);
}

QVariant CRkLightWgt::GetLightPara() const
{
    const rk::LightAngles angles = {
        static_cast<float>(m_form->doubleSpinBox_Azimuth->value()),
        static_cast<float>(m_form->doubleSpinBox_Elevation->value()),
    };
    const QVector3D position = rk::lightPosition(angles, m_distance);
    return QVariantList{
        position.x(),
        position.y(),
        position.z(),
        hundredths(m_form->horizontalSlider_ambient),
        hundredths(m_form->horizontalSlider_diffuse),
        hundredths(m_form->horizontalSlider_specular),
        m_lightColor,
        m_specularColor,
        static_cast<double>(m_form->horizontalSlider_shininess->value()),
        hundredths(m_form->horizontalSlider_blend),
    };
}

void CRkLightWgt::_sendLight()
{
    emit signalLightPara(GetLightPara(), m_name);
}

void CRkLightWgt::_chooseColor(ColorTarget target)
{
    m_colorTarget = target;
    if (!m_colorDialog) {
        m_colorDialog = new QColorDialog(this);
        connect(m_colorDialog, &QColorDialog::currentColorChanged, this,
                &CRkLightWgt::slotColorChanged);
        // Left behind it would go on changing a light that is no longer shown.
        connect(this, &QDialog::finished, m_colorDialog, &QWidget::hide);
    }
    m_colorDialog->setCurrentColor(_color(target));
    m_colorDialog->setModal(false);
    m_colorDialog->setAttribute(Qt::WA_TranslucentBackground);
    // Its ground is painted all the same: on nothing the dialog could not be read.
    m_colorDialog->setAttribute(Qt::WA_NoSystemBackground, false);
    m_colorDialog->setWindowOpacity(1.0);
    m_colorDialog->show();
}

QColor& CRkLightWgt::_color(ColorTarget target)
{
    return target == ColorTarget::Light ? m_lightColor : m_specularColor;
}

QPushButton* CRkLightWgt::_swatch(ColorTarget target) const
{
    return target == ColorTarget::Light ? m_form->btn_color_light : m_form->btn_color_specular;
}
