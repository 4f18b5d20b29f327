// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "terrain/TerrainMesh.h"

#include "terrain/Relief.h"
#include "terrain/TerrainLight.h"

#include <algorithm>

namespace {

constexpr double floorDepth = 22; // Metres below the lowest place.
const QVector3D earth(0.52F, 0.46F, 0.42F);

QVector<int> chosenPosts(int count, int step)
{
    QVector<int> posts;
    for (int post = 0; post < count - 1; post += step)
        posts.append(post);
    posts.append(count - 1);
    return posts;
}

class Builder
{
public:
    Builder(const ElevationModel& model, int step)
        : m_model(model)
        , m_posts(chosenPosts(model.postsPerSide(), step))
        , m_count(m_posts.size())
    {
    }

    TerrainMesh build()
    {
        addSurface();
        const int last = m_count - 1;
        addWall({0, -1, 0}, [](int i) { return QPoint(i, 0); });
        addWall({1, 0, 0}, [last](int i) { return QPoint(last, i); });
        addWall({0, 1, 0}, [last](int i) { return QPoint(last - i, last); });
        addWall({-1, 0, 0}, [last](int i) { return QPoint(0, last - i); });
        return m_mesh;
    }

private:
    QVector3D place(int column, int row, double elevation) const
    {
        const QPointF middle = m_model.extent().center();
        const double level = (m_model.lowest() + m_model.highest()) / 2;
        return {float(m_posts[column] * m_model.spacing() - middle.x()),
                float(m_posts[row] * m_model.spacing() - middle.y()),
                float((elevation - level) * TerrainMesh::heightFactor)};
    }

    void addCorner(const QVector3D& corner, const QVector3D& normal, const QVector3D& colour)
    {
        m_mesh.corners.append(corner);
        m_mesh.normals.append(normal.normalized());
        m_mesh.colours.append(colour);
    }

    void addFace(int a, int b, int c, int d)
    {
        for (int corner : {a, b, c, d})
            m_mesh.faces.append(quint32(corner));
    }

    void addSurface()
    {
        for (int row = 0; row < m_count; ++row) {
            for (int column = 0; column < m_count; ++column) {
                const double elevation = m_model.post(m_posts[column], m_posts[row]);
                const QPointF slope =
                    m_model.slopeAtPost(m_posts[column], m_posts[row]) * TerrainMesh::heightFactor;
                addCorner(place(column, row, elevation), {float(-slope.x()), float(-slope.y()), 1},
                          components(Relief::elevationColour(m_model.share(elevation))));
            }
        }
        m_mesh.surfaceCorners = m_mesh.corners.size();
        for (int row = 0; row + 1 < m_count; ++row) {
            for (int column = 0; column + 1 < m_count; ++column) {
                const int first = row * m_count + column;
                addFace(first, first + 1, first + m_count + 1, first + m_count);
            }
        }
    }

    /// @param post from 0 along the wall, left to right seen from outside, to column and row
    template <typename Post>
    void addWall(const QVector3D& normal, const Post& post)
    {
        const int first = m_mesh.corners.size();
        const double foot = m_model.lowest() - floorDepth;
        for (int i = 0; i < m_count; ++i) {
            const QPoint at = post(i);
            const double top = m_model.post(m_posts[at.x()], m_posts[at.y()]);
            addCorner(place(at.x(), at.y(), foot), normal, earth * 0.7F);
            addCorner(place(at.x(), at.y(), top), normal, earth);
        }
        for (int i = 0; i + 1 < m_count; ++i) {
            const int foot1 = first + 2 * i;
            addFace(foot1, foot1 + 2, foot1 + 3, foot1 + 1);
        }
    }

    const ElevationModel& m_model;
    const QVector<int> m_posts;
    const int m_count;
    TerrainMesh m_mesh;
};

} // namespace

TerrainMesh terrainMesh(const ElevationModel& model, int step)
{
    return Builder(model, std::max(step, 1)).build();
}
