#pragma once

#include "draw/figurelook.h"
#include "tools/rulesctl/render/ground.h"

#include <QSet>
#include <vector>

class QXmlStreamWriter;
class RuleParser;

/**
 * The figures of a configuration over a picture, as the rules window paints them while no entry is
 * selected: one scene after another. Needs an application with fonts. Canvas pixels are those of
 * the picture.
 */
class RulePicture
{
public:
    /// Of the scene whose section is @p scene; of all where that is empty. The canvases of
    /// @p scenes, which must outlive this, take the picture's size.
    RulePicture(const RuleParser& scenes, const QString& scene, const Ground& ground);

    /// What figures of an entry are marked with as "data-entry"; @p number is its place, from 1.
    static QString mark(const QString& scene, int number);
    /// Makes the figures that are so marked stand out.
    void emphasise(const QSet<QString>& marks);

    QImage toImage() const;
    /// A document of its own.
    QByteArray toSvg() const;
    /// The element <svg> alone, for pages. @p picture is the address of the picture beneath, "#"
    /// with the id of an element that the page has of it, or empty for none.
    void writeSvg(QXmlStreamWriter& xml, const QString& picture) const;

private:
    struct Shown {
        PaintedFigure painted;
        QString mark; ///< of the entry
        QString name;
    };
    using Scene = std::vector<Shown>;

    void writeFigures(const Scene& scene, QXmlStreamWriter& xml) const;

    Ground m_ground;
    std::vector<Scene> m_scenes;
};
