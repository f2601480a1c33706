#include "tools/rulesctl/pages/diffpage.h"

#include "tools/rulesctl/diff/configdiff.h"
#include "tools/rulesctl/diff/difftext.h"
#include "tools/rulesctl/diff/savedconfig.h"
#include "tools/rulesctl/pages/page.h"
#include "tools/rulesctl/render/rulepicture.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace
{

constexpr char kGroundId[] = "ground";

const char* const kStyle = R"(
.pair { display: grid; grid-template-columns: repeat(auto-fit, minmax(24rem, 1fr)); gap: 1rem;
  margin: 1rem 0; }
figure { margin: 0; background: var(--card); border: 1px solid var(--line); border-radius: 8px;
  overflow: hidden; }
figcaption { padding: .5rem .75rem; overflow-wrap: anywhere; }
section { background: var(--card); border: 1px solid var(--line); border-radius: 8px;
  padding: .75rem 1rem; margin: 0 0 1rem; }
ul { list-style: none; margin: .5rem 0 0; padding: 0; }
li { padding: .2rem .4rem; border-left: 3px solid var(--line); margin: .2rem 0;
  overflow-wrap: anywhere; }
li.added { border-color: var(--good); }
li.removed { border-color: var(--bad); }
li.other { color: var(--soft); }
li[tabindex]:hover, li[tabindex]:focus { background: var(--ground); outline: none;
  border-color: var(--mark); }
.only g:not(.lit) { opacity: .15; }
.hidden { position: absolute; width: 0; height: 0; }
)";

/// While a change is pointed at, the figures of its entry stand out alone.
const char* const kScript = R"(
function show(item, on) {
  for (const side of ['a', 'b']) {
    const svg = document.getElementById(side);
    const mark = item.dataset[side];
    svg.classList.toggle('only', on && !!mark);
    for (const group of svg.querySelectorAll('g'))
      group.classList.toggle('lit', on && group.dataset.entry === mark);
  }
}
for (const item of document.querySelectorAll('li[tabindex]'))
  for (const [name, on] of [['mouseenter', true], ['mouseleave', false], ['focus', true],
                            ['blur', false]])
    item.addEventListener(name, () => show(item, on));
)";

QString markOf(const Change& change, const std::optional<int>& number)
{
    return number ? RulePicture::mark(change.scene, *number) : QString();
}

void addPicture(Page& page, const char* id, const DiffPage::Side& side, const QSet<QString>& marks,
                const Ground& ground)
{
    LoadedRules& rules = side.config.writtenRules();
    rules.labelFigures();
    RulePicture picture(rules.parser(), {}, ground);
    picture.emphasise(marks);
    QByteArray svg;
    QXmlStreamWriter xml(&svg);
    xml.writeStartElement(QStringLiteral("div"));
    xml.writeAttribute(QStringLiteral("id"), QString::fromLatin1(id));
    picture.writeSvg(xml, ground.picture.isNull()
                              ? QString()
                              : QLatin1Char('#') + QString::fromLatin1(kGroundId));
    xml.writeEndElement();
    page.add("<figure>\n");
    page.addText("figcaption", side.file);
    page.add(svg + "\n</figure>\n");
}

QByteArray classOf(const Change& change)
{
    switch (change.kind) {
    case Change::Kind::Added:
        return "added";
    case Change::Kind::Removed:
        return "removed";
    case Change::Kind::Other:
        return "other";
    default:
        return "changed";
    }
}

void addChange(Page& page, const Change& change)
{
    QByteArray attributes = "class=\"" + classOf(change) + '"';
    if (!change.scene.isEmpty())
        attributes += " tabindex=\"0\" data-a=\"" + markOf(change, change.a).toUtf8() +
                      "\" data-b=\"" + markOf(change, change.b).toUtf8() + '"';
    page.addText("li", change.text, attributes);
}

void addChanges(Page& page, const std::vector<Change>& changes)
{
    const Change* before = nullptr;
    for (const Change& change : changes) {
        if (!before || before->scene != change.scene) {
            page.add(before ? "</ul>\n</section>\n<section>\n" : "<section>\n");
            page.addText("h2", DiffText::heading(change.scene));
            page.add("<ul>\n");
        }
        addChange(page, change);
        before = &change;
    }
    if (before)
        page.add("</ul>\n</section>\n");
}

QString summary(const ConfigDiff& diff)
{
    const auto count = std::count_if(diff.changes().begin(), diff.changes().end(),
                                     [](const Change& change) { return change.isSaved; });
    if (count == 0)
        return QStringLiteral("A save writes the same of both.");
    return QStringLiteral("%1 %2. Rules that changed have a white edge in the pictures.")
        .arg(count)
        .arg(count == 1 ? QStringLiteral("change") : QStringLiteral("changes"));
}

} // namespace

QByteArray DiffPage::of(const ConfigDiff& diff, const Side& a, const Side& b, const Ground& ground)
{
    QSet<QString> marksA;
    QSet<QString> marksB;
    for (const Change& change : diff.changes()) {
        marksA.insert(markOf(change, change.a));
        marksB.insert(markOf(change, change.b));
    }
    Page page(QStringLiteral("%1 and %2").arg(a.file, b.file), kStyle, kScript);
    page.addText("h1", QStringLiteral(u"%1 \u2192 %2").arg(a.file, b.file));
    page.addText("p", summary(diff), "class=\"soft\"");
    if (!ground.picture.isNull())
        page.add("<svg class=\"hidden\"><image id=\"" + QByteArray(kGroundId) + "\" width=\"" +
                 QByteArray::number(ground.size.width()) + "\" height=\"" +
                 QByteArray::number(ground.size.height()) + "\" href=\"" + ground.dataUrl +
                 "\"/></svg>\n");
    page.add("<div class=\"pair\">\n");
    addPicture(page, "a", a, marksA, ground);
    addPicture(page, "b", b, marksB, ground);
    page.add("</div>\n");
    addChanges(page, diff.changes());
    return page.html();
}
