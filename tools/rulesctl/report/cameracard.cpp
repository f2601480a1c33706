#include "tools/rulesctl/report/cameracard.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/documentfile.h"
#include "tools/rulesctl/render/rulepicture.h"
#include "tools/rulesctl/render/xmltext.h"
#include "tools/rulesctl/savefailure.h"

#include <QFileInfo>
#include <QXmlStreamWriter>

namespace
{

const QSize kPicture(640, 360); ///< so that names can be read in a small card

QByteArray escaped(const QString& text)
{
    return XmlText::escaped(text).toUtf8();
}

QByteArray listOf(const QStringList& texts, const char* kind)
{
    QByteArray list;
    for (const QString& text : texts)
        list += "<li class=\"" + QByteArray(kind) + "\">" + escaped(text) + "</li>\n";
    return list;
}

std::string_view viewOf(const QByteArray& text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

QStringList textsOf(const Findings& findings)
{
    QStringList texts;
    for (const Finding& finding : findings)
        texts.append(QStringLiteral("%1 %2: %3")
                         .arg(QString::fromStdString(finding.code),
                              QString::fromStdString(finding.pointer), finding.message));
    return texts;
}

} // namespace

CameraCard CardMaker::make(const QString& file)
{
    DocumentError error{file, 0, 0, {}};
    const auto text = DocumentFile::readBytes(file, error);
    auto json = text ? DocumentFile::parse(*text, file, error) : std::nullopt;
    if (!json)
        return unreadable(file, error);
    error = {file, 1, 1, {}};
    const auto document = ConfigDocument::of(*std::move(json), error);
    if (!document)
        return unreadable(file, error);
    error = {file, 0, 0, {}};
    if (!m_rules.load(document->config(), error.reason))
        return unreadable(file, error);
    Words words;
    for (const SaveFailure& failure : SaveFailure::of(m_rules))
        words.failures.append(failure.text());
    words.findings =
        textsOf(m_lint.run({viewOf(*text), document->pointer().toStdString(), document->config()}));
    words.rules = ruleNames();
    const bool isClean = words.failures.isEmpty() && words.findings.isEmpty();
    const QByteArray state = words.failures.isEmpty() ? "ok" : "fails";
    return {html(file, state, words, picture()),
            state,
            isClean ? ExitStatus::Clean : ExitStatus::Differs,
            {}};
}

CameraCard CardMaker::unreadable(const QString& file, const DocumentError& error) const
{
    const QByteArray state = "unreadable";
    return {html(file, state, {{error.text()}, {}, {}}, {}), state, ExitStatus::Unusable,
            error.text()};
}

QStringList CardMaker::ruleNames() const
{
    QStringList names;
    for (const auto& data : m_rules.parser().getAllData()) {
        for (int i = 0; i < data->getDataCount() && data->getSceneType() != SceneType::Global; ++i)
            names.append(EntryName::button(*data, i));
    }
    return names;
}

QByteArray CardMaker::picture()
{
    if (m_pictures == Pictures::LeftOut)
        return {};
    Ground ground;
    ground.size = kPicture;
    m_rules.labelFigures();
    QByteArray svg;
    QXmlStreamWriter xml(&svg);
    RulePicture(m_rules.parser(), {}, ground).writeSvg(xml, {});
    // Text that the page's script makes elements of. Names in it are escaped, so it has no end of a
    // script.
    return "<div class=\"picture\"><script type=\"text/plain\">" + svg + "</script></div>";
}

/// What is searched is lower case, as the page makes what is looked for.
QByteArray CardMaker::html(const QString& file, const QByteArray& state, const Words& words,
                           const QByteArray& picture)
{
    const QStringList all = QStringList{file} + words.rules + words.failures + words.findings;
    const QByteArray classes = state + (words.findings.isEmpty() ? QByteArray() : " findings");
    return "<article class=\"" + classes + "\" data-find=\"" +
           escaped(all.join(QLatin1Char('\n')).toLower()) + "\">\n<header><h2 title=\"" +
           escaped(file) + "\">" + escaped(QFileInfo(file).fileName()) + "</h2><b>" + state +
           "</b></header>\n" + picture + "\n<p class=\"soft\">" +
           escaped(words.rules.join(QStringLiteral(", "))) + "</p>\n<ul>\n" +
           listOf(words.failures, "failure") + listOf(words.findings, "finding") +
           "</ul>\n</article>\n";
}
