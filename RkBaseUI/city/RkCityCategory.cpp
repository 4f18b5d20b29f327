// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "city/RkCityCategory.h"

#include "city/BoundaryIndex.h"
#include "city/BoundaryText.h"

#include <RkAlgorthm/Uid.h>

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>
#include <QVariant>
#include <QVector>

#include <optional>

namespace {

constexpr double provinceRadius = 800.0;
constexpr double cityRadius = 300.0;
constexpr double unknownRadius = 100000.0;

// Every statement that the catalogue is asked. %1 takes a value as it is, neither escaped nor
// bound.
namespace sql {
const QLatin1String provinces("select name,letter from `city` where parent_id = 1 order by letter");
const QLatin1String
    provinceLetters("select distinct letter from `city` where parent_id = 1 order by letter ");
const QLatin1String allLetters("select distinct letter as letter from `city` order by letter ");
const QLatin1String citiesOfProvince("select name from `city` where parent_id = "
                                     "(select id from `city` where name='%1' and parent_id=1)");
const QLatin1String citiesOfLetter("select name  from `city` where parent_id <>1 and letter='%1'");
const QLatin1String centres("select name,lat,lng from `city`");
const QLatin1String boundaries("select name,polyline from city where level = 2");
const QLatin1String namesWithKeyword("select * from `city` where name LIKE '%%1%'");
} // namespace sql

QString withValue(QLatin1String statement, const QString& value)
{
    return QString(statement).arg(value);
}

} // namespace

struct RkCityCategory::Catalogue
{
    QStringList firstProvincePerLetter;
    QStringList provinceNames;
    QStringList provinceLetters;
    QStringList allLetters;
    QMap<QString, QString> provinceToLetter;
    QMap<QString, QString> letterToFirstProvince;
    QMap<QString, QStringList> provinceToCities;
    QMap<QString, QStringList> letterToCities;
    QMap<QString, double> radiusByName;
    QMap<QString, PointLatLng> centreByName;
    QList<QPair<QPolygonF, QString>> cityBoundaries;
    QSqlDatabase database;
    std::optional<BoundaryIndex> boundaryIndex;

    bool open(const QString& file);
    /// Calls `visit` with the query at each row of the answer; not at all when the statement fails.
    template <typename Visit>
    void forEachRow(const QString& statement, Visit visit) const;
    QStringList firstColumn(const QString& statement) const;

    void read();
    void readProvinces();
    void readCityLists();
    void readCentres();
    void readBoundaries();

    /// Made when the first point is asked, because the pickers never ask one.
    const BoundaryIndex& index();
};

bool RkCityCategory::Catalogue::open(const QString& file)
{
    database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"),
                                         GetUidVariant(QUuid::createUuid().toString()));
    database.setDatabaseName(file);
    // A missing file must stay missing.
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    return database.open();
}

template <typename Visit>
void RkCityCategory::Catalogue::forEachRow(const QString& statement, Visit visit) const
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.exec(statement);
    while (query.next())
        visit(query);
}

QStringList RkCityCategory::Catalogue::firstColumn(const QString& statement) const
{
    QStringList values;
    forEachRow(statement,
               [&values](const QSqlQuery& row) { values.append(row.value(0).toString()); });
    return values;
}

void RkCityCategory::Catalogue::read()
{
    // In one transaction, so that the file is locked once and not for each of the many statements.
    database.transaction();
    readProvinces();
    readCityLists();
    readCentres();
    readBoundaries();
    database.commit();
}

void RkCityCategory::Catalogue::readProvinces()
{
    QString previousLetter = QStringLiteral(" ");
    forEachRow(sql::provinces, [&](const QSqlQuery& row) {
        const QString name = row.value(0).toString();
        const QString letter = row.value(1).toString();
        provinceNames.append(name);
        provinceToLetter[name] = letter;
        if (letter != previousLetter) {
            firstProvincePerLetter.append(name);
            letterToFirstProvince[letter] = name;
            previousLetter = letter;
        }
    });
    provinceLetters = firstColumn(sql::provinceLetters);
    allLetters = firstColumn(sql::allLetters);
}

