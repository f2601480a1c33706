#include "workbench/documentopener.h"

#include "host/json/value.h"
#include "host/video/maskedaddress.h"
#include "workbench/busyreading.h"
#include "workbench/closequestion.h"
#include "workbench/documentfile.h"
#include "workbench/droptarget.h"
#include "workbench/examples.h"
#include "workbench/workbenchwindow.h"

#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QStatusBar>

namespace
{

/// What was read, or why nothing was.
struct Reading {
    WorkbenchOptions options;
    QString block;
    QString digest;
    QString error;
    QStringList refused; ///< files that cannot be used
};

Reading readBlock(const WorkbenchOptions& options)
{
    Reading reading{options, {}, {}, {}, {}};
    reading.block = options.parameterBlock(reading.error, &reading.digest);
    if (reading.block.isEmpty())
        reading.refused = QStringList{options.templateFile, options.configFile};
    return reading;
}

/// Puts @p files in the place of those that @p options name.
Reading readDropped(WorkbenchOptions options, const QStringList& files)
{
    Reading reading;
    QStringList templates;
    QStringList configurations;
    for (const QString& file : files) {
        kql::Json::Value document;
        if (!DocumentFile::read(file, document, reading.error)) {
            reading.refused = QStringList(file);
            return reading;
        }
        (document.isMember("configDescription") ? templates : configurations).append(file);
    }
    if (templates.size() > 1 || configurations.size() > 1)
        reading.error = DropTarget::refusal();
    if (!templates.isEmpty()) {
        options.templateFile = templates.first();
        options.configFile.clear();
    }
    if (!configurations.isEmpty())
        options.configFile = configurations.first();
    reading.options = options;
    return reading;
}

QString menuText(const RecentDocuments::Documents& documents)
{
    QString text = WorkbenchWindow::shortPath(documents.templateFile);
    if (!documents.configFile.isEmpty())
        text += QStringLiteral(", ") + WorkbenchWindow::shortPath(documents.configFile);
    text = UICommonMdl::maskedAddress(text);
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

DocumentOpener::DocumentOpener(WorkbenchWindow& window, CloseQuestion& question)
    : QObject(&window), m_window(window), m_question(question)
{
    fillMenu();
    connect(&window, &WorkbenchWindow::sgnTemplateWanted, this, &DocumentOpener::openTemplate);
    connect(&window, &WorkbenchWindow::sgnExampleWanted, this, &DocumentOpener::openExample);
    connect(&window, &WorkbenchWindow::sgnDropped, this, &DocumentOpener::openDropped);
    connect(&window, &WorkbenchWindow::sgnLoaded, this, &DocumentOpener::noteLoaded);
}

/// Its actions come before those that are there.
void DocumentOpener::fillMenu()
{
    QMenu& file = m_window.fileMenu();
    QAction* const others = file.actions().value(0);
    const auto add = [&](const QString& text, void (DocumentOpener::*slot)(),
                         const QKeySequence& key) {
        auto* const action = new QAction(text, &file);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, slot);
        file.insertAction(others, action);
    };
    const auto addMenu = [&](const QString& text, const char* name) {
        auto* const menu = new QMenu(text, &file);
        menu->setObjectName(QLatin1String(name));
        file.insertMenu(others, menu);
        return menu;
    };
    add(tr("Open &template..."), &DocumentOpener::openTemplate, QKeySequence(tr("Ctrl+T")));
    add(tr("Open &configuration..."), &DocumentOpener::openConfiguration,
        QKeySequence(tr("Ctrl+O")));
    fillExamples(*addMenu(tr("Open an e&xample"), "examples"));
    QMenu* const recent = addMenu(tr("Recent &documents"), "recentDocuments");
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecent(*recent); });
    add(tr("&Load again"), &DocumentOpener::loadAgain, QKeySequence(Qt::Key_F5));
    file.insertSeparator(others);
}

void DocumentOpener::fillExamples(QMenu& menu)
{
    for (const QString& name : Examples::names())
        menu.addAction(Examples::title(name), this, [this, name] { openExample(name); });
    menu.setEnabled(!menu.isEmpty());
}

void DocumentOpener::fillRecent(QMenu& menu)
{
    menu.clear();
    for (const RecentDocuments::Documents& documents : m_recent.all()) {
        QAction* const action = menu.addAction(menuText(documents), this,
                                               [this, documents] { openDocuments(documents); });
        action->setToolTip(documents.templateFile.toHtmlEscaped());
    }
}

void DocumentOpener::keepRecent(const QString& file)
{
    m_recent.keepIn(file);
}

void DocumentOpener::noteLoaded()
{
    m_recent.add({m_window.options().templateFile, m_window.options().configFile});
    m_window.tellTrouble(Trouble::RecentDocuments, m_recent.error());
}

void DocumentOpener::openTemplate()
{
    const QString path = QFileDialog::getOpenFileName(&m_window, tr("Open template"),
                                                      m_window.options().templateFile,
                                                      WorkbenchWindow::jsonFilter());
    if (!path.isEmpty())
        openDocuments({path, {}});
}

void DocumentOpener::openConfiguration()
{
    WorkbenchOptions options = m_window.options();
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Open configuration"), options.configFile, WorkbenchWindow::jsonFilter());
    if (path.isEmpty())
        return;
    options.configFile = path;
    open(options);
}

void DocumentOpener::loadAgain()
{
    open(m_window.options());
}

void DocumentOpener::openExample(const QString& name)
{
    openDocuments({Examples::templateFile(name), Examples::configFile(name)});
}

void DocumentOpener::openDocuments(const RecentDocuments::Documents& documents)
{
    WorkbenchOptions options = m_window.options();
    options.templateFile = documents.templateFile;
    options.configFile = documents.configFile;
    open(options);
}

void DocumentOpener::openDropped(const QStringList& files)
{
    const WorkbenchOptions options = m_window.options();
    const auto reading = BusyReading::result<Reading>(
        &m_window, tr("Reading ..."), [options, files] { return readDropped(options, files); });
    if (!reading)
        return;
    if (reading->error.isEmpty())
        open(reading->options);
    else if (reading->refused.isEmpty())
        m_window.report(reading->error);
    else
        refuse(reading->refused, reading->error);
}

void DocumentOpener::open(const WorkbenchOptions& options)
{
    if (options.templateFile.isEmpty())
        return m_window.report(tr("Open a template first"));
    // The rest of what is done again would be done to these.
    if (m_window.isReplaying()) {
        m_window.statusBar()->showMessage(tr("Nothing can be opened before all is done again"));
        return;
    }
    // Before they are read: the answer may save into one of them.
    if (!m_question.mayLeave())
        return;
    const auto reading = BusyReading::result<Reading>(&m_window, tr("Reading ..."),
                                                      [options] { return readBlock(options); });
    if (!reading)
        return;
    QString error;
    if (reading->block.isEmpty())
        refuse(reading->refused, reading->error);
    else if (!m_window.loadBlock(options, reading->block, reading->digest, error))
        refuse({options.templateFile, options.configFile}, error);
}

void DocumentOpener::refuse(const QStringList& files, const QString& error)
{
    m_refusedFiles = files;
    m_window.reportDocument(error);
}
