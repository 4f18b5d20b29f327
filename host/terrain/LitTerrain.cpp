// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/LitTerrain.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

const QColor skyTop(9, 14, 38);
const QColor skyBottom(38, 58, 96);

namespace {

const QVector3D clay(0.74F, 0.72F, 0.70F);

/// A corner in the picture.
struct Seen
{
    QPointF at; ///< Pixels.
    float depth = 0; ///< The larger the farther.
    QVector3D colour;
};

} // namespace

Q_DECLARE_TYPEINFO(Seen, Q_MOVABLE_TYPE);

namespace {

QVector<Seen> seenCorners(const LitTerrain& terrain, const QSizeF& size)
{
    const TerrainMesh& mesh = terrain.mesh;
    const QMatrix4x4 toClip =
        terrain.camera.projection(size, terrain.covered) * terrain.camera.view();
    const QVector3D eye = terrain.camera.eye();
    const QVector<QVector3D> colours = groundColours(mesh, terrain.light.blend);
    QVector<Seen> corners;
    corners.reserve(mesh.corners.size());
    for (int i = 0; i < mesh.corners.size(); ++i) {
        const QVector3D& corner = mesh.corners[i];
        const QVector4D clip = toClip * QVector4D(corner, 1);
        Seen seen;
        // No corner is behind the camera: it never comes that near.
        seen.at = QPointF((double(clip.x()) / double(clip.w()) + 1) * size.width() / 2,
                          (1 - double(clip.y()) / double(clip.w())) * size.height() / 2);
        seen.depth = clip.w();
        seen.colour =
            litColour(terrain.light, mesh.normals[i], (eye - corner).normalized(), colours[i]);
        corners.append(seen);
    }
    return corners;
}

/// Twice the area of the face in the picture; above zero when its outside is seen.
double turnOf(const Seen& a, const Seen& b, const Seen& c, const Seen& d)
{
    const QPointF first = c.at - a.at;
    const QPointF second = d.at - b.at;
    return first.y() * second.x() - first.x() * second.y();
}

struct Face
{
    QPolygonF polygon;
    float depth;
    QColor colour;
};

QVector<Face> seenFaces(const TerrainMesh& mesh, const QVector<Seen>& corners)
{
    QVector<Face> faces;
    for (int i = 0; i + 3 < mesh.faces.size(); i += 4) {
        const Seen& a = corners[int(mesh.faces[i])];
        const Seen& b = corners[int(mesh.faces[i + 1])];
        const Seen& c = corners[int(mesh.faces[i + 2])];
        const Seen& d = corners[int(mesh.faces[i + 3])];
        if (turnOf(a, b, c, d) <= 0)
            continue;
        const QVector3D colour = (a.colour + b.colour + c.colour + d.colour) / 4;
        faces.append(
            {QPolygonF({a.at, b.at, c.at, d.at}), a.depth + b.depth + c.depth + d.depth,
             QColor::fromRgbF(double(colour.x()), double(colour.y()), double(colour.z()))});
    }
    std::stable_sort(faces.begin(), faces.end(),
                     [](const Face& a, const Face& b) { return a.depth > b.depth; });
    return faces;
}

} // namespace

QVector<QVector3D> groundColours(const TerrainMesh& mesh, float blend)
{
    QVector<QVector3D> colours = mesh.colours;
    // The walls keep their colour: it tells them from the ground.
    for (int i = 0; i < mesh.surfaceCorners; ++i)
        colours[i] = clay * (1 - blend) + colours[i] * blend;
    return colours;
}

void drawLitTerrain(QPainter& painter, const LitTerrain& terrain, const QSizeF& size)
{
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, skyTop);
    sky.setColorAt(1, skyBottom);
    painter.fillRect(QRectF(QPointF(), size), sky);
    const QVector<Face> faces = seenFaces(terrain.mesh, seenCorners(terrain, size));
    // Without smoothing, so that neighbours close up.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const Face& face : faces) {
        painter.setPen(QPen(face.colour, 0));
        painter.setBrush(face.colour);
        painter.drawPolygon(face.polygon);
    }
}
