#pragma once

#include "host/json/value.h"
#include "tools/rulesctl/apply/rollout.h"
#include "tools/rulesctl/fleetrun.h"

#include <QHash>
#include <QMutex>
#include <map>
#include <memory>

class ConfigDocument;
class SavedConfig;
struct DocumentError;
struct TemplateDocument;

/// Many files that rules are rolled out to. What is to be written is held until all were read.
class RolledFiles
{
public:
    /// Which rules, and how.
    struct Order {
        QString from; ///< file that has them
        QStringList names;
        Rollout::WhereTaken whereTaken;
    };

    /// @p rulesTemplate must outlive this. Not owned.
    RolledFiles(const TemplateDocument& rulesTemplate, Order order, QStringList files);
    ~RolledFiles();

    /// Reads the configuration that has the rules. False with @p error where it cannot be used, or
    /// has not all of them once.
    bool readSource(DocumentError& error);

    const QStringList& names() const { return m_files; }

    /// To be called on each thread: what makes of one file what is to be written.
    FleetRun::Work makeWork(bool isColoured);

    /// Writes what came of each file to where @p targetOf says: the configuration alone, but where
    /// that is the file itself, all of its document. A file that says all of it already
    /// stays untouched. Returns a line for each that could not be written.
    QStringList write(const std::function<QString(const QString& file)>& targetOf) const;

private:
    class Worker;
    struct Result {
        QByteArray alone; ///< the configuration
        QByteArray whole; ///< with the result that it is in
        bool isThere;     ///< the file says the same, if maybe not in the same text
    };

    void keep(const QString& file, const Result& result);

    const TemplateDocument& m_template;
    Order m_order;
    QStringList m_files;
    kql::Json::Value m_source; ///< the configuration that has the rules
    QMutex m_mutex;
    QHash<QString, Result> m_results; ///< by file
};
