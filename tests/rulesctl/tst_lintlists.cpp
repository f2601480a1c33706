#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/spellinglists.h"
#include "Protocol/templatemembers.h"
#include "host/json/reader.h"
#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"
#include "tools/rulesctl/lint/jsonkind.h"
#include "tools/rulesctl/lint/lintcodes.h"

using kql::Json::Value;
using Place = TemplatePlace;

namespace
{

QString contentOf(const QString& name)
{
    return QString::fromUtf8(ExampleFiles::contentOf(QStringLiteral(RULES_SOURCE_DIR "/") + name));
}

Value schema()
{
    Value document;
    kql::Json::Reader().parse(contentOf("schema/template.schema.json"), document);
    return document;
}

const QMap<QString, Place>& definitions()
{
    static const QMap<QString, Place> places{
        {"description", Place::Description},
        {"calibrateArea", Place::CalibrateArea},
        {"fightCalibrate", Place::FightCalibrate},
        {"lanes", Place::Lanes},
        {"ruleDescription", Place::RuleDescription},
        {"rules", Place::Rules},
        {"plainSection", Place::PlainSection},
        {"control", Place::Control},
        {"protocol", Place::Protocol},
        {"condition", Place::Condition},
        {"dependency", Place::Dependency},
        {"check", Place::Check},
        {"checkRule", Place::CheckRule},
        {"figureDetails", Place::FigureDetails},
        {"numberBoxDetails", Place::NumberBoxDetails},
        {"choiceDetails", Place::ChoiceDetails},
        {"switchDetails", Place::SwitchDetails},
        {"plainDetails", Place::PlainDetails},
        {"choice", Place::Choice},
    };
    return places;
}

QStringList textsOf(const Value& list)
{
    QStringList texts;
    for (int i = 0; i < list.size(); ++i)
        texts.append(list[i].asString());
    return list.isString() ? QStringList{list.asString()} : texts;
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    texts.removeDuplicates();
    return texts;
}

/// A member in one line, as "range array|null of number, a pair".
QString inALine(const QString& name, const QStringList& kinds, const QStringList& elements,
                bool isPair)
{
    return name + ' ' + sorted(kinds).join('|') + " of " + sorted(elements).join('|') +
           (isPair ? ", a pair" : "");
}

QStringList membersOf(Place place)
{
    QStringList lines;
    for (const TemplateMember& member : TemplateMembers::of(place))
        lines.append(inALine(member.name, JsonKind::names(member.kinds),
                             JsonKind::names(member.elements), member.isPair));
    return sorted(lines);
}

QStringList membersOf(const Value& definition)
{
    QStringList lines;
    const Value& properties = definition["properties"];
    const Value pair = schema()["$defs"]["pair"];
    for (const QString& name : properties.memberNames()) {
        const Value& member = properties[name.toStdString()];
        const bool isPair = member["$ref"] == Value("#/$defs/pair");
        const Value& element = isPair ? pair["prefixItems"][1] : member["items"];
        if (name != QLatin1String("$schema"))
            lines.append(inALine(name, textsOf(member["type"]), textsOf(element["type"]), isPair));
    }
    return sorted(lines);
}

QStringList neededIn(Place place)
{
    QStringList names;
    for (const TemplateMember& member : TemplateMembers::of(place)) {
        if (member.isNeeded)
            names.append(QString::fromLatin1(member.name));
    }
    return sorted(names);
}

} // namespace

/// What the reader reads, what lint knows, the schema and the pages say the same.
class TstLintLists : public RulesTest
{
    Q_OBJECT

private slots:
    void readerReadsWhatIsListed();
    void schemaHasTheMembers_data();
    void schemaHasTheMembers();
    void schemaHasTheSpellings();
    void pagesNameAll();
};

void TstLintLists::readerReadsWhatIsListed()
{
    QStringList read;
    const QRegularExpression name("\"([A-Za-z]+)\"");
    for (const char* file : {"templatereader", "templateitemreader"}) {
        QString code = contentOf(QString("Protocol/%1.cpp").arg(file));
        code.remove(QRegularExpression("//[^\n]*"));
        auto found = name.globalMatch(code);
        while (found.hasNext())
            read.append(found.next().captured(1));
    }
    QStringList listed{"configDescription", "configItems", "configTemplate"};
    for (const Place place : definitions()) {
        for (const TemplateMember& member : TemplateMembers::of(place))
            listed.append(QString::fromLatin1(member.name));
    }
    QCOMPARE(sorted(read), sorted(listed));
}

void TstLintLists::schemaHasTheMembers_data()
{
    QTest::addColumn<QString>("definition");
    for (const QString& name : definitions().keys())
        QTest::newRow(qPrintable(name)) << name;
}

void TstLintLists::schemaHasTheMembers()
{
    QFETCH(QString, definition);
    const Place place = definitions()[definition];
    const Value defined = schema()["$defs"][definition.toStdString()];
    QCOMPARE(membersOf(defined).join('\n'), membersOf(place).join('\n'));
    QCOMPARE(sorted(textsOf(defined["required"])), neededIn(place));
    QCOMPARE(defined["additionalProperties"], Value(false));
}

void TstLintLists::schemaHasTheSpellings()
{
    const Value document = schema();
    QCOMPARE(membersOf(document), membersOf(Place::Root));
    QCOMPARE(sorted(textsOf(document["required"])), neededIn(Place::Root));
    const Value& all = document["$defs"];
    const auto spellings = [&all](const char* definition, const char* member) {
        return textsOf(all[definition]["properties"][member]["enum"]);
    };
    QCOMPARE(spellings("details", "facade"), SpellingLists::facades());
    QCOMPARE(spellings("protocol", "type"), SpellingLists::valueTypes());
    QCOMPARE(spellings("checkRule", "operator"), SpellingLists::operators());
    QCOMPARE(spellings("directionDetails", "default"), SpellingLists::directions());
    QCOMPARE(spellings("calibrateArea", "method"), CalibrateAreaTemplate::methods());
}

void TstLintLists::pagesNameAll()
{
    const QString page = contentOf("docs/template.md");
    QStringList names = SpellingLists::facades() + SpellingLists::valueTypes() +
                        SpellingLists::directions() + SpellingLists::operators() +
                        CalibrateAreaTemplate::methods();
    for (const Place place : definitions()) {
        for (const TemplateMember& member : TemplateMembers::of(place))
            names.append(QString::fromLatin1(member.name));
    }
    for (const QString& name : qAsConst(names))
        QVERIFY2(page.contains('"' + name + '"'), qPrintable(name));
    const QString reference = contentOf("docs/lint.md");
    for (const LintCodes::Code& code : LintCodes::all()) {
        const QString name = QString::fromLatin1(code.name.data(), int(code.name.size()));
        QVERIFY2(reference.contains("\n### " + name + "\n"), qPrintable(name));
        QVERIFY2(QDir(RULES_SOURCE_DIR "/tests/rulesctl/lint/" + name).exists(), qPrintable(name));
    }
}

QTEST_MAIN(TstLintLists)
#include "tst_lintlists.moc"
