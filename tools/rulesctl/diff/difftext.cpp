#include "tools/rulesctl/diff/difftext.h"

#include "tools/rulesctl/diff/configdiff.h"
#include "tools/rulesctl/plainline.h"

namespace
{

struct Heading {
    const char* scene;
    const char* text;
};

constexpr Heading kHeadings[] = {
    {"rules", "Rules"},
    {"global", "Global"},
    {"detectArea", "Detection areas"},
    {"lanes", "Lanes"},
    {"calibrateArea", "Calibration areas"},
    {"fightCalibrate", "Fight calibration"},
};

const char* colourOf(Change::Kind kind)
{
    switch (kind) {
    case Change::Kind::Added:
        return "\033[32m";
    case Change::Kind::Removed:
        return "\033[31m";
    case Change::Kind::Other:
        return "\033[2m";
    default:
        return "";
    }
}

QChar markOf(Change::Kind kind)
{
    switch (kind) {
    case Change::Kind::Added:
        return QLatin1Char('+');
    case Change::Kind::Removed:
        return QLatin1Char('-');
    case Change::Kind::Other:
        return QLatin1Char('.');
    default:
        return QLatin1Char('*');
    }
}

} // namespace

QString DiffText::heading(const QString& scene)
{
    for (const Heading& heading : kHeadings) {
        if (scene == QLatin1String(heading.scene))
            return QString::fromLatin1(heading.text);
    }
    return scene.isEmpty() ? QStringLiteral("Besides") : scene;
}

QString DiffText::of(const ConfigDiff& diff, const QString& a, const QString& b, bool isColoured)
{
    if (diff.changes().empty())
        return {};
    QString text = QStringLiteral("--- %1\n+++ %2\n").arg(PlainLine::of(a), PlainLine::of(b));
    QString above = QStringLiteral("-");
    for (const Change& change : diff.changes()) {
        if (change.scene != above)
            text += heading(change.scene) + QLatin1Char('\n');
        above = change.scene;
        const QString line = QLatin1String("  ") + markOf(change.kind) + QLatin1Char(' ') +
                             PlainLine::of(change.text.simplified());
        const QString colour = QString::fromLatin1(isColoured ? colourOf(change.kind) : "");
        text += colour.isEmpty() ? line : colour + line + QStringLiteral("\033[m");
        text += QLatin1Char('\n');
    }
    return text;
}
