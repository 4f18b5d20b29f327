// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Prints as JSON the whole catalogue that lies beside the program, and its answers to the questions
// on the command line: "point <lat> <lng>", "keyword <text>" and "name <text>", any number of them.
// Coordinates are texts, because JSON knows no infinity.

#include <RkBaseUI/RkCityCategory.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace {

QString text(double number)
{
    return QString::number(number, 'g', 17);
}

QString text(const PointLatLng& point)
{
    return text(point.Lat()) + ' ' + text(point.Lng());
}

QJsonValue json(const QString& value)
{
    return value;
}

QJsonValue json(const QStringList& values)
{
    return QJsonArray::fromStringList(values);
}

QJsonValue json(double value)
{
    return text(value);
}

QJsonValue json(const PointLatLng& value)
{
    return text(value);
}

template <typename Value>
QJsonValue json(const QMap<QString, Value>& map)
{
    QJsonObject object;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        object.insert(entry.key(), json(entry.value()));
    return object;
}

QJsonValue json(const QList<QPair<QPolygonF, QString>>& boundaries)
{
    QJsonArray array;
    for (const auto& [polygon, name] : boundaries) {
        QStringList points;
        for (const QPointF& point : polygon)
            points.append(text(point.x()) + ' ' + text(point.y()));
        array.append(QJsonArray{name, points.join(';')});
    }
    return array;
}

QJsonObject contents(const RkCityCategory& catalogue)
{
    return {
        {"firstProvincePerLetter", json(catalogue.firstProvincePerLetter())},
        {"provinceNames", json(catalogue.provinceNames())},
        {"provinceLetters", json(catalogue.provinceLetters())},
        {"allLetters", json(catalogue.allLetters())},
        {"provinceToLetter", json(catalogue.provinceToLetter())},
        {"letterToFirstProvince", json(catalogue.letterToFirstProvince())},
        {"provinceToCities", json(catalogue.provinceToCities())},
        {"letterToCities", json(catalogue.letterToCities())},
        {"radiusByName", json(catalogue.radiusByName())},
        {"centreByName", json(catalogue.centreByName())},
        {"cityBoundaries", json(catalogue.cityBoundaries())},
    };
}

QJsonArray answers(const RkCityCategory& catalogue, QStringList questions)
{
    QJsonArray array;
    while (!questions.isEmpty()) {
        const QString kind = questions.takeFirst();
        const QString value = questions.takeFirst();
        if (kind == "point")
            array.append(catalogue.GetCityName(
                PointLatLng(value.toDouble(), questions.takeFirst().toDouble())));
        else if (kind == "keyword")
            array.append(json(catalogue.searchByKeyword(value)));
        else if (kind == "name")
            array.append(
                QJsonArray{text(catalogue.getLatLng(value)), text(catalogue.getRadius(value))});
    }
    return array;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QJsonObject report = contents(catalogue);
    report.insert("answers", answers(catalogue, QCoreApplication::arguments().mid(1)));
    const QByteArray output = QJsonDocument(report).toJson();
    std::fwrite(output.constData(), 1, static_cast<std::size_t>(output.size()), stdout);
    return 0;
}
