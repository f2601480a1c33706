#include "tools/rulesctl/lint/checks.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

namespace
{

/// The one figure that is drawn where the order of the attributes does not count; null for none.
const RuleProtocolItem* drawnFigure(const LintedSection& section)
{
    return section.type == SceneType::Detection
               ? sceneProtocol(section.type).entryFigureItem(*section.dataTemplate())
               : nullptr;
}

} // namespace

void Checks::figures(const LintedTemplate& linted, Findings& findings)
{
    for (const LintedSection& section : linted.sections()) {
        const bool isDrawnInOrder = section.place != TemplatePlace::PlainSection;
        if (isDrawnInOrder || !section.data)
            continue;
        const RuleProtocolItem* const drawn = drawnFigure(section);
        for (const LintedControl& control : section.controls) {
            if (control.item && control.item->isFigure() && control.item != drawn)
                FindingMaker::add(findings, "figure-hidden", control.pointer, *control.json,
                                  QStringLiteral("nothing in this section draws this figure"));
        }
    }
}
