#include "tools/rulesctl/apply/rolledfiles.h"

#include "Protocol/ruleparser.h"
#include "host/api/wholefile.h"
#include "tools/rulesctl/diff/difftext.h"
#include "tools/rulesctl/diff/othermembers.h"
#include "tools/rulesctl/diff/savedconfig.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/outputplace.h"
#include "tools/rulesctl/savefailure.h"

#include <QFile>

using kql::Json::Value;
namespace WholeFile = UICommonMdl::WholeFile;

namespace
{

QByteArray textOf(const Value& document)
{
    return QByteArray::fromStdString(document.toStyledString());
}

QString sentences(const std::vector<SaveFailure>& failures)
{
    QStringList texts;
    for (const SaveFailure& failure : failures)
        texts.append(failure.text());
    return texts.join(QStringLiteral("; "));
}

bool isContent(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) &&
           file.readAll() == content;
}

} // namespace

/// Rolls the rules out to one file after another, on one thread.
class RolledFiles::Worker
{
public:
    Worker(RolledFiles& files, bool isColoured)
        : m_files(files),
          m_isColoured(isColoured),
          m_source(files.m_template),
          m_before(files.m_template),
          m_rules(files.m_template),
          m_after(files.m_template)
    {
        QString why;
        m_source.take(files.m_source, {}, why);
    }

    FileAnswer roll(const QString& file);

private:
    FileAnswer leftAlone(const QString& file, const QString& why) const;
    /// What stands against writing what came of it; empty for nothing.
    QString fault(const Rollout& rollout);

    RolledFiles& m_files;
    bool m_isColoured;
    SavedConfig m_source;
    SavedConfig m_before;
    LoadedRules m_rules;
    SavedConfig m_after;
};

FileAnswer RolledFiles::Worker::roll(const QString& file)
{
    DocumentError error{file, 0, 0, {}};
    auto document = ConfigDocument::read(file, error);
    if (document && document->config().isMember("configDescription")) {
        error.reason = QStringLiteral("it is a template");
        return {{}, error.text(), ExitStatus::Unusable};
    }
    if (!document || !m_rules.load(document->config(), error.reason))
        return {{}, error.text(), ExitStatus::Unusable};
    const Rollout rollout(m_source.writtenRules().parser(), m_files.m_order.names,
                          m_files.m_order.whereTaken);
    QString why;
    if (!m_before.take(document->config(), document->pointer(), why))
        return leftAlone(file, why);
    rollout.applyTo(m_rules.parser());
    Value written;
    if (!m_rules.parser().writeData(written, why) ||
        !m_after.take(written, document->pointer(), why))
        return leftAlone(file, why);
    // As it is now, too: what is written has the skeleton's values where it lacks some.
    m_rules.open();
    why = sentences(SaveFailure::of(m_rules));
    if (why.isEmpty())
        why = fault(rollout);
    if (!why.isEmpty())
        return leftAlone(file, why);
    const ConfigDiff diff(m_before.compared(), m_after.compared());
    const bool isThere =
        diff.changes().empty() && OtherMembers::areSame(written, m_before.written());
    const QByteArray alone = textOf(written);
    const QByteArray whole = textOf(std::move(*document).with(std::move(written)));
    if (alone.isEmpty() || whole.isEmpty())
        return leftAlone(file, QStringLiteral("The configuration is too long."));
    m_files.keep(file, {alone, whole, isThere});
    return {DiffText::of(diff, file, file, m_isColoured).toUtf8(), {}, ExitStatus::Clean};
}

FileAnswer RolledFiles::Worker::leftAlone(const QString& file, const QString& why) const
{
    return {{}, file + QStringLiteral(": left alone: ") + why, ExitStatus::Differs};
}

QString RolledFiles::Worker::fault(const Rollout& rollout)
{
    const auto failures = SaveFailure::of(m_after.writtenRules());
    return failures.empty() ? rollout.notTaken(m_after.writtenRules().parser())
                            : sentences(failures);
}

RolledFiles::RolledFiles(const TemplateDocument& rulesTemplate, Order order, QStringList files)
    : m_template(rulesTemplate), m_order(std::move(order)), m_files(std::move(files))
{
}

RolledFiles::~RolledFiles() = default;

bool RolledFiles::readSource(DocumentError& error)
{
    error = {m_order.from, 0, 0, {}};
    auto document = ConfigDocument::read(m_order.from, error);
    if (!document)
        return false;
    m_source = document->takeConfig();
    SavedConfig saved(m_template);
    if (!saved.take(m_source, {}, error.reason))
        return false;
    error.reason =
        Rollout(saved.writtenRules().parser(), m_order.names, m_order.whereTaken).fault();
    LoadedRules rules(m_template);
    if (error.reason.isEmpty() && rules.load(m_source, error.reason))
        error.reason = sentences(SaveFailure::of(rules));
    return error.reason.isEmpty();
}

FleetRun::Work RolledFiles::makeWork(bool isColoured)
{
    const auto worker = std::make_shared<Worker>(*this, isColoured);
    return [worker](const QString& file) { return worker->roll(file); };
}

void RolledFiles::keep(const QString& file, const Result& result)
{
    const QMutexLocker lock(&m_mutex);
    m_results.insert(file, result);
}

/// The save of a save may differ from it, as where it has a number of the skeleton in the place of
/// a text: a file of which there is nothing to tell is not written again for that.
QStringList RolledFiles::write(const std::function<QString(const QString& file)>& targetOf) const
{
    QStringList complaints;
    for (const QString& file : m_files) {
        const auto result = m_results.constFind(file);
        if (result == m_results.constEnd())
            continue;
        const QString target = targetOf(file);
        const bool isItself = OutputPlace::isSame(file, target);
        const QByteArray& content = isItself ? result->whole : result->alone;
        QString why;
        if (isItself && result->isThere)
            continue;
        if (!isContent(target, content) && !WholeFile::write(target, content, why))
            complaints.append(why);
    }
    return complaints;
}
