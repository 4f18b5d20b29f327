// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/RkBaseUI.h>
#include <RkData/RkData.h>

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QTranslator>

#include <memory>

/// Uses one thing of every kind that the package brings: a dialog, a free function, the catalogue
/// with its data, a translation and a platform class.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const std::unique_ptr<QTranslator> translator(
        CreateTranslator(QStringLiteral("RkBaseUI_zh_CN")));

    CRkBaseDialog dialog(nullptr);
    auto* layout = new QHBoxLayout;
    layout->addWidget(new QLabel(getHumanReadableFileSize(3 << 20)));
    dialog.AddLayout(layout);

    const QString city = RkCityCategory::instance().GetCityName(PointLatLng(30.66, 104.06));
    const bool complete = !translator->isEmpty() && city.contains(QLatin1String("Chengdu"))
        && CRkControl::GetProjectDirPath().endsWith(QLatin1Char('/'));
    return complete ? 0 : 1;
}
