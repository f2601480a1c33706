#include "host/sample/sampletree.h"

#include "host/sample/streetview.h"

#include <QPainter>

#include <algorithm>
#include <vector>

using namespace UICommonMdl::streetview;

namespace UICommonMdl
{
namespace
{

struct Tree {
    qreal x;
    qreal z;
    qreal height;
};

struct Leaves {
    qreal x; ///< parts of the crown's radius from its middle, as y and radius
    qreal y;
    qreal radius;
    QRgb color;
};

constexpr Leaves kCrown[] = {
    {0.10, 0.30, 0.78, 0xFF4D6B3C},   {-0.46, 0.18, 0.58, 0xFF537341},
    {0.52, 0.08, 0.55, 0xFF4F6E3E},   {0.02, -0.18, 0.74, 0xFF5D7F48},
    {-0.34, -0.36, 0.52, 0xFF6B8F52}, {0.30, -0.46, 0.46, 0xFF668A4E},
    {-0.12, -0.62, 0.42, 0xFF789C5C}, {-0.48, -0.12, 0.32, 0xFF769A5A},
};

void paintTree(QPainter& painter, const Tree& tree)
{
    const qreal radius = tree.height * 0.34;
    const qreal scale = scaleAt(tree.z);
    paintShadow(painter, {tree.x + 1.1, 0, tree.z}, radius * 1.1, radius * 0.8);
    paintFace(painter, QColor(0x6A, 0x55, 0x43),
              {{tree.x - 0.2, 0, tree.z},
               {tree.x + 0.2, 0, tree.z},
               {tree.x + 0.12, tree.height * 0.5, tree.z},
               {tree.x - 0.12, tree.height * 0.5, tree.z}});
    const QPointF middle = project({tree.x, tree.height * 0.66, tree.z});
    painter.setPen(Qt::NoPen);
    for (const Leaves& leaves : kCrown) {
        painter.setBrush(hazed(QColor::fromRgba(leaves.color), tree.z));
        painter.drawEllipse(middle + QPointF(leaves.x, leaves.y) * radius * scale,
                            leaves.radius * radius * scale, leaves.radius * radius * scale * 0.94);
    }
}

void paintHedge(QPainter& painter, qreal x, qreal start, qreal end)
{
    const BoxColors colors{QColor(0x6C, 0x8F, 0x55), QColor(0x4B, 0x69, 0x3D),
                           QColor(0x55, 0x75, 0x44)};
    paintShadow(painter, {x + 0.7, 0, start}, 0.9, 0.4);
    paintBox(painter, colors, {{x - 0.45, 0, start}, {x + 0.45, 1.1, end}});
}

} // namespace

void paintTrees(QPainter& painter)
{
    for (qreal z = 140; z > 20; z -= 20) {
        paintHedge(painter, -15.2, z, z + 14);
        paintHedge(painter, 16.2, z + 4, z + 18);
    }
    std::vector<Tree> trees;
    for (int i = 0; i < 9; ++i) {
        const qreal z = 28 + i * 17;
        const qreal unevenness = (i * 5) % 3;
        trees.push_back({-12.6 - unevenness * 0.3, z, 6.0 + unevenness * 0.8});
        trees.push_back({14.4 + unevenness * 0.2, z + 7, 6.6 - unevenness * 0.5});
    }
    std::sort(trees.begin(), trees.end(), [](const Tree& a, const Tree& b) { return a.z > b.z; });
    for (const Tree& tree : trees)
        paintTree(painter, tree);
}

} // namespace UICommonMdl
