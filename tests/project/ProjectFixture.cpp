// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "ProjectFixture.h"

#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>

QString ProjectFixture::write(const QString& root) const
{
    const QString file = root + name + '/' + name + ".proj";
    QStringList statements = {
        "BEGIN",
        "CREATE TABLE " + ProjectTableName + " " + GetProjectTableContents(),
        "CREATE TABLE " + SurveyAreaTableName + " " + GetSurveyAreaTableContents(),
        "CREATE TABLE " + MissionTableName + " " + GetMissionTableContents(),
        "INSERT INTO " + ProjectTableName
            + QString(" (project_name,id,user_id,created_at,version,updated_at,software_version,"
                      "image_data)"
                      " VALUES ('%1','%2','%3','2026-01-01 00:00:00','1','%4','0.9.8','%5')")
                  .arg(QString(name).replace('\'', "''"), id, userId, modified,
                       QString::fromLatin1(imageData)),
    };
    for (int i = 0; i < outlines.size(); ++i) {
        statements.append(
            "INSERT INTO " + SurveyAreaTableName
            + QString(" (id,survey_area_guid,project_id,survey_area_name,"
                      "survey_area_coordinate_points) VALUES ('a%1','a%1','%2','area %1','%3')")
                  .arg(QString::number(i), id, outlines[i]));
    }
    statements.append("COMMIT");
    return runSql(file, statements) ? file : QString();
}

QByteArray thumbnailText(const QColor& colour, const QSize& size, const char* format)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    QPainter(&image).fillRect(size.width() / 2, 0, size.width(), size.height(), colour.darker());
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, format);
    return file.toBase64();
}

QString squareAround(double latitude, double longitude)
{
    return QString("%1,%3;%1,%4;%2,%4;%2,%3")
        .arg(latitude - 0.01)
        .arg(latitude + 0.01)
        .arg(longitude - 0.01)
        .arg(longitude + 0.01);
}