void RkCityCategory::Catalogue::readCityLists()
{
    for (const QString& province : qAsConst(provinceNames))
        provinceToCities[province] = firstColumn(withValue(sql::citiesOfProvince, province));
    for (const QString& letter : qAsConst(allLetters))
        letterToCities[letter] = firstColumn(withValue(sql::citiesOfLetter, letter));
}

void RkCityCategory::Catalogue::readCentres()
{
    forEachRow(sql::centres, [this](const QSqlQuery& row) {
        const QString name = row.value(0).toString();
        centreByName[name] = PointLatLng(row.value(1).toDouble(), row.value(2).toDouble());
        radiusByName[name] = provinceToLetter.contains(name) ? provinceRadius : cityRadius;
    });
}

void RkCityCategory::Catalogue::readBoundaries()
{
    forEachRow(sql::boundaries, [this](const QSqlQuery& row) {
        cityBoundaries.append({parseBoundary(row.value(1).toString()), row.value(0).toString()});
    });
}

const BoundaryIndex& RkCityCategory::Catalogue::index()
{
    if (!boundaryIndex) {
        QVector<QPolygonF> polygons;
        for (const auto& boundary : qAsConst(cityBoundaries))
            polygons.append(boundary.first);
        boundaryIndex.emplace(polygons);
    }
    return *boundaryIndex;
}

RkCityCategory& RkCityCategory::instance()
{
    static RkCityCategory catalogue;
    return catalogue;
}

RkCityCategory::RkCityCategory()
    : m_catalogue(std::make_unique<Catalogue>())
{
    loadFromFile();
}

RkCityCategory::~RkCityCategory() = default;

void RkCityCategory::loadFromFile()
{
    // Once only: the accessors have given out references, and the index knows these boundaries.
    if (m_catalogue->database.isValid())
        return;
    if (!m_catalogue->open(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/ChinaAdminiDstrict.db"))) {
        return;
    }
    m_catalogue->read();
}

PointLatLng RkCityCategory::getLatLng(const QString& name) const
{
    return m_catalogue->centreByName.value(name);
}

double RkCityCategory::getRadius(const QString& name) const
{
    return m_catalogue->radiusByName.value(name, unknownRadius);
}

QString RkCityCategory::GetCityName(PointLatLng point) const
{
    const int found = m_catalogue->index().firstContaining({point.Lat(), point.Lng()});
    return found < 0 ? tr("N/A") : m_catalogue->cityBoundaries.at(found).second;
}

QStringList RkCityCategory::searchByKeyword(const QString& keyword) const
{
    QStringList names;
    if (!m_catalogue->database.isOpen())
        return names;
    int column = -1;
    m_catalogue->forEachRow(withValue(sql::namesWithKeyword, keyword), [&](const QSqlQuery& row) {
        if (column < 0)
            column = row.record().indexOf(QStringLiteral("name"));
        names.append(row.value(column).toString());
    });
    return names;
}

const QStringList& RkCityCategory::firstProvincePerLetter() const
{
    return m_catalogue->firstProvincePerLetter;
}

const QStringList& RkCityCategory::provinceNames() const
{
    return m_catalogue->provinceNames;
}

const QStringList& RkCityCategory::provinceLetters() const
{
    return m_catalogue->provinceLetters;
}

const QStringList& RkCityCategory::allLetters() const
{
    return m_catalogue->allLetters;
}

const QMap<QString, QString>& RkCityCategory::provinceToLetter() const
{
    return m_catalogue->provinceToLetter;
}

const QMap<QString, QString>& RkCityCategory::letterToFirstProvince() const
{
    return m_catalogue->letterToFirstProvince;
}

const QMap<QString, QStringList>& RkCityCategory::provinceToCities() const
{
    return m_catalogue->provinceToCities;
}

const QMap<QString, QStringList>& RkCityCategory::letterToCities() const
{
    return m_catalogue->letterToCities;
}

const QMap<QString, double>& RkCityCategory::radiusByName() const
{
    return m_catalogue->radiusByName;
}

const QMap<QString, PointLatLng>& RkCityCategory::centreByName() const
{
    return m_catalogue->centreByName;
}

const QList<QPair<QPolygonF, QString>>& RkCityCategory::cityBoundaries() const
{
    return m_catalogue->cityBoundaries;
}
