// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "service/ServicePages.h"

#include <QStringList>

namespace ServicePages {

namespace {

const char* const frame = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>%1</title>
<style>
body { font: 15px/1.5 system-ui, "Noto Sans CJK SC", sans-serif; margin: 2em; color: #222; }
nav a { margin-right: 1.5em; }
table { border-collapse: collapse; }
th, td { text-align: left; vertical-align: top; padding: .4em .8em; border-bottom: 1px solid #ccc; }
th { border-bottom: 2px solid #666; white-space: nowrap; }
td { max-width: 24em; overflow-wrap: anywhere; white-space: pre-line; }
</style>
</head>
<body>
<nav><a href="/noflyzone/applications">No-fly zone applications</a><a href="/project/documents">Projects</a></nav>
<h1>%1</h1>
%2
</body>
</html>
)";

QString rowOf(const QStringList& cells, const QString& tag)
{
    QString row;
    for (const QString& cell : cells)
        row += QStringLiteral("<%1>%2</%1>").arg(tag, cell.toHtmlEscaped());
    return QStringLiteral("<tr>%1</tr>\n").arg(row);
}

QByteArray pageOf(const QString& title, const QStringList& head, const QVector<QStringList>& rows)
{
    QString content = QStringLiteral("<p>None yet.</p>");
    if (!rows.isEmpty()) {
        content = QStringLiteral("<table>\n") + rowOf(head, QStringLiteral("th"));
        for (const QStringList& row : rows)
            content += rowOf(row, QStringLiteral("td"));
        content += QStringLiteral("</table>");
    }
    return QString::fromLatin1(frame).arg(title, content).toUtf8();
}

QString sizeText(qint64 bytes)
{
    return QStringLiteral("%1 bytes").arg(bytes);
}

} // namespace

QByteArray applications(const QVector<LiftApplication>& applications)
{
    QVector<QStringList> rows;
    for (const LiftApplication& application : applications) {
        QString corners = application.area;
        corners.replace(QLatin1Char('|'), QLatin1Char('\n'));
        rows.append({QString::number(application.number), application.receivedAt, application.name,
                     application.contact, application.company, application.begin, application.end,
                     application.fileName, sizeText(application.documentSize), corners,
                     application.localIds, application.explanation});
    }
    return pageOf(QStringLiteral("No-fly zone applications"),
                  {QStringLiteral("No."), QStringLiteral("Received"), QStringLiteral("Name"),
                   QStringLiteral("Phone"), QStringLiteral("Company"), QStringLiteral("From"),
                   QStringLiteral("To"), QStringLiteral("Document"), QStringLiteral("Size"),
                   QStringLiteral("Corners"), QStringLiteral("Local ids"),
                   QStringLiteral("Instructions")},
                  rows);
}

QByteArray documents(const QVector<ProjectDocument>& documents)
{
    QVector<QStringList> rows;
    for (const ProjectDocument& document : documents) {
        rows.append({QString::number(document.number), document.receivedAt, document.projectName,
                     document.projectId, QString::number(document.blocks),
                     QString::number(document.tasks), QString::number(document.points),
                     sizeText(document.size)});
    }
    return pageOf(QStringLiteral("Projects"),
                  {QStringLiteral("No."), QStringLiteral("Received"), QStringLiteral("Project"),
                   QStringLiteral("Id"), QStringLiteral("Blocks"), QStringLiteral("Tasks"),
                   QStringLiteral("Points"), QStringLiteral("Size")},
                  rows);
}

} // namespace ServicePages
