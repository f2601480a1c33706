#include "draw/labelfont.h"
#include "host/api/wholefile.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/documents/documenterror.h"
#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/documents/outputplace.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/fleetrun.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/pages/fleetpage.h"
#include "tools/rulesctl/report/cameracard.h"
#include "tools/rulesctl/runoptions.h"

#include <QHash>
#include <QMutex>
#include <QSet>

#include <memory>

namespace
{

ExitStatus refuse(const QString& why)
{
    Complaint::say(why);
    return ExitStatus::Unusable;
}

/// Cards by their files, from several threads.
class Cards
{
public:
    void put(const QString& file, const CameraCard& card)
    {
        const QMutexLocker lock(&m_mutex);
        m_cards.insert(file, card.html);
        ++m_counts[card.state];
    }
    int count(const QByteArray& state) const { return m_counts.value(state); }
    std::vector<QByteArray> of(const QStringList& files) const
    {
        std::vector<QByteArray> cards;
        for (const QString& file : files)
            cards.push_back(m_cards.value(file));
        return cards;
    }

private:
    QMutex m_mutex;
    QHash<QString, QByteArray> m_cards;
    QHash<QByteArray, int> m_counts; ///< by state
};

/// A camera that is given twice, as by its name and its folder, is one.
QStringList eachOnce(const QStringList& files)
{
    QStringList once;
    QSet<QString> known;
    for (const QString& file : files) {
        const QString identity = OutputPlace::identityOf(file);
        if (!known.contains(identity))
            once.append(file);
        known.insert(identity);
    }
    return once;
}

FleetRun::Work workOf(const TemplateDocument& rulesTemplate, Cards& cards)
{
    const auto maker = std::make_shared<CardMaker>(rulesTemplate, CardMaker::Pictures::Shown);
    return [maker, &cards](const QString& file) {
        const CameraCard card = maker->make(file);
        cards.put(file, card);
        return FileAnswer{{}, card.complaint, card.status};
    };
}

ExitStatus run(const Arguments& arguments, Output& output)
{
    DocumentError error;
    const auto rulesTemplate = TemplateDocument::read(arguments, error);
    if (!rulesTemplate)
        return refuse(error.text());
    LabelFont::font(); // which threads share
    const QStringList files = eachOnce(FileList::of(arguments.words("config")));
    const QString clash =
        OutputPlace::replaced(arguments.word("output"), files + QStringList{rulesTemplate->file});
    if (!clash.isEmpty())
        return refuse(QStringLiteral("rulesctl: ") + clash);
    Cards cards;
    FleetRun run(
        files, [&] { return workOf(*rulesTemplate, cards); }, output);
    const ExitStatus status = run.run();
    run.tellSummary({QStringLiteral("clean"), QStringLiteral("fail or have findings"),
                     QStringLiteral("unreadable")});
    const FleetPage::Counts counts{cards.count("ok"), cards.count("fails"),
                                   cards.count("unreadable")};
    const QByteArray page = FleetPage::of(rulesTemplate->file, counts, cards.of(files));
    QString why;
    return UICommonMdl::WholeFile::write(arguments.word("output"), page, why) ? status
                                                                              : refuse(why);
}

QString fault(const Arguments& arguments)
{
    if (!arguments.isSet("config"))
        return QStringLiteral("--config is missing");
    return arguments.isSet("output") ? QString() : QStringLiteral("-o is missing");
}

} // namespace

const Command& Commands::report()
{
    static const Command command{
        "report",
        "make a page of many cameras",
        "--template F [--algorithm N:CODE] --config DIR -o F.html",
        "Makes one page that needs nothing besides itself, with a card for each configuration: its "
        "rules as they are painted, what Save would refuse, and what lint finds. The page searches "
        "and filters by itself.\n"
        "\n"
        "Exit status: 0 all are clean, 1 one fails or has findings, 2 one cannot be read, or the "
        "page was not written.",
        "rulesctl report --template template.json --config cameras/ -o fleet.html",
        {RunOptions::config(), {"output", 'o', OptionSpec::Takes::Word, "F.html", "the page"}},
        0,
        &fault,
        &run,
        true};
    return command;
}
