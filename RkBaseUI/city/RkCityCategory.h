// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#pragma once

#include <RkAlgorthm/PointLatLng.h>
#include <RkBaseUI/RkBaseUIExport.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QPolygonF>
#include <QString>
#include <QStringList>

#include <memory>

/// The country's provinces and cities, read once from `ChinaAdminiDstrict.db` beside the executable
/// and never changed afterwards. A file that is missing or cannot be read leaves the catalogue
/// empty. An application object must exist at the first use, because it knows where the executable
/// is. GUI thread.
///
///     const RkCityCategory& catalogue = RkCityCategory::instance();
///     const QString city = catalogue.GetCityName(PointLatLng(30.66, 104.06));
///     const QString province = catalogue.letterToFirstProvince().value("S");
///     const QStringList cities = catalogue.provinceToCities().value(province);
class RKBASEUI_EXPORT RkCityCategory : public QObject
{
    Q_OBJECT

public:
    /// The catalogue of the process, loaded by the first call.
    static RkCityCategory& instance();
    ~RkCityCategory() override;
    Q_DISABLE_COPY(RkCityCategory)

    /// Reads the file; called by the constructor. The catalogue is never read a second time, so a
    /// further call does nothing.
    void loadFromFile();

    /// The centre of a province or city in degrees, (0, 0) for an unknown name.
    PointLatLng getLatLng(const QString& name) const;

    /// The search or zoom radius: 800.0 for a province, 300.0 for a city, 100000.0 for an unknown
    /// name.
    double getRadius(const QString& name) const;

    /// The first city whose boundary contains the point by the odd-even rule, exactly as
    /// `QPolygonF::containsPoint` decides it; the translated "N/A" when there is none.
    QString GetCityName(PointLatLng point) const;

    /// All names with the keyword in them, in the order of the file. The keyword is part of an SQL
    /// `LIKE` pattern as it stands: "%" and "_" are wildcards, and a single quote makes the search
    /// fail. Empty on failure.
    QStringList searchByKeyword(const QString& keyword) const;

    /// For each index letter of the provinces, the first province with it.
    const QStringList& firstProvincePerLetter() const;
    /// All provinces by letter.
    const QStringList& provinceNames() const;
    /// The index letters of the provinces, ascending.
    const QStringList& provinceLetters() const;
    /// The index letters of provinces and cities, ascending.
    const QStringList& allLetters() const;
    const QMap<QString, QString>& provinceToLetter() const;
    const QMap<QString, QString>& letterToFirstProvince() const;
    const QMap<QString, QStringList>& provinceToCities() const;
    /// Index letter to the cities, without the provinces, that have it.
    const QMap<QString, QStringList>& letterToCities() const;
    /// As `getRadius`, for provinces and cities.
    const QMap<QString, double>& radiusByName() const;
    /// As `getLatLng`, for provinces and cities.
    const QMap<QString, PointLatLng>& centreByName() const;
    /// Boundary and name of each city in the order of the file; x is latitude and y longitude,
    /// degrees.
    const QList<QPair<QPolygonF, QString>>& cityBoundaries() const;

private:
    RkCityCategory();

    struct Catalogue;
    std::unique_ptr<Catalogue> m_catalogue;
};
